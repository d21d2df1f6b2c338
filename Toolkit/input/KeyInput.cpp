#include "Toolkit/input/KeyInput.h"

#include "Toolkit/focus/Focus.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/window/Wnd.h"

#include <limits>

namespace
{
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
} // namespace

void toolkit::DispatchPosted(MSG msg)
{
    const bool bKey = msg.message >= kFirstKeyMessage && msg.message <= kLastKeyMessage;
    if (!bKey || !IsSwallowed(msg))
        SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}

void toolkit::HandleKey(const InputEvent& event)
{
    SetModifiersDown(event.modifiers);
    const bool bWasDown = SetKeyDown(event.value, event.down);
    const bool bSystem = IsSystemKey(event.value);
    const UINT down = bSystem ? WM_SYSKEYDOWN : WM_KEYDOWN;
    const UINT up = bSystem ? WM_SYSKEYUP : WM_KEYUP;
    MSG msg{GetFocus(), event.down ? down : up, event.value, KeyInfo(event.down, bWasDown)};
    if (!msg.hwnd || IsSwallowed(msg))
        return;
    const UINT character = event.down ? ControlCharacter(event.value) : 0;
    if (character != 0)
        PostMessage(msg.hwnd, WM_CHAR, character, msg.lParam);
    SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}

void toolkit::HandleCharacter(const InputEvent& event)
{
    MSG msg{GetFocus(), WM_CHAR, event.value, KeyInfo(true, false)};
    if (msg.hwnd && !IsSwallowed(msg))
        SendMessage(msg.hwnd, msg.message, msg.wParam, msg.lParam);
}
