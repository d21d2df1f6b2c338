// The second half of a window's end. Internal to the window layer.
#pragma once

#include "Toolkit/base/Types.h"

namespace toolkit
{
// WM_NCDESTROY to the window's children, then to itself; then it is gone. WM_DESTROY has been sent.
void FinishDestruction(HWND hWnd);
} // namespace toolkit
