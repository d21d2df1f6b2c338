// The small questions and settings of a window.
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/paint/Painting.h"
#include "Toolkit/window/DesktopNews.h"
#include "Toolkit/window/WindowApi.h"

#include <string>

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

// The window's visibility and whether it is enabled have functions of their own, and the scroll bars follow
// SetScrollInfo: those styles are left as they are.
BOOL ModifyStyle(HWND hWnd, DWORD remove, DWORD add)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    constexpr DWORD kKept = WS_VISIBLE | WS_VSCROLL | WS_HSCROLL;
    const DWORD style = ((pWindow->style & ~remove) | add);
    const DWORD changed = (style ^ pWindow->style) & ~kKept;
    if (changed == 0)
        return FALSE;
    const CSize former = toolkit::ClientBox(*pWindow).Size();
    pWindow->style ^= changed;
    toolkit::InvalidateWhole(*pWindow);
    const bool bSized = !(former == toolkit::ClientBox(*pWindow).Size());
    SendMessage(hWnd, WM_STYLECHANGED, 0, 0);
    if (bSized)
        toolkit::SendSize(hWnd);
    return TRUE;
}

BOOL SetWindowText(HWND hWnd, LPCSTR pszText)
{
    return SendMessage(hWnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(pszText ? pszText : "")) != 0;
}

CString GetWindowText(HWND hWnd)
{
    CString text;
    const auto nLength = static_cast<int>(SendMessage(hWnd, WM_GETTEXTLENGTH, 0, 0));
    if (nLength > 0) {
        LPSTR pszBuffer = text.GetBuffer(nLength);
        SendMessage(hWnd, WM_GETTEXT, static_cast<WPARAM>(nLength) + 1, reinterpret_cast<LPARAM>(pszBuffer));
        text.ReleaseBuffer();
    }
    return text;
}
