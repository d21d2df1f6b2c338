// Scrolling by moving pixels that are there already.
#pragma once

#include "Toolkit/base/Types.h"

// Moves the client area's pixels by dx, dy and invalidates what came into sight. What was noted moves along.
TOOLKIT_API BOOL ScrollWindow(HWND hWnd, int dx, int dy);
