// The top-level windows' surfaces and what of them the desktop has not seen yet.
#pragma once

#include "Toolkit/graphics/Surface.h"

namespace toolkit
{
struct WindowRecord;

// A top-level window's picture as last painted; NULL for a stale handle.
TOOLKIT_API const Surface* WindowSurface(HWND hTop);

// The top-level window's surface in its present size. Device contexts of a replaced one end.
Surface& SurfaceOf(WindowRecord& top);
void NotePainted(WindowRecord& top, const CRect& area); // pixels of the surface that the desktop has not seen yet
void PresentPainted();                                  // hands the desktop what was painted since the last time
} // namespace toolkit
