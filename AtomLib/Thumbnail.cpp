#include "AtomLib/AtomLib.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/Transparency.h"

namespace
{

// What is seen of the picture at that size.
toolkit::Surface Scaled(const toolkit::Surface& picture, const toolkit::Surface* pMask, CSize size,
                        toolkit::PixelScale scale)
{
    const CSize pixels = scale.ToPixels(size);
    toolkit::Surface scaled = pMask ? toolkit::ScaleSurface(toolkit::WithMask(picture, *pMask), pixels)
                                    : toolkit::ScaleSurface(picture, pixels);
    scaled.SetScale(scale);
    return scaled;
}

} // namespace

int DrawThumbnailProportional(HDC hdc, CRect& rect, HBITMAP hPicture, HBITMAP hMask, HBRUSH hBrush, CPoint* pOffset)
{
    const toolkit::Surface* pPicture = toolkit::BitmapSurface(hPicture);
    const toolkit::Surface* pMask = toolkit::BitmapSurface(hMask);
    if (!pPicture || pPicture->IsEmpty() || rect.IsRectEmpty())
        return 0;
    if (hMask && (!pMask || pMask->Bounds() != pPicture->Bounds()))
        return 0;
    if (hBrush && !FillRect(hdc, rect, hBrush))
        return 0;

    const CSize size = toolkit::FitInto(pPicture->Bounds().Size(), rect.Size());
    const CPoint at = toolkit::Centred(size, rect);
    if (!toolkit::DrawSurface(hdc, at, Scaled(*pPicture, pMask, size, toolkit::ScaleOf(hdc))))
        return 0;
    if (pOffset)
        *pOffset = at - rect.TopLeft();
    return 1;
}
