#include "QtDesktop/text/QtTextEngine.h"

#include "QtDesktop/text/TextParts.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace qtdesktop
{
namespace
{

// In shades of grey: the surfaces know nothing of how the screen's colours lie.
QFont UiFont(QFont font, toolkit::FontStyle style, toolkit::PixelScale scale)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale.Factor());
    else
        font.setPixelSize(scale.ToPixels(font.pixelSize()));
    font.setBold(style == toolkit::FontStyle::Bold);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

int HeightOf(const QFont& font)
{
    return BaselineOf(font) + static_cast<int>(std::ceil(QFontMetricsF(font).descent()));
}

// The least coordinates that hold so many pixels.
int RoomFor(int pixels, toolkit::PixelScale scale)
{
    return static_cast<int>(std::ceil(pixels / scale.Factor()));
}

} // namespace

QtTextEngine::Faces::Faces(const QFont& font, toolkit::PixelScale itsScale)
    : scale(itsScale),
      regular(UiFont(font, toolkit::FontStyle::Regular, scale)),
      bold(UiFont(font, toolkit::FontStyle::Bold, scale)),
      nLineHeight(std::max({HeightOf(UiFont(font, toolkit::FontStyle::Regular, scale)),
                            HeightOf(UiFont(font, toolkit::FontStyle::Bold, scale)), 1}))
{}

QtTextEngine::Faces& QtTextEngine::FacesAt(toolkit::PixelScale scale) const
{
    const auto known = std::ranges::find_if(m_faces, [scale](const auto& pFaces) { return pFaces->scale == scale; });
    return known != m_faces.end() ? **known : *m_faces.emplace_back(std::make_unique<Faces>(m_font, scale));
}

int QtTextEngine::LineHeight() const
{
    const Faces& faces = FacesAt(toolkit::ScreenScale());
    return RoomFor(faces.nLineHeight, faces.scale);
}

int QtTextEngine::Measure(std::string_view text, toolkit::FontStyle style)
{
    Faces& faces = FacesAt(toolkit::ScreenScale());
    Face& face = faces.Of(style);
    const std::optional<int> width = face.simple.Measure(text);
    return RoomFor(width ? *width : face.layout.Measure(text), faces.scale);
}

std::vector<toolkit::CharacterPlace> QtTextEngine::Places(std::string_view text, std::span<const std::size_t> starts,
                                                          toolkit::FontStyle style)
{
    Faces& faces = FacesAt(toolkit::ScreenScale());
    Face& face = faces.Of(style);
    auto simple = face.simple.Places(text, starts);
    std::vector<toolkit::CharacterPlace> places = simple ? *std::move(simple) : face.layout.Places(text, starts);
    for (toolkit::CharacterPlace& place : places)
        place = {RoomFor(place.leading, faces.scale), RoomFor(place.trailing, faces.scale)};
    return places;
}

void QtTextEngine::Draw(toolkit::Surface& target, const CRect& clip, CPoint at, std::string_view text, COLORREF color,
                        toolkit::FontStyle style)
{
    const CRect seen = clip & target.Bounds();
    if (seen.IsRectEmpty())
        return;
    Face& face = FacesAt(target.Scale()).Of(style);
    if (!face.simple.Draw(target, seen, at, text, color))
        face.layout.Draw(target, seen, at, text, color);
}

} // namespace qtdesktop
