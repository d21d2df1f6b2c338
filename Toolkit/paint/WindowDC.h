// The top-level windows' surfaces, the device contexts that draw on them, and what the desktop has not seen yet.
#pragma once

#include "Toolkit/graphics/Region.h"

TOOLKIT_API HDC GetDC(HWND hWnd);       // draws on the client area at once; give it back
TOOLKIT_API HDC GetWindowDC(HWND hWnd); // the same on the whole window, its border included
TOOLKIT_API int ReleaseDC(HWND hWnd, HDC hdc);

namespace toolkit
{
struct WindowRecord;
class Surface;

// A top-level window's picture as last painted; NULL for a stale handle.
TOOLKIT_API const Surface* WindowSurface(HWND hTop);

// The top-level window's surface in its present size, at the screen's scale. Device contexts of a replaced one end.
Surface& SurfaceOf(WindowRecord& top);
void NotePainted(WindowRecord& top, const CRect& area); // pixels of the surface that the desktop has not seen yet
void PresentPainted();                                  // hands the desktop what was painted since the last time

// Shifted to `origin` and clipped to `clip`, both on the top-level window's surface. It ends, and is refused from
// then on, when the window goes or the surface is replaced. NULL without memory for it.
HDC OpenWindowDC(const WindowRecord& window, CPoint origin, const Region& clip);
bool CloseWindowDC(HWND hWnd, HDC hdc); // notes its clip as painted; false when it is no longer open
void CloseWindowDCs(HWND hWnd);         // of this window
void CloseSurfaceDCs(HWND hTop);        // of all windows that share the surface

} // namespace toolkit
