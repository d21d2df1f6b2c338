// Input that waits to be handled. Internal to the window layer.
#pragma once

#include "Toolkit/message/Input.h"

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

bool HasInput();
bool RunOneInput();
void ResetInput(); // nothing waits, no key is down, the mouse is nowhere: another desktop begins

} // namespace toolkit
