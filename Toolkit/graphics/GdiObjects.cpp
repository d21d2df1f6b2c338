#include "Toolkit/graphics/GdiObjects.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/Transparency.h"

toolkit::GdiObjects& toolkit::AllGdiObjects()
{
    static GdiObjects& objects = *new GdiObjects;
    return objects;
}

int toolkit::CountGdiObjects()
{
    const GdiObjects& all = AllGdiObjects();
    return all.bitmaps.GetCount() + all.brushes.GetCount() + all.icons.GetCount() + all.contexts.GetCount() +
           all.imageLists.GetCount();
}

HBITMAP CreateBitmapFromSurface(toolkit::Surface surface)
{
    return toolkit::NewBitmap(std::move(surface)).Release();
}

HBITMAP CreateCompatibleBitmap(HDC hdc, int cx, int cy)
{
    if (!toolkit::FindContext(hdc) || cx <= 0 || cy <= 0)
        return nullptr;
    return CreateBitmapFromSurface(toolkit::Surface({cx, cy}, toolkit::ScaleOf(hdc), toolkit::ToPixel(RGB(0, 0, 0))));
}

BOOL DeleteBitmap(HBITMAP hBitmap)
{
    auto& bitmaps = toolkit::AllGdiObjects().bitmaps;
    const toolkit::Bitmap* pBitmap = bitmaps.Find(hBitmap);
    if (!pBitmap || pBitmap->hdcSelected || pBitmap->hdcOwner)
        return FALSE;
    return bitmaps.Remove(hBitmap) != nullptr;
}

toolkit::Surface* toolkit::BitmapSurface(HBITMAP hBitmap)
{
    Bitmap* pBitmap = AllGdiObjects().bitmaps.Find(hBitmap);
    return pBitmap ? &pBitmap->surface : nullptr;
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    return toolkit::AllGdiObjects().brushes.Add(std::make_unique<toolkit::Brush>(toolkit::Brush{color}));
}

BOOL DeleteBrush(HBRUSH hBrush)
{
    return toolkit::AllGdiObjects().brushes.Remove(hBrush) != nullptr;
}

HICON CreateIconFromSurface(toolkit::Surface surface)
{
    return toolkit::AllGdiObjects().icons.Add(std::make_unique<toolkit::Icon>(toolkit::Icon{std::move(surface)}));
}

BOOL DestroyIcon(HICON hIcon)
{
    return toolkit::AllGdiObjects().icons.Remove(hIcon) != nullptr;
}

BOOL GetIconInfo(HICON hIcon, ICONINFO* pInfo)
{
    const toolkit::Surface* pSurface = toolkit::IconSurface(hIcon);
    if (!pSurface || !pInfo)
        return FALSE;
    toolkit::NewBitmap mask(toolkit::MaskOfAlpha(*pSurface)), color(*pSurface);
    const CSize size = pSurface->Size();
    *pInfo = {TRUE, static_cast<DWORD>(size.cx / 2), static_cast<DWORD>(size.cy / 2), mask.Release(), color.Release()};
    return TRUE;
}

const toolkit::Surface* toolkit::IconSurface(HICON hIcon)
{
    const Icon* pIcon = AllGdiObjects().icons.Find(hIcon);
    return pIcon ? &pIcon->surface : nullptr;
}
