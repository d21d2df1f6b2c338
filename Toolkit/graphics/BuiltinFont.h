// The built-in font: small, proportional, drawn pixel by pixel. Internal to the graphics layer.
#pragma once

#include "Toolkit/graphics/TextEngine.h"

#include <array>

namespace toolkit
{

// A line's height; capitals and ascenders are 8 pixels high, the baseline lies under row 10.
inline constexpr int kFontRows = 14;

struct Glyph
{
    int width = 0;                               // pixels of ink; one more follows as the gap
    std::array<std::uint32_t, kFontRows> rows{}; // bit 0 is the leftmost pixel
};

// The glyph of a code point; a box for one that the font does not have.
const Glyph& FindGlyph(char32_t c);

// Does the code point stand over the one before it, without a width of its own?
bool IsCombiningMark(char32_t c);

class BuiltinFont : public TextEngine
{
public:
    int LineHeight() const override { return kFontRows; }
    int Measure(std::string_view text, FontStyle style) override;
    void Draw(Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
              FontStyle style) override;
};

} // namespace toolkit
