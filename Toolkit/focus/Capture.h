// Which window gets the mouse wherever it is.
#pragma once

#include "Toolkit/base/Types.h"

TOOLKIT_API HWND SetCapture(HWND hWnd); // gives the former one; NULL, and no change, for a stale handle
TOOLKIT_API HWND GetCapture();
TOOLKIT_API BOOL ReleaseCapture();

namespace toolkit
{
void ReleaseCaptureWithin(HWND hWnd); // when it or a child of it holds the capture
void ForgetCapture(HWND hWnd);        // the window is gone
} // namespace toolkit
