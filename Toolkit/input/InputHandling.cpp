#include "Toolkit/input/InputHandling.h"

#include "Toolkit/focus/Focus.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/focus/ModalInput.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/input/MouseInput.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/WindowSettings.h"
#include "Toolkit/window/Wnd.h"

#include <limits>

namespace
{
using toolkit::InputEvent;
using toolkit::InputKind;

constexpr UINT kFirstKeyMessage = WM_KEYDOWN;
constexpr UINT kLastKeyMessage = 0x0108;

// The focus window and then its ancestors may swallow the message before it is handled.
bool IsSwallowed(MSG& msg)
{
    for (HWND hWnd = msg.hwnd; hWnd; hWnd = GetParent(hWnd)) {
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(&msg))
            return true;
    }
    return false;
}

// The control character that a key stands for: 0 for one that types nothing or comes as text.
UINT ControlCharacter(UINT vkey)
{
    const bool bControl = toolkit::IsKeyDown(VK_CONTROL);
    if (toolkit::IsKeyDown(VK_MENU))
        return 0;
    if (bControl && vkey >= 'A' && vkey <= 'Z')
        return vkey - 'A' + 1;
    switch (vkey) {
    case VK_BACK:
        return bControl ? 0x7F : vkey;
    case VK_TAB:
    case VK_ESCAPE:
        return bControl ? 0 : vkey;
    case VK_RETURN:
        return bControl ? '\n' : vkey;
    default:
        return 0;
    }
}

// Keys with Alt are the menu's, and so are Alt itself and F10.
bool IsSystemKey(UINT vkey)
{
    const bool bAlt = toolkit::IsKeyDown(VK_MENU) && !toolkit::IsKeyDown(VK_CONTROL);
    return bAlt || vkey == VK_F10 || vkey == VK_MENU;
}

LPARAM KeyInfo(bool bDown, bool bWasDown)
{
    constexpr LONG kOnce = 1, kWasDown = 1 << 30, kReleased = std::numeric_limits<LONG>::min();
    return kOnce | (bWasDown ? kWasDown : 0) | (bDown ? 0 : kReleased);
}

HWND KeyTarget()
{
    const HWND hFocus = GetFocus();
    return toolkit::ModalInput::Admits(hFocus) ? hFocus : toolkit::ModalInput::Window();
}

void HandleKey(const InputEvent& event)
{
    toolkit::SetModifiersDown(event.modifiers);
    const bool bWasDown = toolkit::SetKeyDown(event.value, event.down);
    const bool bSystem = IsSystemKey(event.value);
    const UINT down = bSystem ? WM_SYSKEYDOWN : WM_KEYDOWN;
    const UINT up = bSystem ? WM_SYSKEYUP : WM_KEYUP;
    MSG msg{KeyTarget(), event.down ? down : up, event.value, KeyInfo(event.down, bWasDown)};
    if (!msg.hwnd || IsSwallowed(msg))
        return;
    const UINT character = event.down ? ControlCharacter(event.value) : 0;
    if (character != 0)
        PostMessage(msg.hwnd, WM_CHAR, character, msg.lParam);
    SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}

void HandleCharacter(const InputEvent& event)
{
    MSG msg{KeyTarget(), WM_CHAR, event.value, KeyInfo(true, false)};
    if (msg.hwnd && !IsSwallowed(msg))
        SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}

void Activate(const InputEvent& event)
{
    if (!event.down)
        toolkit::ReleaseAllKeys(); // what is released elsewhere is not told here
    toolkit::SetActive(event.hTop, event.down);
    SendMessage(event.hTop, WM_ACTIVATE, event.down ? WA_ACTIVE : WA_INACTIVE, 0);
}

void Place(const InputEvent& event)
{
    const toolkit::WindowRecord* pTop = toolkit::FindRecord(event.hTop);
    if (!pTop || !pTop->IsTop())
        return;
    const bool bMoved = event.kind == InputKind::Moved;
    const CPoint topLeft = bMoved ? event.at : pTop->rect.TopLeft();
    const CSize size = bMoved ? pTop->rect.Size() : CSize(event.at.x, event.at.y);
    toolkit::PlaceWindow(event.hTop, {topLeft, size});
}

void Close(HWND hTop)
{
    if (!toolkit::ModalInput::IsOn()) {
        SendMessage(hTop, WM_CLOSE, 0, 0);
        return;
    }
    PostMessage(hTop, WM_CLOSE, 0, 0);
    SendMessage(toolkit::ModalInput::Window(), WM_CLOSE, 0, 0);
}

void Handle(const InputEvent& event)
{
    switch (event.kind) {
    case InputKind::MouseMove:
    case InputKind::MouseButton:
    case InputKind::MouseWheel:
    case InputKind::MouseLeave:
        return toolkit::HandleMouse(event);
    case InputKind::Key:
        return HandleKey(event);
    case InputKind::Character:
        return HandleCharacter(event);
    case InputKind::Activate:
        return Activate(event);
    case InputKind::Resize:
    case InputKind::Moved:
        return Place(event);
    case InputKind::Close:
        return Close(event.hTop);
    }
}
} // namespace

bool toolkit::RunOneInput()
{
    const std::optional<InputEvent> event = TakeInput();
    if (!event)
        return false;
    UpdateWake();
    Handle(*event);
    return true;
}

void toolkit::ResetInput()
{
    DropInput();
    ReleaseAllKeys();
    ResetMouse();
}

void toolkit::DispatchPosted(MSG msg)
{
    const bool bKey = msg.message >= kFirstKeyMessage && msg.message <= kLastKeyMessage;
    if (!bKey || !IsSwallowed(msg))
        SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}
