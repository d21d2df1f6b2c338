// Drawing: each function finds its device context and draws the parts that the clip lets through.
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/GdiObjects.h"
#include "Toolkit/graphics/Pixels.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"

#include <optional>

using toolkit::AllGdiObjects;
using toolkit::DeviceContext;
using toolkit::FindContext;
using toolkit::Pixel;
using toolkit::PixelScale;
using toolkit::Surface;

namespace
{

// Calls draw(first pixel, count) for each visible row of the rectangle.
template <class Draw>
void VisitRows(const DeviceContext& context, const CRect& rect, Draw draw)
{
    context.VisitVisible(rect, [&](const CRect& part) {
        for (int y = part.top; y < part.bottom; ++y)
            draw(context.Target().Row(y) + part.left, part.Width());
    });
}

int Clamp(std::int64_t coordinate)
{
    return static_cast<int>(std::clamp<std::int64_t>(coordinate, INT32_MIN, INT32_MAX));
}

// A rectangle by its corner and size, its edges kept within what a coordinate can hold.
CRect Place(std::int64_t x, std::int64_t y, CSize size)
{
    return {Clamp(x), Clamp(y), Clamp(x + size.cx), Clamp(y + size.cy)};
}

// A handle is never so small as a system colour's index.
std::optional<COLORREF> ColorOf(HBRUSH hBrush)
{
    constexpr UINT_PTR kMostColors = 256;
    const auto index = reinterpret_cast<UINT_PTR>(hBrush);
    if (index > 0 && index <= kMostColors)
        return GetSysColor(static_cast<int>(index) - 1);
    const toolkit::Brush* pBrush = AllGdiObjects().brushes.Find(hBrush);
    return pBrush ? std::optional(pBrush->color) : std::nullopt;
}

// The outermost coordinates of a rectangle, none of them twice.
std::vector<CRect> EdgeOf(const CRect& rect)
{
    toolkit::Region edge(rect);
    if (!edge.IsEmpty())
        edge.Subtract({rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1});
    return edge.Rects();
}

// The picture at the scale that is drawn at. Its edges lie where those of a rectangle would.
Surface Resampled(const Surface& picture, CPoint corner, PixelScale scale)
{
    const CRect place = scale.ToPixels(CRect(corner, picture.Size()));
    Surface resampled = toolkit::ScaleSurface(picture, place.Size());
    resampled.SetScale(scale);
    return resampled;
}

// Every pixel whose column and row add up to an even or, if `odd`, to an odd number.
void InvertDots(Surface& target, const CRect& part, int odd)
{
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left + ((part.left ^ y ^ odd) & 1); x < part.right; x += 2)
            target.Row(y)[x] = toolkit::Inverted(target.At(x, y));
}

} // namespace

BOOL FillSolidRect(HDC hdc, const RECT& rect, COLORREF color)
{
    const DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return FALSE;
    const Pixel pixel = toolkit::ToPixel(color);
    VisitRows(*pContext, rect, [pixel](Pixel* row, int count) { toolkit::FillRow(row, count, pixel); });
    return TRUE;
}

BOOL FillRect(HDC hdc, const RECT& rect, HBRUSH hBrush)
{
    const std::optional<COLORREF> color = ColorOf(hBrush);
    return color && FillSolidRect(hdc, rect, *color);
}

BOOL BlendRect(HDC hdc, const RECT& rect, COLORREF color, BYTE alpha)
{
    const DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return FALSE;
    const Pixel pixel = toolkit::ScalePixel(toolkit::ToPixel(color), alpha);
    VisitRows(*pContext, rect, [pixel](Pixel* row, int count) { toolkit::BlendRow(row, count, pixel); });
    return TRUE;
}

// The top left corner is always a dot, so that the dots move with the rectangle.
BOOL DrawFocusRect(HDC hdc, const RECT& rect)
{
    const DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return FALSE;
    const CPoint corner = pContext->Scale().ToPixels(CPoint(rect.left, rect.top) + pContext->Origin());
    const int odd = corner.x ^ corner.y;
    for (const CRect& side : EdgeOf(rect))
        pContext->VisitVisible(side, [&](const CRect& part) { InvertDots(pContext->Target(), part, odd); });
    return TRUE;
}

BOOL TextOut(HDC hdc, int x, int y, std::string_view text)
{
    DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return FALSE;
    toolkit::TextEngine& engine = toolkit::CurrentTextEngine();
    const toolkit::DrawState& state = pContext->State();
    // To the right without end, and a little to the left, where a glyph may overhang.
    const int height = engine.LineHeight();
    const CRect line = Place(std::int64_t{x} - height, y, {INT32_MAX, height});
    const CPoint at = pContext->Scale().ToPixels(
        Place(std::int64_t{x} + state.origin.x, std::int64_t{y} + state.origin.y, {}).TopLeft());
    pContext->VisitVisible(line, [&](const CRect& part) {
        engine.Draw(pContext->Target(), part, at, text, state.textColor, state.fontStyle);
    });
    return TRUE;
}

CSize GetTextExtent(HDC hdc, std::string_view text)
{
    DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return {};
    toolkit::TextEngine& engine = toolkit::CurrentTextEngine();
    return {engine.Measure(text, pContext->State().fontStyle), engine.LineHeight()};
}

BOOL toolkit::DrawSurface(HDC hdc, CPoint at, const Surface& picture, const CRect& part)
{
    const DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return FALSE;
    const CPoint origin = pContext->Origin();
    if (picture.Scale() != pContext->Scale() && !picture.IsEmpty())
        return DrawSurface(hdc, at, Resampled(Crop(picture, part), at + origin, pContext->Scale()));
    const CRect inside = part & picture.Bounds();
    const CPoint corner =
        pContext->Scale().ToPixels(Place(std::int64_t{at.x} + origin.x, std::int64_t{at.y} + origin.y, {}).TopLeft());
    const CRect place = Place(std::int64_t{corner.x} + inside.left - part.left,
                              std::int64_t{corner.y} + inside.top - part.top, inside.Size());
    pContext->VisitVisiblePixels(place, [&](const CRect& visible) {
        const CPoint shift = inside.TopLeft() - place.TopLeft();
        for (int y = visible.top; y < visible.bottom; ++y)
            BlendRow(pContext->Target().Row(y) + visible.left, picture.Row(y + shift.y) + visible.left + shift.x,
                     visible.Width());
    });
    return TRUE;
}

BOOL toolkit::DrawSurface(HDC hdc, CPoint at, const Surface& picture)
{
    return DrawSurface(hdc, at, picture, picture.Bounds());
}
