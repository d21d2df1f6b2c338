// Text whose letters stand side by side, one glyph to a code point: drawn from cached glyph pictures.
//
// So are Latin, Greek, Cyrillic, Chinese, Japanese and Korean texts without combining marks. A row never seen
// before costs hardly more than one seen already, for its letters have been seen.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <QFont>
#include <QFontMetricsF>
#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qtdesktop
{

// Can the text be drawn glyph by glyph? Invalid bytes can: each is a replacement character.
bool IsSimpleText(std::string_view text);

// The simple texts of one font. Positions are kept in 64ths of a pixel and drawn in quarters.
class SimpleText
{
public:
    explicit SimpleText(const QFont& font);

    // The width in pixels, rounded up.
    int Measure(std::string_view text);

    // With the line's top left corner at `at`, only inside `clip`, which lies inside the surface.
    void Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color);

private:
    static constexpr int kQuarters = 4;

    // How much of each pixel the glyph covers, 255 for all of it.
    struct Mask
    {
        CPoint offset; // from the whole pixel of the pen and the line's top
        CSize size;
        std::vector<BYTE> coverage; // row by row
    };
    struct Glyph
    {
        int advance = 0; // 64ths
        std::array<std::optional<Mask>, kQuarters> masks;
    };

    template <class Visit>
    long long Walk(std::string_view text, Visit visit); // visit(glyph, code point, pen) until FALSE; the pen at the end

    Glyph& FindGlyph(char32_t c);
    int Kerning(char32_t left, char32_t right); // 64ths to add between the two
    const Mask& FindMask(Glyph& glyph, char32_t c, int quarter);
    Mask RenderMask(char32_t c, int quarter) const;
    static void Fill(toolkit::Surface& target, const CRect& clip, CPoint at, const Mask& mask, toolkit::Pixel color);

    const QFont m_font;
    const QFontMetricsF m_metrics;
    const int m_nBaseline; // pixels below the line's top
    std::unordered_map<char32_t, Glyph> m_glyphs;
    std::unordered_map<std::uint32_t, int> m_kernings; // of pairs of ASCII
};

} // namespace qtdesktop
