#include "HostKit/pictures/Look.h"

#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/WindowApi.h"

namespace hostkit
{
COLORREF MixSysColors(int nFirst, int nSecond, int percent)
{
    const COLORREF a = GetSysColor(nFirst), b = GetSysColor(nSecond);
    const auto channel = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    return RGB(channel(GetRValue(a), GetRValue(b)), channel(GetGValue(a), GetGValue(b)),
               channel(GetBValue(a), GetBValue(b)));
}

COLORREF LineColor()
{
    return MixSysColors(COLOR_WINDOW, COLOR_BTNSHADOW, 40);
}

COLORREF PressedColor()
{
    return MixSysColors(COLOR_WINDOW, COLOR_HIGHLIGHT, 24);
}

void DrawTextLine(HDC hdc, const CRect& rect, std::string_view text, COLORREF color, Align align,
                  toolkit::FontStyle style)
{
    if (rect.IsRectEmpty())
        return;
    const std::string shown = toolkit::Ellipsize(text, rect.Width(), style);
    const int spare = align == Align::Left ? 0 : rect.Width() - TextWidth(shown, style);
    const int left = rect.left + std::max(0, align == Align::Center ? spare / 2 : spare);
    const int top = rect.top + (rect.Height() - toolkit::CurrentTextEngine().LineHeight()) / 2;
    const int nSaved = SaveDC(hdc);
    IntersectClipRect(hdc, rect);
    SetTextColor(hdc, color);
    SetFontStyle(hdc, style);
    TextOut(hdc, left, top, shown);
    RestoreDC(hdc, nSaved);
}

int TextWidth(std::string_view text, toolkit::FontStyle style)
{
    return toolkit::CurrentTextEngine().Measure(text, style);
}

BOOL DrawCentred(HDC hdc, const CRect& rect, const toolkit::Surface& picture)
{
    return toolkit::DrawSurface(hdc, toolkit::Centred(picture.Size(), rect), picture);
}

void DrawChecks(HDC hdc, const CRect& rect)
{
    const COLORREF dark = MixSysColors(COLOR_WINDOW, COLOR_BTNSHADOW, 30);
    FillSolidRect(hdc, rect, GetSysColor(COLOR_WINDOW));
    for (int y = rect.top; y < rect.bottom; y += kSpace)
        for (int x = rect.left + (y - rect.top) % (2 * kSpace); x < rect.right; x += 2 * kSpace)
            FillSolidRect(hdc, {x, y, std::min<int>(x + kSpace, rect.right), std::min<int>(y + kSpace, rect.bottom)},
                          dark);
}

} // namespace hostkit
