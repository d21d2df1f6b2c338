// Draws the toolkit's text in the desktop's font.
#pragma once

#include "QtDesktop/text/LayoutText.h"
#include "QtDesktop/text/SimpleText.h"
#include "Toolkit/graphics/TextEngine.h"

#include <memory>
#include <vector>

namespace qtdesktop
{

class QtTextEngine : public toolkit::TextEngine
{
public:
    explicit QtTextEngine(const QFont& font) : m_font(font) {}

    const QFont& GetFont() const { return m_font; }
    int LineHeight() const override;
    int Measure(std::string_view text, toolkit::FontStyle style) override;
    std::vector<toolkit::CharacterPlace> Places(std::string_view text, std::span<const std::size_t> starts,
                                                toolkit::FontStyle style) override;
    void Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
              toolkit::FontStyle style) override;

private:
    struct Face
    {
        explicit Face(const QFont& font) : simple(font), layout(font) {}
        SimpleText simple;
        LayoutText layout;
    };
    // The font as so many pixels as one scale makes of it.
    struct Faces
    {
        Faces(const QFont& font, toolkit::PixelScale scale);
        Face& Of(toolkit::FontStyle style) { return style == toolkit::FontStyle::Bold ? bold : regular; }

        const toolkit::PixelScale scale;
        Face regular, bold;
        const int nLineHeight; // pixels
    };

    Faces& FacesAt(toolkit::PixelScale scale) const;

    const QFont m_font;
    mutable std::vector<std::unique_ptr<Faces>> m_faces; // one but where pictures of other scales are written on
};

} // namespace qtdesktop
