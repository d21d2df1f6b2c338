#include "Editor/pictures/IconPainter.h"

#include "Editor/pictures/Enlarge.h"
#include "HostKit/pictures/Look.h"
#include "Toolkit/graphics/Pixels.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"

#include <algorithm>

namespace editor
{
namespace
{

constexpr toolkit::Pixel kEdge = 0x50000000;                   // premultiplied, as all here
constexpr toolkit::Pixel kShadow[] = {0x30000000, 0x18000000}; // below and beside, from the edge on
constexpr int kShadowReach = static_cast<int>(std::size(kShadow));
constexpr int kSmallestRead = 48; // each way
constexpr int kPlaceholder = 48;
constexpr int kSmallestPhotograph = 12; // pixels; below this an edge would eat the picture

void Blend(toolkit::Surface& target, const CRect& rect, toolkit::Pixel above)
{
    const CRect inside = rect & target.Bounds();
    for (int y = inside.top; y < inside.bottom; ++y)
        toolkit::BlendRow(target.Row(y) + inside.left, inside.Width(), above);
}

// One pixel wide, on the outermost pixels of the rectangle.
void BlendEdge(toolkit::Surface& target, const CRect& rect, toolkit::Pixel above)
{
    Blend(target, {rect.left, rect.top, rect.right, rect.top + 1}, above);
    Blend(target, {rect.left, rect.bottom - 1, rect.right, rect.bottom}, above);
    Blend(target, {rect.left, rect.top + 1, rect.left + 1, rect.bottom - 1}, above);
    Blend(target, {rect.right - 1, rect.top + 1, rect.right, rect.bottom - 1}, above);
}

void BlendShadow(toolkit::Surface& target, const CRect& rect)
{
    for (int i = 0; i < kShadowReach; ++i) {
        Blend(target, {rect.left + 1 + i, rect.bottom + i, rect.right + 1 + i, rect.bottom + i + 1}, kShadow[i]);
        Blend(target, {rect.right + i, rect.top + 1 + i, rect.right + i + 1, rect.bottom + i}, kShadow[i]);
    }
}

void Place(toolkit::Surface& target, CPoint at, const toolkit::Surface& picture)
{
    for (int y = 0; y < picture.Height(); ++y)
        toolkit::BlendRow(target.Row(at.y + y) + at.x, picture.Row(y), picture.Width());
}

// In pixels. What fits into the room, which is in pixels, is as large in coordinates as it is of its own.
CSize PixelsWithin(CSize own, CSize room, toolkit::PixelScale scale)
{
    const CSize pixels = scale.ToPixels(own);
    return pixels.cx <= room.cx && pixels.cy <= room.cy ? pixels : toolkit::FitInto(own, room);
}

toolkit::Surface Fitted(const toolkit::Surface& picture, CSize pixels, toolkit::PixelScale scale)
{
    toolkit::Surface fitted = pixels == picture.Bounds().Size() ? picture : toolkit::ScaleSurface(picture, pixels);
    fitted.SetScale(scale);
    return fitted;
}

BOOL DrawPicture(HDC hdc, const CRect& rect, const toolkit::Surface& picture)
{
    if (!toolkit::CoversAll(picture)) {
        FillSolidRect(hdc, rect, GetSysColor(COLOR_WINDOW));
        hostkit::DrawChecks(hdc, {toolkit::Centred(picture.Size(), rect), picture.Size()});
    }
    return hostkit::DrawCentred(hdc, rect, picture);
}

// The margin, in pixels, is right and below.
toolkit::Surface PaintInTheMiddle(const toolkit::Surface& picture, CSize size, int margin = 0)
{
    const bool isPhotograph = margin > 0;
    const toolkit::PixelScale scale = toolkit::ScreenScale();
    toolkit::Surface icon(size, scale);
    const CSize room(icon.Width() - margin, icon.Height() - margin);
    const toolkit::Surface scaled = Fitted(picture, PixelsWithin(picture.Size(), room, scale), scale);
    const CRect place(toolkit::Centred(scaled.Bounds().Size(), CRect({}, room)), scaled.Bounds().Size());
    if (isPhotograph)
        BlendShadow(icon, place);
    Place(icon, place.TopLeft(), scaled);
    if (isPhotograph)
        BlendEdge(icon, place, kEdge);
    return icon;
}

int MarkExtent(const CRect& room)
{
    constexpr int kLeast = 16, kMost = 24; // pixels
    const int extent = std::min(room.Width(), room.Height());
    return std::min(extent, std::clamp(extent * 2 / 5, kLeast, kMost));
}

} // namespace

toolkit::Surface PaintPictogram(hostkit::Pictogram which, CSize size)
{
    const toolkit::Surface& picture = hostkit::GetPictogram(which, std::max(1, std::min(size.cx, size.cy)));
    return PaintInTheMiddle(picture, size);
}

CSize PictureSizeFor(CSize icon)
{
    const CSize atLeast(std::max<LONG>(icon.cx, kSmallestRead), std::max<LONG>(icon.cy, kSmallestRead));
    return toolkit::ScreenScale().ToPixels(atLeast);
}

toolkit::Surface PaintPictureIcon(const PictureStore::Answer& answer, CSize size)
{
    if (!answer.pPicture)
        return PaintPictogram(answer.bFailed ? hostkit::Pictogram::BrokenPicture : hostkit::Pictogram::Placeholder,
                              size);
    const toolkit::Surface& picture = *answer.pPicture;
    if (std::min(picture.Width(), picture.Height()) < kSmallestPhotograph || !toolkit::CoversAll(picture))
        return PaintInTheMiddle(picture, size);
    return PaintInTheMiddle(picture, size, kShadowReach);
}

toolkit::Surface WithMark(toolkit::Surface icon, hostkit::Pictogram mark)
{
    const toolkit::Surface& picture = hostkit::GetPictogram(mark, MarkExtent(CRect({}, icon.Size())));
    Place(icon, {0, icon.Height() - picture.Height()}, picture);
    return icon;
}

void DrawMark(HDC hdc, const CRect& rect, hostkit::Pictogram mark)
{
    const toolkit::Surface& picture = hostkit::GetPictogram(mark, MarkExtent(rect));
    toolkit::DrawSurface(hdc, {rect.left, rect.bottom - picture.Size().cy}, picture);
}

BOOL DrawThumbnail(HDC hdc, const CRect& rect, const PictureStore::Answer& answer, bool bEnlarge)
{
    const toolkit::PixelScale scale = toolkit::ScaleOf(hdc);
    const CSize room = scale.ToPixels(rect.Size());
    const auto fitted = [&](const toolkit::Surface& picture, CSize size) {
        return Fitted(picture, PixelsWithin(size, room, scale), scale);
    };
    if (answer.pMeanwhile)
        return DrawPicture(hdc, rect, fitted(*answer.pMeanwhile, answer.fullSize));
    if (!answer.pPicture) {
        const toolkit::Surface& sign = hostkit::GetPictogram(
            answer.bFailed ? hostkit::Pictogram::BrokenPicture : hostkit::Pictogram::Placeholder, kPlaceholder);
        return hostkit::DrawCentred(hdc, rect, fitted(sign, sign.Size()));
    }
    const toolkit::Surface& picture = *answer.pPicture;
    if (!bEnlarge || 2 * picture.Width() > room.cx || 2 * picture.Height() > room.cy)
        return DrawPicture(hdc, rect, fitted(picture, picture.Size()));
    toolkit::Surface large = EnlargePixels(picture, room);
    large.SetScale(scale);
    return DrawPicture(hdc, rect, large);
}

} // namespace editor
