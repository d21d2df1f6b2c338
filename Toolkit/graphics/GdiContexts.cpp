// Device contexts: making and deleting them, selecting bitmaps, the drawing state.
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/GdiObjects.h"

#include <utility>

using toolkit::AllGdiObjects;
using toolkit::Bitmap;
using toolkit::DeviceContext;
using toolkit::FindContext;

HDC toolkit::CreateSurfaceDC(Surface& target, CPoint origin, Region clip)
{
    return AllGdiObjects().contexts.Add(std::make_unique<DeviceContext>(target, origin, std::move(clip)));
}

toolkit::PixelScale toolkit::ScaleOf(HDC hdc)
{
    const DeviceContext* pContext = FindContext(hdc);
    return pContext ? pContext->Scale() : PixelScale();
}

bool toolkit::IsDrawnOn(HDC hdc)
{
    const DeviceContext* pContext = FindContext(hdc);
    return pContext && pContext->IsDrawnOn();
}

HDC CreateCompatibleDC(HDC hdc)
{
    if (hdc && !FindContext(hdc))
        return nullptr;

    const toolkit::PixelScale scale = hdc ? toolkit::ScaleOf(hdc) : toolkit::ScreenScale();
    toolkit::NewBitmap own(toolkit::Surface({1, 1}, scale, toolkit::ToPixel(RGB(0, 0, 0))));
    Bitmap* pOwn = own.Get();
    const HDC hdcNew = pOwn ? toolkit::CreateSurfaceDC(pOwn->surface, {}, toolkit::Region({0, 0, 1, 1})) : nullptr;
    if (!hdcNew)
        return nullptr;
    pOwn->hdcOwner = pOwn->hdcSelected = hdcNew;
    FindContext(hdcNew)->SetOwnBitmap(own.Release());
    return hdcNew;
}

BOOL DeleteDC(HDC hdc)
{
    const std::unique_ptr<DeviceContext> pContext = AllGdiObjects().contexts.Remove(hdc);
    if (!pContext)
        return FALSE;
    if (Bitmap* pSelected = AllGdiObjects().bitmaps.Find(pContext->SelectedBitmap()))
        pSelected->hdcSelected = nullptr;
    AllGdiObjects().bitmaps.Remove(pContext->OwnBitmap());
    return TRUE;
}

HBITMAP SelectBitmap(HDC hdc, HBITMAP hBitmap)
{
    DeviceContext* pContext = FindContext(hdc);
    Bitmap* pBitmap = AllGdiObjects().bitmaps.Find(hBitmap);
    if (!pContext || !pContext->OwnBitmap() || !pBitmap)
        return nullptr;
    if ((pBitmap->hdcSelected && pBitmap->hdcSelected != hdc) || (pBitmap->hdcOwner && pBitmap->hdcOwner != hdc))
        return nullptr;

    const HBITMAP hFormer = pContext->SelectedBitmap();
    pContext->Select(hBitmap, pBitmap->surface);
    if (Bitmap* pFormer = AllGdiObjects().bitmaps.Find(hFormer))
        pFormer->hdcSelected = nullptr;
    pBitmap->hdcSelected = hdc;
    return hFormer;
}

COLORREF SetTextColor(HDC hdc, COLORREF color)
{
    DeviceContext* pContext = FindContext(hdc);
    return pContext ? std::exchange(pContext->State().textColor, color) : static_cast<COLORREF>(-1);
}

toolkit::FontStyle SetFontStyle(HDC hdc, toolkit::FontStyle style)
{
    DeviceContext* pContext = FindContext(hdc);
    return pContext ? std::exchange(pContext->State().fontStyle, style) : toolkit::FontStyle::Regular;
}

BOOL IntersectClipRect(HDC hdc, const RECT& rect)
{
    DeviceContext* pContext = FindContext(hdc);
    if (!pContext)
        return FALSE;
    toolkit::DrawState& state = pContext->State();
    state.clip.Offset(CPoint() - state.origin);
    state.clip.Intersect(rect);
    state.clip.Offset(state.origin);
    return TRUE;
}

BOOL RectVisible(HDC hdc, const RECT& rect)
{
    const DeviceContext* pContext = FindContext(hdc);
    return pContext && pContext->IsVisible(rect);
}

int SaveDC(HDC hdc)
{
    DeviceContext* pContext = FindContext(hdc);
    return pContext ? pContext->Save() : 0;
}

BOOL RestoreDC(HDC hdc, int nSaved)
{
    DeviceContext* pContext = FindContext(hdc);
    return pContext && pContext->Restore(nSaved);
}
