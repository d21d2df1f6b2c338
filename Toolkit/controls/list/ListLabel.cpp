#include "Toolkit/controls/list/ListLabel.h"

#include "Toolkit/base/Text.h"

#include <algorithm>

namespace toolkit
{

namespace
{

int Measure(std::string_view text)
{
    return CurrentTextEngine().Measure(text, FontStyle::Regular);
}

std::string_view TrimLeft(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view TrimRight(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string WithoutControls(std::string_view text)
{
    std::string clean(text);
    for (char& c : clean)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
            c = ' ';
    return clean;
}

// The ends of the text's code points, in bytes.
std::vector<std::size_t> CodePointEnds(std::string_view text)
{
    std::vector<std::size_t> ends;
    for (std::size_t at = 0; at < text.size(); ends.push_back(at))
        at += static_cast<std::size_t>(DecodeUtf8(text.substr(at)).bytes);
    return ends;
}

// How many bytes of a text that is wider than `width` fit it; at least one code point.
std::size_t FittingBytes(std::string_view text, int width)
{
    const std::vector<std::size_t> ends = CodePointEnds(text);
    if (ends.size() == 1)
        return text.size();
    const auto tooWide = std::partition_point(ends.begin() + 1, ends.end() - 1,
                                              [&](std::size_t end) { return Measure(text.substr(0, end)) <= width; });
    return *(tooWide - 1);
}

// The last place, at or before `limit`, where a line may end by itself; 0 without one.
std::size_t LastBreak(std::string_view text, std::size_t limit)
{
    for (std::size_t at = std::min(limit, text.size() - 1); at > 0; --at)
        if (text[at] == ' ' || text[at - 1] == ' ' || text[at - 1] == '-' || text[at - 1] == '_')
            return at;
    return 0;
}

LabelLine MakeLine(std::string_view text)
{
    return {std::string(text), Measure(text)};
}

// Takes the first line off a text that does not fit it.
LabelLine TakeLine(std::string_view& text, int width)
{
    const std::size_t fitting = FittingBytes(text, width);
    const std::string_view restWhenCut = TrimLeft(text.substr(fitting));
    const std::size_t natural = LastBreak(text, fitting);
    if (natural > 0) {
        const std::string_view rest = TrimLeft(text.substr(natural));
        LabelLine line = MakeLine(TrimRight(text.substr(0, natural)));
        const bool betweenWords = text[natural] == ' ' || text[natural - 1] == ' ';
        const bool wellFilled =
            betweenWords ? line.width * 3 >= width : line.width * 2 >= width && Measure(restWhenCut) > width;
        if (wellFilled || Measure(rest) <= width) {
            text = rest;
            return line;
        }
    }
    LabelLine line = MakeLine(TrimRight(text.substr(0, fitting)));
    text = restWhenCut;
    return line;
}

} // namespace

std::vector<LabelLine> WrapLabel(std::string_view text, int width, int maxLines)
{
    std::vector<LabelLine> lines;
    const std::string clean = WithoutControls(text);
    std::string_view rest = TrimRight(TrimLeft(clean));
    while (!rest.empty() && static_cast<int>(lines.size()) < maxLines) {
        const int whole = Measure(rest);
        if (whole <= width) {
            lines.push_back({std::string(rest), whole});
            break;
        }
        if (static_cast<int>(lines.size()) + 1 == maxLines) {
            lines.push_back(MakeLine(Ellipsize(rest, width, FontStyle::Regular)));
            break;
        }
        lines.push_back(TakeLine(rest, width));
    }
    return lines;
}

} // namespace toolkit
