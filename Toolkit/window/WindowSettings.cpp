#include "Toolkit/window/WindowSettings.h"

#include "Toolkit/access/WinEvents.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/Focus.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/window/NativeWindow.h"

#include <algorithm>
#include <utility>

using toolkit::FindRecord;
using toolkit::WindowRecord;

namespace
{
bool IsKnownToDesktop(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow && pWindow->bKnownToDesktop;
}
} // namespace

void toolkit::TellDesktopOfChange(HWND hWnd)
{
    if (IsKnownToDesktop(hWnd))
        CurrentDesktop().WindowChanged(hWnd);
}

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
    NotifyWinEvent(bShow ? EVENT_OBJECT_SHOW : EVENT_OBJECT_HIDE, hWnd, OBJID_CLIENT, CHILDID_SELF);
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
    const WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    const CRect rect({x, y}, {std::max(cx, 0), std::max(cy, 0)});
    if (pWindow->rect == rect)
        return TRUE;
    toolkit::PlaceWindow(hWnd, rect);
    if (IsKnownToDesktop(hWnd))
        toolkit::CurrentDesktop().WindowPlaced(hWnd);
    return TRUE;
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

// A handle has 32 bits, whatever the width of a pointer.
DWORD GetClassLong(HWND hWnd, int nIndex)
{
    const toolkit::NativeWindow* pNative = toolkit::FindNativeWindow(hWnd);
    if (!pNative || nIndex != GCL_HBRBACKGROUND)
        return 0;
    return static_cast<DWORD>(reinterpret_cast<UINT_PTR>(pNative->ClassBackground()));
}
