#include "QtDesktop/text/QtTextEngine.h"

#include "QtDesktop/text/TextParts.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace qtdesktop
{
namespace
{

// In shades of grey: the surfaces know nothing of how the screen's colours lie.
QFont UiFont(toolkit::FontStyle style)
{
    QFont font = QGuiApplication::font();
    font.setBold(style == toolkit::FontStyle::Bold);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

int HeightOf(const QFont& font)
{
    return BaselineOf(font) + static_cast<int>(std::ceil(QFontMetricsF(font).descent()));
}

} // namespace

QtTextEngine::QtTextEngine()
    : m_regular(UiFont(toolkit::FontStyle::Regular)),
      m_bold(UiFont(toolkit::FontStyle::Bold)),
      m_nLineHeight(
          std::max({HeightOf(UiFont(toolkit::FontStyle::Regular)), HeightOf(UiFont(toolkit::FontStyle::Bold)), 1}))
{}

int QtTextEngine::Measure(std::string_view text, toolkit::FontStyle style)
{
    Face& face = FaceOf(style);
    const std::optional<int> width = face.simple.Measure(text);
    return width ? *width : face.layout.Measure(text);
}

void QtTextEngine::Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
                        toolkit::FontStyle style)
{
    const CRect seen = clip & target.Bounds();
    if (seen.IsRectEmpty())
        return;
    Face& face = FaceOf(style);
    if (!face.simple.Draw(target, seen, at, text, color))
        face.layout.Draw(target, seen, at, text, color);
}

} // namespace qtdesktop
