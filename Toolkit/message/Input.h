// What a desktop tells the toolkit. Every call queues; nothing is handled before the queue runs.
//
// Points and sizes are those of a top-level window's surface, which is its client area while it has neither border
// nor scroll bars; points may lie outside it while a button is held. Double clicks are made here, from two presses
// near each other within the double-click time; so are the control characters of Backspace, Tab, Return, Escape
// and of Ctrl with a letter.
#pragma once

#include "Toolkit/message/Messages.h"

#include <string_view>

namespace toolkit
{

enum class MouseButton
{
    Left,
    Right,
    Middle
};

struct Modifiers
{
    bool shift = false, control = false, alt = false;
};

TOOLKIT_API void InputMouseMove(HWND hTop, CPoint at, Modifiers modifiers);
TOOLKIT_API void InputMouseButton(HWND hTop, CPoint at, MouseButton button, bool down, Modifiers modifiers);
TOOLKIT_API void InputMouseWheel(HWND hTop, CPoint at, int delta,
                                 Modifiers modifiers); // WHEEL_DELTA a notch, up positive
TOOLKIT_API void InputMouseLeave(HWND hTop);
TOOLKIT_API void InputKey(UINT vkey, bool down, Modifiers modifiers); // to the focus
TOOLKIT_API void InputText(std::string_view utf8); // one WM_CHAR for each code point; control characters are dropped
TOOLKIT_API void InputActivate(HWND hTop, bool active); // leaving and coming back keeps the window's focus
TOOLKIT_API void InputResize(HWND hTop, CSize client);
TOOLKIT_API void InputMoved(HWND hTop, CPoint screen); // where the top-level window's client area now is
TOOLKIT_API void InputClose(HWND hTop);                // WM_CLOSE

} // namespace toolkit
