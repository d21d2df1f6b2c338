#include "Toolkit/window/Visibility.h"

#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/Focus.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/window/DesktopNews.h"

using toolkit::FindRecord;
using toolkit::WindowRecord;

void toolkit::SetVisible(HWND hWnd, bool bShow)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->Is(WS_VISIBLE) == bShow)
        return;
    pWindow->style ^= WS_VISIBLE;
    if (bShow)
        InvalidateWhole(*pWindow);
    else if (pWindow->pParent)
        InvalidateExposed(*pWindow->pParent, pWindow->rect);
    TellDesktopOfChange(hWnd);
    if (!bShow) {
        PassFocusOn(hWnd);
        ReleaseCaptureWithin(hWnd);
    }
}

BOOL ShowWindow(HWND hWnd, int nShow)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    const bool bWas = pWindow->Is(WS_VISIBLE);
    const bool bShow = nShow != SW_HIDE;
    if (bWas != bShow) {
        SendMessage(hWnd, WM_SHOWWINDOW, bShow, 0);
        toolkit::SetVisible(hWnd, bShow);
    }
    return bWas;
}
