#include "Toolkit/handle/WindowQueries.h"

#include "Toolkit/handle/WindowGeometry.h"

using toolkit::FindRecord;
using toolkit::WindowRecord;

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
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pRect = toolkit::WindowArea(*pWindow) + toolkit::SurfaceToScreen(*pWindow);
    return TRUE;
}

BOOL GetClientRect(HWND hWnd, RECT* pRect)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pRect = toolkit::ClientRect(*pWindow);
    return TRUE;
}

BOOL ClientToScreen(HWND hWnd, POINT* pPoint)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pPoint = CPoint(*pPoint) + toolkit::ClientToScreenOffset(*pWindow);
    return TRUE;
}

BOOL ScreenToClient(HWND hWnd, POINT* pPoint)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pPoint = CPoint(*pPoint) - toolkit::ClientToScreenOffset(*pWindow);
    return TRUE;
}

BOOL IsWindowVisible(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow && toolkit::IsShown(*pWindow);
}
