// A window's frame: its border and scroll bars.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{
// Draws it; the device context's origin is the window's top left corner.
void PaintFrame(const WindowRecord& window, HDC hdc);
} // namespace toolkit
