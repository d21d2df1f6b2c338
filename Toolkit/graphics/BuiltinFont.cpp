#include "Toolkit/graphics/BuiltinFont.h"

#include "Toolkit/base/Text.h"

#include <bit>

namespace
{

using toolkit::FontStyle;
using toolkit::Glyph;
using toolkit::Pixel;

char32_t TakeCodePoint(std::string_view& text)
{
    const toolkit::CodePoint c = toolkit::DecodeUtf8(text);
    text.remove_prefix(static_cast<std::size_t>(c.bytes));
    return c.value;
}

int Advance(char32_t c, FontStyle style)
{
    if (toolkit::IsCombiningMark(c))
        return 0;
    return toolkit::FindGlyph(c).width + (style == FontStyle::Bold ? 2 : 1);
}

// The columns of a glyph at x that lie between left and right, as bits.
std::uint32_t VisibleColumns(int x, int left, int right)
{
    std::uint32_t columns = ~0u;
    if (left > x)
        columns = left - x < 32 ? columns << (left - x) : 0;
    if (right - x < 32)
        columns &= right > x ? (1u << (right - x)) - 1 : 0;
    return columns;
}

void DrawGlyph(toolkit::Surface& target, const CRect& clip, CPoint at, const Glyph& glyph, Pixel pixel, FontStyle style)
{
    const std::uint32_t columns = VisibleColumns(at.x, clip.left, clip.right);
    const int first = std::max(clip.top, at.y);
    const int end = std::min(clip.bottom, at.y + toolkit::kFontRows);
    for (int y = first; y < end; ++y) {
        const std::uint32_t ink = glyph.rows[static_cast<std::size_t>(y - at.y)];
        const std::uint32_t struck = style == FontStyle::Bold ? ink | ink << 1 : ink;
        for (std::uint32_t rest = struck & columns; rest != 0; rest &= rest - 1)
            target.Row(y)[at.x + std::countr_zero(rest)] = pixel;
    }
}

} // namespace

int toolkit::BuiltinFont::Measure(std::string_view text, FontStyle style)
{
    int width = 0;
    while (!text.empty())
        width += Advance(TakeCodePoint(text), style);
    return width;
}

void toolkit::BuiltinFont::Draw(Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
                                FontStyle style)
{
    const Pixel pixel = ToPixel(color);
    while (!text.empty() && at.x < clip.right) {
        const char32_t c = TakeCodePoint(text);
        if (IsCombiningMark(c))
            continue;
        DrawGlyph(target, clip, at, FindGlyph(c), pixel, style);
        at.x += Advance(c, style);
    }
}
