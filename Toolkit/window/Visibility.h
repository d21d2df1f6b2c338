// Showing and hiding without asking or telling the window. Internal to the window layer.
#pragma once

#include "Toolkit/base/Types.h"

namespace toolkit
{
// Notes what is to be painted; a hidden window lets go of focus and capture.
void SetVisible(HWND hWnd, bool bShow);
} // namespace toolkit
