// The scroll bars' ranges. A bar is shown on the window's edge while its page is smaller than the range.
#pragma once

#include "Toolkit/handle/WindowTypes.h"

TOOLKIT_API int SetScrollInfo(HWND hWnd, int nBar, const SCROLLINFO& info); // the position taken, kept in range
TOOLKIT_API BOOL GetScrollInfo(HWND hWnd, int nBar, SCROLLINFO* pInfo);
