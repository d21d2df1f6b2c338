// Moving and sizing windows.
#pragma once

#include "Toolkit/base/Geometry.h"

TOOLKIT_API BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy); // in the parent's client area

namespace toolkit
{
// Notes what is to be painted, and sends WM_MOVE and WM_SIZE for what changed. The desktop is not told.
void PlaceWindow(HWND hWnd, const CRect& rect);
} // namespace toolkit
