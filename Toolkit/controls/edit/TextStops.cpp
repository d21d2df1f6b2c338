#include "Toolkit/controls/edit/TextStops.h"

#include "Toolkit/base/Text.h"
#include "Toolkit/graphics/TextEngine.h"

#include <algorithm>

namespace toolkit
{

namespace
{

constexpr char32_t kJoiner = 0x200D;
constexpr std::size_t kLongest = 4; // bytes of a code point

struct Range
{
    char32_t first, last;
};

// Marks of scripts that the text engines need no table for, and the parts of a Hangul syllable behind its first.
constexpr Range kFollowers[] = {
    {0x0610, 0x061A}, {0x0670, 0x0670}, {0x06D6, 0x06DC}, {0x0900, 0x0903}, {0x093A, 0x093C}, {0x093E, 0x094F},
    {0x0981, 0x0983}, {0x09BC, 0x09BC}, {0x09BE, 0x09CD}, {0x0A01, 0x0A03}, {0x0A3C, 0x0A4D}, {0x0ABC, 0x0ABC},
    {0x0ABE, 0x0ACD}, {0x0B3C, 0x0B3C}, {0x0B3E, 0x0B4D}, {0x0BBE, 0x0BCD}, {0x0C3E, 0x0C4D}, {0x0CBC, 0x0CBC},
    {0x0CBE, 0x0CCD}, {0x0D3E, 0x0D4D}, {0x0E31, 0x0E31}, {0x0E34, 0x0E3A}, {0x0E47, 0x0E4E}, {0x0EB1, 0x0EB1},
    {0x0EB4, 0x0EBC}, {0x0EC8, 0x0ECD}, {0x102B, 0x103E}, {0x1160, 0x11FF}, {0x17B4, 0x17D3},
};

bool Stands(char32_t c) // on the one before it
{
    return IsCombiningMark(c) || std::any_of(std::begin(kFollowers), std::end(kFollowers),
                                             [c](const Range& range) { return c >= range.first && c <= range.last; });
}

bool IsPictograph(char32_t c)
{
    return (c >= 0x2190 && c <= 0x2BFF) || (c >= 0x1F000 && c <= 0x1FAFF);
}

bool IsFlagLetter(char32_t c)
{
    return c >= 0x1F1E6 && c <= 0x1F1FF;
}

CodePoint At(std::string_view text, std::size_t at)
{
    return DecodeUtf8(text.substr(at));
}

// The start of the code point that ends at `at`, which is not 0.
std::size_t CodePointBefore(std::string_view text, std::size_t at)
{
    for (std::size_t bytes = std::min(kLongest, at); bytes > 1; --bytes)
        if (static_cast<std::size_t>(At(text.substr(0, at), at - bytes).bytes) == bytes)
            return at - bytes;
    return at - 1;
}

// Does a code point begin there, or does one of several bytes reach over it?
bool BeginsCodePoint(std::string_view text, std::size_t at)
{
    for (std::size_t back = 1; back < kLongest && back <= at; ++back)
        if (static_cast<std::size_t>(At(text, at - back).bytes) > back)
            return false;
    return true;
}

// Flags are two letters each: the second one of a pair has an odd number of them before it.
bool IsSecondFlagLetter(std::string_view text, std::size_t at)
{
    bool second = false;
    while (at > 0) {
        at = CodePointBefore(text, at);
        if (!IsFlagLetter(At(text, at).value))
            break;
        second = !second;
    }
    return second;
}

enum class Kind
{
    Blank,
    Letters,
    Signs
};

Kind KindAt(std::string_view text, std::size_t at)
{
    const auto c = static_cast<unsigned char>(text[at]);
    if (c == ' ' || c == '\t' || At(text, at).value == 0xA0)
        return Kind::Blank;
    const bool letter = (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z') || c == '_' || c >= 0x80;
    return letter ? Kind::Letters : Kind::Signs;
}

std::size_t RunEnd(std::string_view text, std::size_t at, Kind kind)
{
    while (at < text.size() && KindAt(text, at) == kind)
        at = NextStop(text, at);
    return at;
}

std::size_t RunStart(std::string_view text, std::size_t at, Kind kind)
{
    while (at > 0 && KindAt(text, PreviousStop(text, at)) == kind)
        at = PreviousStop(text, at);
    return at;
}

} // namespace

bool IsStop(std::string_view text, std::size_t at)
{
    if (at == 0 || at >= text.size())
        return at <= text.size();
    if (!BeginsCodePoint(text, at))
        return false;
    const char32_t c = At(text, at).value;
    if (Stands(c))
        return false;
    const char32_t before = At(text, CodePointBefore(text, at)).value;
    if (before == kJoiner && IsPictograph(c))
        return false;
    return !IsFlagLetter(c) || !IsSecondFlagLetter(text, at);
}

std::size_t StopAtOrBefore(std::string_view text, std::size_t at)
{
    at = std::min(at, text.size());
    while (!IsStop(text, at))
        --at;
    return at;
}

std::size_t NextStop(std::string_view text, std::size_t at)
{
    if (at >= text.size())
        return text.size();
    do
        ++at;
    while (!IsStop(text, at));
    return at;
}

std::size_t PreviousStop(std::string_view text, std::size_t at)
{
    return at == 0 ? 0 : StopAtOrBefore(text, std::min(at, text.size()) - 1);
}

std::size_t NextWord(std::string_view text, std::size_t at)
{
    if (at >= text.size())
        return text.size();
    const Kind kind = KindAt(text, at);
    return RunEnd(text, kind == Kind::Blank ? at : RunEnd(text, at, kind), Kind::Blank);
}

std::size_t PreviousWord(std::string_view text, std::size_t at)
{
    at = RunStart(text, at, Kind::Blank);
    return at == 0 ? 0 : RunStart(text, at, KindAt(text, PreviousStop(text, at)));
}

TextSpan WordAt(std::string_view text, std::size_t at)
{
    if (text.empty())
        return {};
    const Kind kind = KindAt(text, at < text.size() ? at : PreviousStop(text, at));
    return {RunStart(text, at, kind), RunEnd(text, at, kind)};
}

} // namespace toolkit
