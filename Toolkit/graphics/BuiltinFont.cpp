#include "Toolkit/graphics/BuiltinFont.h"

#include "Toolkit/base/Text.h"

#include <bit>

namespace
{

using toolkit::FontStyle;
using toolkit::Glyph;

char32_t TakeCodePoint(std::string_view& text)
{
    const toolkit::CodePoint c = toolkit::DecodeUtf8(text);
    text.remove_prefix(static_cast<std::size_t>(c.bytes));
    return c.value;
}

int Advance(const Glyph& glyph, FontStyle style)
{
    return glyph.width + (style == FontStyle::Bold ? 2 : 1);
}

constexpr int kWidest = 16; // pixels that a row of a glyph has bits for

// The columns of a glyph at x, no more than its width left of `left`, that lie between left and right, as bits.
std::uint32_t VisibleColumns(int x, int left, int right)
{
    std::uint32_t columns = ~0u;
    if (left > x)
        columns <<= left - x;
    if (right - x < 32)
        columns &= right > x ? (1u << (right - x)) - 1 : 0;
    return columns;
}

// The ink once more a pixel to the right, save where it would close a gap of one pixel.
std::uint32_t Struck(std::uint32_t ink)
{
    return ink | (ink << 1 & ~(ink >> 1));
}

struct Pen
{
    toolkit::Surface& target;
    const CRect& clip;
    const CPoint line; // the line's top left corner, a pixel of the target
    const toolkit::Pixel pixel;
    const FontStyle style;

    // So many coordinates to the right of the line's beginning.
    void Draw(int x, const Glyph& glyph) const
    {
        if (target.Scale() == toolkit::PixelScale())
            DrawPixels({line.x + x, line.y}, glyph);
        else
            DrawScaled(x, glyph);
    }

private:
    std::uint32_t Ink(const Glyph& glyph, int row) const
    {
        const std::uint32_t ink = glyph.rows[static_cast<std::size_t>(row)];
        return style == FontStyle::Bold ? Struck(ink) : ink;
    }

    void DrawScaled(int x, const Glyph& glyph) const
    {
        for (int row = 0; row < toolkit::kFontRows; ++row)
            for (std::uint32_t rest = Ink(glyph, row); rest != 0; rest &= rest - 1) {
                const CRect dot({x + std::countr_zero(rest), row}, CSize(1, 1));
                const CRect part = (target.Scale().ToPixels(dot) + line) & clip;
                for (int y = part.top; y < part.bottom; ++y)
                    std::fill_n(target.Row(y) + part.left, part.Width(), pixel);
            }
    }

    void DrawPixels(CPoint at, const Glyph& glyph) const
    {
        if (at.x + kWidest <= clip.left)
            return;
        const std::uint32_t columns = VisibleColumns(at.x, clip.left, clip.right);
        const int end = std::min(clip.bottom, at.y + toolkit::kFontRows);
        for (int y = std::max(clip.top, at.y); y < end; ++y) {
            for (std::uint32_t rest = Ink(glyph, y - at.y) & columns; rest != 0; rest &= rest - 1)
                target.Row(y)[at.x + std::countr_zero(rest)] = pixel;
        }
    }
};

} // namespace

int toolkit::BuiltinFont::Measure(std::string_view text, FontStyle style)
{
    int width = 0;
    while (!text.empty()) {
        const char32_t c = TakeCodePoint(text);
        width += IsCombiningMark(c) ? 0 : Advance(m_glyphs.Find(c), style);
    }
    return width;
}

void toolkit::BuiltinFont::Draw(Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
                                FontStyle style)
{
    const Pen pen{target, clip, at, ToPixel(color), style};
    int x = 0;
    while (!text.empty() && at.x + target.Scale().ToPixels(x) < clip.right) {
        const char32_t c = TakeCodePoint(text);
        if (IsCombiningMark(c))
            continue; // nothing before it to stand on
        const char32_t next = text.empty() ? 0 : DecodeUtf8(text).value;
        const Glyph& glyph = m_glyphs.Find(GlyphTable::WithoutDot(c, next));
        pen.Draw(x, glyph);
        while (!text.empty() && IsCombiningMark(DecodeUtf8(text).value)) {
            const PlacedMark mark = m_glyphs.Place(TakeCodePoint(text), glyph);
            pen.Draw(x + mark.x, mark.glyph);
        }
        x += Advance(glyph, style);
    }
}
