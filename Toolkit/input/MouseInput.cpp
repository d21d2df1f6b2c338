#include "Toolkit/input/MouseInput.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/DoubleClick.h"
#include "Toolkit/focus/Focus.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/focus/ModalInput.h"
#include "Toolkit/handle/HitTest.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/scroll/ScrollTracker.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::InputEvent;
using toolkit::InputKind;
using toolkit::MouseButton;
using toolkit::MouseTarget;

struct
{
    HWND hOver = nullptr; // whose client area the mouse is over, or was when it went
    toolkit::DoubleClick doubleClick;
} s_mouse;

UINT ButtonMessage(MouseButton button, bool bDown, bool bSecond)
{
    const UINT down = button == MouseButton::Left    ? WM_LBUTTONDOWN
                      : button == MouseButton::Right ? WM_RBUTTONDOWN
                                                     : WM_MBUTTONDOWN;
    if (!bDown)
        return down + (WM_LBUTTONUP - WM_LBUTTONDOWN);
    return bSecond ? down + (WM_LBUTTONDBLCLK - WM_LBUTTONDOWN) : down;
}

void SetOver(HWND hWnd)
{
    const HWND hFormer = std::exchange(s_mouse.hOver, hWnd);
    if (hFormer == hWnd || (!hWnd && !IsWindow(hFormer)))
        return;
    SendMessage(hFormer, WM_MOUSELEAVE, 0, 0);
    toolkit::CurrentDesktop().ShowCursor(toolkit::Cursor::Arrow); // until the window wants another
}

void SendMouse(HWND hWnd, UINT message)
{
    CPoint client = toolkit::CursorPos();
    ScreenToClient(hWnd, &client);
    SendMessage(hWnd, message, toolkit::MouseKeyFlags(), MAKELPARAM(client.x, client.y));
}

// To whatever lies under the mouse, which need not have the focus.
void Wheel(const InputEvent& event, const MouseTarget& target)
{
    const auto wParam =
        static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(static_cast<int>(toolkit::MouseKeyFlags()), event.delta)));
    const CPoint cursor = toolkit::CursorPos();
    SendMessage(target.hWnd, WM_MOUSEWHEEL, wParam, MAKELPARAM(cursor.x, cursor.y));
}

void SendToWindow(HWND hWnd, const InputEvent& event)
{
    if (event.kind == InputKind::MouseMove)
        return SendMouse(hWnd, WM_MOUSEMOVE);
    const bool bSecond =
        event.down && s_mouse.doubleClick.IsSecond(hWnd, event.button, toolkit::CursorPos(), event.time);
    SendMouse(hWnd, ButtonMessage(event.button, event.down, bSecond));
}

// The mouse is over a border or a scroll bar, which the window itself does not see.
void HandleOnFrame(HWND hWnd, const InputEvent& event)
{
    const bool bPress = event.kind == InputKind::MouseButton && event.down && event.button == MouseButton::Left;
    if (bPress)
        toolkit::PressScrollBar(hWnd, toolkit::CursorPos());
}

void TakeNote(const InputEvent& event)
{
    toolkit::SetModifiersDown(event.modifiers);
    if (event.kind == InputKind::MouseButton)
        toolkit::SetKeyDown(toolkit::KeyOfButton(event.button), event.down);
    if (const toolkit::WindowRecord* pTop = FindRecord(event.hTop))
        toolkit::SetCursorPos(event.at + toolkit::SurfaceToScreen(*pTop));
}

// Scroll bars are for looking around, which may always be done.
bool Passes(const toolkit::MouseTarget& target, const InputEvent& event)
{
    const bool bPressed = event.kind == InputKind::MouseMove ? GetCapture() != nullptr : event.down;
    return !bPressed || !target.bClient || toolkit::ModalInput::Admits(target.hWnd);
}

void LeaveTop(HWND hTop)
{
    if (GetCapture())
        return;
    toolkit::HoverScrollBars(nullptr, {});
    if (s_mouse.hOver == hTop || IsChild(hTop, s_mouse.hOver))
        SetOver(nullptr);
}
} // namespace

void toolkit::HandleMouse(const InputEvent& event)
{
    if (event.kind == InputKind::MouseLeave)
        return LeaveTop(event.hTop);
    if (!FindRecord(event.hTop))
        return;
    TakeNote(event);
    const bool bWheel = event.kind == InputKind::MouseWheel;
    if (IsTrackingScrollBar() && !bWheel)
        return TrackScrollBar(event, CursorPos());

    const HWND hCapture = GetCapture();
    const MouseTarget target = hCapture ? MouseTarget{hCapture, true} : FindMouseTarget(event.hTop, CursorPos());
    HoverScrollBars(target.bClient ? nullptr : target.hWnd, CursorPos());
    SetOver(target.bClient ? target.hWnd : nullptr);
    if (event.kind == InputKind::MouseMove && !hCapture)
        SendMessage(s_mouse.hOver, WM_SETCURSOR, reinterpret_cast<WPARAM>(s_mouse.hOver), 0);
    if (!Passes(target, event))
        return;
    if (bWheel)
        Wheel(event, target);
    else if (target.bClient)
        SendToWindow(target.hWnd, event);
    else if (target.hWnd)
        HandleOnFrame(target.hWnd, event);
}

void toolkit::ResetMouse()
{
    SetCursorPos({});
    s_mouse.hOver = nullptr;
    ForgetLastPress();
}

void toolkit::ForgetLastPress()
{
    s_mouse.doubleClick.Forget();
}
