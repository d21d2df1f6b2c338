// Draws the toolkit's text in the desktop's font.
#pragma once

#include "QtDesktop/text/LayoutText.h"
#include "QtDesktop/text/SimpleText.h"
#include "Toolkit/graphics/TextEngine.h"

namespace qtdesktop
{

class QtTextEngine : public toolkit::TextEngine
{
public:
    QtTextEngine(); // the application's font of that moment

    int LineHeight() const override { return m_nLineHeight; }
    int Measure(std::string_view text, toolkit::FontStyle style) override;
    void Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
              toolkit::FontStyle style) override;

private:
    struct Face
    {
        explicit Face(const QFont& font) : simple(font), layout(font) {}
        SimpleText simple;
        LayoutText layout;
    };

    Face& FaceOf(toolkit::FontStyle style) { return style == toolkit::FontStyle::Bold ? m_bold : m_regular; }

    Face m_regular, m_bold;
    const int m_nLineHeight;
};

} // namespace qtdesktop
