// What the window layer tells the desktop of top-level windows. Internal to it.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{

void TellDesktopOfCreation(WindowRecord& top);
// These do nothing for a child and for a window the desktop does not know yet.
void TellDesktopOfChange(HWND hWnd);
void TellDesktopOfPlace(HWND hWnd);
void TellDesktopOfDestruction(WindowRecord& top);

} // namespace toolkit
