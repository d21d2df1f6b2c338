// The built-in font: small, proportional, drawn pixel by pixel. Internal to the graphics layer.
//
// Every pixel is either the text's colour or left as it was. Bold letters are drawn twice, a pixel apart. At other
// scales than 1 each of them is a rectangle.
#pragma once

#include "Toolkit/graphics/GlyphTable.h"
#include "Toolkit/graphics/TextEngine.h"

namespace toolkit
{

class BuiltinFont : public TextEngine
{
public:
    int LineHeight() const override { return kFontRows; }
    int Measure(std::string_view text, FontStyle style) override;
    void Draw(Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
              FontStyle style) override;

private:
    const GlyphTable m_glyphs;
};

} // namespace toolkit
