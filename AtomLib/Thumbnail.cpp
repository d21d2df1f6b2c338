#include "AtomLib/AtomLib.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/Transparency.h"

namespace
{

// What is seen of the picture at that size.
toolkit::Surface Scaled(const toolkit::Surface& picture, const toolkit::Surface* pMask, CSize size)
{
    return pMask ? toolkit::ScaleSurface(toolkit::WithMask(picture, *pMask), size)
                 : toolkit::ScaleSurface(picture, size);
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
    const toolkit::Surface scaled = Scaled(*pPicture, pMask, size);
    if (!toolkit::DrawSurface(hdc, at, scaled, scaled.Bounds()))
        return 0;
    if (pOffset)
        *pOffset = at - rect.TopLeft();
    return 1;
}
