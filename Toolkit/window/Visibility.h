// Showing and hiding.
#pragma once

#include "Toolkit/handle/WindowTypes.h"

TOOLKIT_API BOOL ShowWindow(HWND hWnd, int nShow); // TRUE when it was visible before

namespace toolkit
{
// Without asking or telling the window. Notes what is to be painted; a hidden window lets go of focus and capture.
void SetVisible(HWND hWnd, bool bShow);
} // namespace toolkit
