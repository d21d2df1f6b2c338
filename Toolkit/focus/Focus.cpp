#include "Toolkit/focus/Focus.h"

#include "Toolkit/access/WinEvents.h"
#include "Toolkit/focus/Capture.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

struct
{
    HWND hWnd = nullptr;
    unsigned nMoves = 0; // tells whether a handler moved the focus meanwhile
} s_focus;

bool CanHaveFocus(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow && toolkit::IsAlive(*pWindow);
}

bool HasFocusWithin(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return s_focus.hWnd && pWindow && toolkit::IsSelfOrChild(*pWindow, FindRecord(s_focus.hWnd));
}

// So that the top-level window can give the focus back when the user comes back to it.
void RememberFocus()
{
    if (const WindowRecord* pFocus = FindRecord(s_focus.hWnd))
        toolkit::TopOf(*pFocus).hLastFocus = s_focus.hWnd;
}

HWND MoveFocus(HWND hWnd)
{
    const HWND hFormer = s_focus.hWnd;
    if (hFormer == hWnd)
        return hFormer;
    s_focus.hWnd = hWnd;
    const unsigned nMove = ++s_focus.nMoves;
    NotifyWinEvent(EVENT_OBJECT_FOCUS, hWnd, OBJID_CLIENT, CHILDID_SELF);
    SendMessage(hFormer, WM_KILLFOCUS, reinterpret_cast<WPARAM>(hWnd), 0);
    if (nMove == s_focus.nMoves)
        SendMessage(hWnd, WM_SETFOCUS, reinterpret_cast<WPARAM>(hFormer), 0);
    return hFormer;
}
} // namespace

HWND SetFocus(HWND hWnd)
{
    return !hWnd || CanHaveFocus(hWnd) ? MoveFocus(hWnd) : nullptr;
}

HWND GetFocus()
{
    return s_focus.hWnd;
}

void toolkit::PassFocusOn(HWND hWnd)
{
    if (!HasFocusWithin(hWnd))
        return;
    const HWND hParent = GetParent(hWnd);
    MoveFocus(CanHaveFocus(hParent) ? hParent : nullptr);
}

void toolkit::ForgetFocus(HWND hWnd)
{
    if (s_focus.hWnd == hWnd)
        s_focus.hWnd = nullptr;
}

void toolkit::SetActive(HWND hTop, bool bActive)
{
    WindowRecord* pTop = FindRecord(hTop);
    if (!pTop || HasFocusWithin(hTop) == bActive)
        return;
    RememberFocus();
    if (!bActive) {
        ReleaseCaptureWithin(hTop);
        SetFocus(nullptr);
        return;
    }
    RaiseRecord(*pTop);
    const HWND hLast = std::exchange(pTop->hLastFocus, nullptr);
    SetFocus(CanHaveFocus(hLast) && IsWindowVisible(hLast) ? hLast : hTop);
}
