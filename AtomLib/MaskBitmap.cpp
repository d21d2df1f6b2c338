#include "AtomLib/AtomLib.h"
#include "Toolkit/graphics/Transparency.h"

HBITMAP CreateMaskBitmap(HBITMAP hPicture, COLORREF crTransparent)
{
    const toolkit::Surface* pPicture = toolkit::BitmapSurface(hPicture);
    return pPicture ? CreateBitmapFromSurface(toolkit::MaskOfColor(*pPicture, crTransparent)) : nullptr;
}
