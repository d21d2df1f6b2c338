// Destroying windows.
#pragma once

#include "Toolkit/base/Types.h"

TOOLKIT_API BOOL DestroyWindow(HWND hWnd); // FALSE when it is gone, or being destroyed already

namespace toolkit
{
// WM_NCDESTROY to the window's children, then to itself; then it is gone. WM_DESTROY has been sent.
void FinishDestruction(HWND hWnd);
} // namespace toolkit
