#include "Toolkit/focus/Focus.h"

#include "Toolkit/focus/Capture.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

HWND s_hFocus = nullptr;
unsigned s_nMoves = 0; // tells whether a handler moved the focus meanwhile

bool CanHaveFocus(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow && toolkit::IsAlive(*pWindow);
}

bool HasFocusWithin(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return s_hFocus && pWindow && toolkit::IsSelfOrChild(*pWindow, FindRecord(s_hFocus));
}

// So that the top-level window can give the focus back when the user comes back to it.
void RememberFocus()
{
    if (const WindowRecord* pFocus = FindRecord(s_hFocus))
        toolkit::TopOf(*pFocus).hLastFocus = s_hFocus;
}

HWND MoveFocus(HWND hWnd)
{
    const HWND hFormer = s_hFocus;
    if (hFormer == hWnd)
        return hFormer;
    s_hFocus = hWnd;
    const unsigned nMove = ++s_nMoves;
    SendMessage(hFormer, WM_KILLFOCUS, reinterpret_cast<WPARAM>(hWnd), 0);
    if (nMove == s_nMoves)
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
    return s_hFocus;
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
    if (s_hFocus == hWnd)
        s_hFocus = nullptr;
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
