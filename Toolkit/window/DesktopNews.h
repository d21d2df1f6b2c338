// What the window layer tells the desktop of top-level windows. Internal to it.
#pragma once

#include "Toolkit/window/WindowRecord.h"

namespace toolkit
{

void TellDesktopOfCreation(WindowRecord& top);
void TellDesktopOfChange(HWND hWnd); // does nothing for a child and for a window the desktop does not know yet
void TellDesktopOfDestruction(WindowRecord& top);

} // namespace toolkit
