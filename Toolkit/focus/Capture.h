// The mouse capture, as the rest of the window layer takes it away.
#pragma once

#include "Toolkit/base/Types.h"

namespace toolkit
{
void ReleaseCaptureWithin(HWND hWnd); // when it or a child of it holds the capture
void ForgetCapture(HWND hWnd);        // the window is gone
} // namespace toolkit
