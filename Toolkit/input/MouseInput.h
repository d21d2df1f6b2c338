// The mouse on its way to a window. Internal to the window layer.
#pragma once

#include "Toolkit/message/InputQueue.h"

namespace toolkit
{
void HandleMouse(const InputEvent& event);
void ForgetMouse(HWND hWnd); // the window is gone
void ResetMouse();
// Where the mouse is and what is down (MK_*) while a drag keeps it from the windows.
void NoteMouse(CPoint screen, DWORD dwKeyState);
void ForgetLastPress(); // the next press is not the second of a double click
} // namespace toolkit
