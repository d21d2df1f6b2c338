#include "Toolkit/handle/WindowQueries.h"

#include "Toolkit/handle/WindowGeometry.h"

using toolkit::FindRecord;
using toolkit::WindowRecord;

namespace
{
template <class Ask>
BOOL IfThere(HWND hWnd, Ask ask)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    if (pWindow)
        ask(*pWindow);
    return pWindow != nullptr;
}
} // namespace

BOOL IsWindow(HWND hWnd)
{
    return FindRecord(hWnd) != nullptr;
}

HWND GetParent(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow && pWindow->pParent ? pWindow->pParent->hWnd : nullptr;
}

BOOL IsChild(HWND hAncestor, HWND hWnd)
{
    const WindowRecord* pAncestor = FindRecord(hAncestor);
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pAncestor && pWindow && toolkit::IsSelfOrChild(*pAncestor, pWindow->pParent);
}

HWND GetTopLevel(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? toolkit::TopOf(*pWindow).hWnd : nullptr;
}

UINT GetDlgCtrlID(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? pWindow->nID : 0;
}

DWORD GetWindowStyle(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? pWindow->style : 0;
}

DWORD GetWindowExStyle(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? pWindow->exStyle : 0;
}

BOOL GetWindowRect(HWND hWnd, RECT* pRect)
{
    return IfThere(hWnd, [=](const WindowRecord& window) {
        *pRect = toolkit::WindowArea(window) + toolkit::SurfaceToScreen(window);
    });
}

BOOL GetClientRect(HWND hWnd, RECT* pRect)
{
    return IfThere(hWnd, [=](const WindowRecord& window) { *pRect = toolkit::ClientRect(window); });
}

BOOL ClientToScreen(HWND hWnd, POINT* pPoint)
{
    return IfThere(
        hWnd, [=](const WindowRecord& window) { *pPoint = CPoint(*pPoint) + toolkit::ClientToScreenOffset(window); });
}

BOOL ScreenToClient(HWND hWnd, POINT* pPoint)
{
    return IfThere(
        hWnd, [=](const WindowRecord& window) { *pPoint = CPoint(*pPoint) - toolkit::ClientToScreenOffset(window); });
}

BOOL IsWindowVisible(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow && toolkit::IsShown(*pWindow);
}
