#include "Toolkit/controls/edit/EditLayout.h"

#include "Toolkit/controls/edit/TextPlaces.h"

namespace toolkit
{

namespace
{

int Measure(std::string_view text)
{
    return CurrentTextEngine().Measure(text, FontStyle::Regular);
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

CRect EditLayout::LineRect() const
{
    const int height = CurrentTextEngine().LineHeight();
    const int top = std::max<int>((m_client.cy - height) / 2, 0);
    return {0, top, m_client.cx, top + height};
}

CRect EditLayout::CaretRect(std::string_view text, std::size_t at) const
{
    const CRect line = LineRect();
    const int x = Left(text) + TextPlaces(text).CaretX(at);
    return {x, line.top, x + kCaretWidth, line.bottom};
}

std::vector<CRect> EditLayout::SpanRects(std::string_view text, TextSpan span) const
{
    if (span.IsEmpty())
        return {};
    const CRect line = LineRect();
    const int left = Left(text);
    std::vector<CRect> rects;
    for (const CharacterPlace& part : TextPlaces(text).Parts(span))
        rects.emplace_back(left + part.Left(), line.top, left + part.Right(), line.bottom);
    return rects;
}

std::size_t EditLayout::CharacterAt(std::string_view text, int x) const
{
    return TextPlaces(text).CharacterAt(x - Left(text));
}

std::size_t EditLayout::PositionAt(std::string_view text, int x) const
{
    return TextPlaces(text).StopAt(x - Left(text));
}

void EditLayout::ShowCaret(std::string_view text, std::size_t at)
{
    const int caret = TextPlaces(text).CaretX(at);
    const int most = std::max(Measure(text) + kCaretWidth - Room(), 0);
    m_scroll = std::min(m_scroll, caret);
    m_scroll = std::max(m_scroll, caret + kCaretWidth - Room());
    m_scroll = std::clamp(m_scroll, 0, most);
}

} // namespace toolkit
