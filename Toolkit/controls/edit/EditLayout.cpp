#include "Toolkit/controls/edit/EditLayout.h"

#include "Toolkit/controls/edit/TextStops.h"
#include "Toolkit/graphics/TextEngine.h"

#include <vector>

namespace toolkit
{

namespace
{

int Measure(std::string_view text)
{
    return CurrentTextEngine().Measure(text, FontStyle::Regular);
}

std::vector<std::size_t> AllStops(std::string_view text)
{
    std::vector<std::size_t> stops{0};
    while (stops.back() < text.size())
        stops.push_back(NextStop(text, stops.back()));
    return stops;
}

} // namespace

int EditLayout::Room() const
{
    return std::max<int>(m_client.cx - 2 * kMargin, kCaretWidth);
}

int EditLayout::Left(std::string_view text) const
{
    const int rest = m_align == Align::Left ? 0 : std::max(Room() - kCaretWidth - Measure(text), 0);
    return kMargin - m_scroll + (m_align == Align::Center ? rest / 2 : rest);
}

int EditLayout::X(std::string_view text, std::size_t at) const
{
    return Left(text) + Measure(text.substr(0, at));
}

CRect EditLayout::LineRect() const
{
    const int height = CurrentTextEngine().LineHeight();
    const int top = std::max<int>((m_client.cy - height) / 2, 0);
    return {0, top, m_client.cx, top + height};
}

CRect EditLayout::CaretRect(std::string_view text, std::size_t at) const
{
    const CRect line = LineRect();
    const int x = X(text, at);
    return {x, line.top, x + kCaretWidth, line.bottom};
}

std::size_t EditLayout::CharacterAt(std::string_view text, int x) const
{
    const int offset = x - Left(text);
    const std::vector<std::size_t> stops = AllStops(text);
    if (stops.size() == 1)
        return 0;
    const auto beyond = std::partition_point(stops.begin() + 1, stops.end() - 1,
                                             [&](std::size_t stop) { return Measure(text.substr(0, stop)) <= offset; });
    return *(beyond - 1);
}

std::size_t EditLayout::PositionAt(std::string_view text, int x) const
{
    const std::size_t before = CharacterAt(text, x), behind = NextStop(text, before);
    return x - X(text, before) < X(text, behind) - x ? before : behind;
}

void EditLayout::ShowCaret(std::string_view text, std::size_t at)
{
    const int caret = Measure(text.substr(0, at));
    const int most = std::max(Measure(text) + kCaretWidth - Room(), 0);
    m_scroll = std::min(m_scroll, caret);
    m_scroll = std::max(m_scroll, caret + kCaretWidth - Room());
    m_scroll = std::clamp(m_scroll, 0, most);
}

} // namespace toolkit
