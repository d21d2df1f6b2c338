// The built-in font's glyphs, made from its drawings. Internal to the graphics layer.
#pragma once

#include "Toolkit/base/Types.h"

#include <array>
#include <map>

namespace toolkit
{

inline constexpr int kFontRows = 14; // a line's height
inline constexpr int kCapTop = 3;    // the first row of capitals; the three above are for what they carry

struct Glyph
{
    int width = 0;                      // pixels; one more follows as the gap
    std::array<WORD, kFontRows> rows{}; // of a line; bit 0 is the leftmost pixel
};

// A mark as it lies over a glyph: x counts from the glyph's left edge and may be negative.
struct PlacedMark
{
    int x = 0;
    Glyph glyph;
};

class GlyphTable
{
public:
    GlyphTable();

    const Glyph& Find(char32_t c) const;                      // a box for a character that the font does not have
    PlacedMark Place(char32_t mark, const Glyph& base) const; // no ink for a mark that the font does not have
    // What a letter looks like under a mark: i and j lose their dot.
    static char32_t WithoutDot(char32_t letter, char32_t mark);

private:
    void AddBands();
    void AddMarkedLetters();
    void Add(char32_t c, const Glyph& glyph);

    std::array<Glyph, 256> m_latin; // width 0: the font does not have it
    std::map<char32_t, Glyph> m_others;
    Glyph m_box;
};

} // namespace toolkit
