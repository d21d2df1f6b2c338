#include "Toolkit/window/WindowSettings.h"

#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/window/NativeWindow.h"

// The window's visibility and whether it is enabled have functions of their own, and the scroll bars follow
// SetScrollInfo: those styles are left as they are.
BOOL ModifyStyle(HWND hWnd, DWORD remove, DWORD add)
{
    toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
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

// A handle has 32 bits, whatever the width of a pointer.
DWORD GetClassLong(HWND hWnd, int nIndex)
{
    const toolkit::NativeWindow* pNative = toolkit::FindNativeWindow(hWnd);
    if (!pNative || nIndex != GCL_HBRBACKGROUND)
        return 0;
    return static_cast<DWORD>(reinterpret_cast<UINT_PTR>(pNative->ClassBackground()));
}
