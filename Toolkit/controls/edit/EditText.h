// A field's text with its caret and its selection. Knows no window.
//
// The selection lies between the anchor and the caret. Both always stand between characters.
#pragma once

#include "Toolkit/controls/edit/TextStops.h"

#include <string>

namespace toolkit
{

class TOOLKIT_API EditText
{
public:
    const std::string& Text() const { return m_text; }
    std::size_t Caret() const { return m_caret; }
    std::size_t Anchor() const { return m_anchor; }
    TextSpan Selection() const;
    std::string_view Selected() const;

    void Set(std::string_view text); // the caret goes to its start
    // A position beyond the text is its end; one inside a character is the character's start.
    void Select(std::size_t anchor, std::size_t caret);
    void MoveTo(std::size_t at, bool extend) { Select(extend ? m_anchor : at, at); }
    void SelectNone() { m_anchor = m_caret; }

    void Replace(std::string_view text); // the selection by the text; the caret comes behind it

    // As much of a text as makes the whole no longer than `limit` bytes, whole characters only, when it replaces the
    // selection.
    std::string_view FitTo(std::string_view text, std::size_t limit) const;

private:
    std::string m_text;
    std::size_t m_anchor = 0, m_caret = 0;
};

} // namespace toolkit
