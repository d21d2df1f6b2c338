#include "Toolkit/window/WindowPlacing.h"

#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/window/DesktopNews.h"

#include <algorithm>
#include <utility>

void toolkit::PlaceWindow(HWND hWnd, const CRect& rect)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->rect == rect)
        return;
    const CRect former = std::exchange(pWindow->rect, rect);
    const bool bSized = !(former.Size() == rect.Size());
    if (pWindow->pParent && IsShown(*pWindow))
        InvalidateExposed(*pWindow->pParent, former);
    if (bSized || pWindow->pParent)
        InvalidateWhole(*pWindow);

    if (!(former.TopLeft() == rect.TopLeft()))
        SendMessage(hWnd, WM_MOVE, 0, MAKELPARAM(rect.left, rect.top));
    if (bSized)
        SendSize(hWnd);
}

BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy)
{
    const toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    const CRect rect({x, y}, {std::max(cx, 0), std::max(cy, 0)});
    if (pWindow->rect == rect)
        return TRUE;
    toolkit::PlaceWindow(hWnd, rect);
    toolkit::TellDesktopOfPlace(hWnd);
    return TRUE;
}
