// The mouse on its way to a window.
#pragma once

#include "Toolkit/message/Input.h"

namespace toolkit
{
void HandleMouse(const InputEvent& event);
void ResetMouse();
void ForgetLastPress(); // the next press is not the second of a double click
} // namespace toolkit
