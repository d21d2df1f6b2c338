// What a handler of WM_PAINT begins and ends with.
#pragma once

#include "Toolkit/base/Geometry.h"

namespace toolkit
{
struct PaintTarget
{
    HDC hdc;
    CRect rcPaint; // client
};
// The device context is clipped to what was noted, which is noted no longer; the background has been erased
// (WM_ERASEBKGND). The CPaintDC class does both.
TOOLKIT_API PaintTarget BeginPaint(HWND hWnd);
TOOLKIT_API void EndPaint(HWND hWnd, HDC hdc);
} // namespace toolkit
