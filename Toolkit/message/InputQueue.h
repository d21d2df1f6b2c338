// Input that waits to be handled.
#pragma once

#include "Toolkit/message/Input.h"

#include <optional>

namespace toolkit
{

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
