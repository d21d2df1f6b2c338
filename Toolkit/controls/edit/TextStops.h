// Where the caret may stand in a text, and where its words begin. Positions count bytes of UTF-8.
//
// A character is what its reader takes for one: a code point with the marks that stand on it, the parts of a Hangul
// syllable, an emoji built of several, a flag. The caret stands between characters only. Bytes that are no
// UTF-8 are characters of their own. Each answer costs what lies around the position, unless said otherwise.
#pragma once

#include "Toolkit/base/Types.h"

#include <string_view>

namespace toolkit
{

struct TextSpan
{
    std::size_t first = 0, end = 0; // without end

    bool IsEmpty() const { return first == end; }
    std::size_t Length() const { return end - first; }
    friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

TOOLKIT_API bool IsStop(std::string_view text, std::size_t at); // may the caret stand there?
TOOLKIT_API std::size_t StopAtOrBefore(std::string_view text, std::size_t at);
TOOLKIT_API std::size_t NextStop(std::string_view text, std::size_t at);     // the text's end behind the last character
TOOLKIT_API std::size_t PreviousStop(std::string_view text, std::size_t at); // 0 before the first one

// A word is a run of letters and digits, or of other signs; blanks part them. The starts are where Ctrl with an arrow
// goes: behind the blanks to the right, before the word to the left.
TOOLKIT_API std::size_t NextWord(std::string_view text, std::size_t at);
TOOLKIT_API std::size_t PreviousWord(std::string_view text, std::size_t at);
TOOLKIT_API TextSpan WordAt(std::string_view text, std::size_t at); // the run that a double click there selects

} // namespace toolkit
