// Painting what was noted.
#pragma once

#include "Toolkit/base/Types.h"

TOOLKIT_API BOOL UpdateWindow(HWND hWnd); // the window and its children, at once

namespace toolkit
{
struct WindowRecord;

bool RunOnePaint();
void ForgetPainting(WindowRecord& window); // the window goes
} // namespace toolkit
