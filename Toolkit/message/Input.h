// What a desktop tells the toolkit. Every call queues; nothing is handled before the queue runs.
//
// Points and sizes are those of a top-level window's surface, which is its client area while it has neither border
// nor scroll bars; points may lie outside it while a button is held. Double clicks are made here, from two presses
// near each other within the double-click time; so are the control characters of Backspace, Tab, Return, Escape
// and of Ctrl with a letter.
#pragma once

#include "Toolkit/message/Messages.h"

#include <optional>
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
// The desktop may have another GetColorScheme. It counts at once; every window gets WM_SYSCOLORCHANGE.
TOOLKIT_API void InputColors();
TOOLKIT_API void InputScale(); // the same with GetScreenScale, and WM_FONTCHANGE
TOOLKIT_API void InputFont();  // the same with GetTextEngine, and WM_FONTCHANGE alone; the former engine may go then

// The toolkit's own: what waits.
enum class InputKind
{
    MouseMove,
    MouseButton,
    MouseWheel,
    MouseLeave,
    Key,
    Character,
    Activate,
    Resize,
    Moved,
    Close
};

struct InputEvent
{
    InputKind kind;
    HWND hTop = nullptr;
    CPoint at{}; // surface; for Resize the size, for Moved the screen point
    Modifiers modifiers{};
    MouseButton button = MouseButton::Left;
    bool down = false; // for Activate: active
    int delta = 0;
    UINT value = 0; // key or character
    DWORD time = 0; // the desktop's ticks
};

// Of several movements in a row only the last one counts. A desktop has nobody to tell that there is no memory: then
// the event is dropped.
void PutInput(InputEvent event);
bool HasInput();
std::optional<InputEvent> TakeInput();
void DropInput();

} // namespace toolkit
