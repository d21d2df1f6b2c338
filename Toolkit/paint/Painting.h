// Painting what was noted: when the queue or somebody asks for it, and what a handler of WM_PAINT does.
#pragma once

#include "Toolkit/base/Geometry.h"

TOOLKIT_API BOOL UpdateWindow(HWND hWnd); // the window and its children, at once

namespace toolkit
{
struct WindowRecord;

struct PaintTarget
{
    HDC hdc;
    CRect rcPaint; // client
};
// The device context is clipped to what was noted, which is noted no longer; the background has been erased
// (WM_ERASEBKGND). The CPaintDC class does both.
TOOLKIT_API PaintTarget BeginPaint(HWND hWnd);
TOOLKIT_API void EndPaint(HWND hWnd, HDC hdc);

bool RunOnePaint();
void ForgetPainting(WindowRecord& window); // the window goes
} // namespace toolkit
