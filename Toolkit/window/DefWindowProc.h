// What a window does with a message that nobody has handled.
#pragma once

#include "Toolkit/base/Types.h"

TOOLKIT_API LRESULT DefWindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
