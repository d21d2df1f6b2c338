// Where a window and its client area lie.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{

inline constexpr int kScrollBarExtent = 14; // pixels across

// Relative to the window's own top left corner.
CRect ClientBox(const WindowRecord& window);
CRect ClientRect(const WindowRecord& window);             // the same size, in client coordinates
CRect ScrollBarBox(const WindowRecord& window, int nBar); // empty while the bar is hidden

// On the top-level window's surface, not clipped by anything.
CRect WindowArea(const WindowRecord& window);
CRect ClientArea(const WindowRecord& window);

WindowRecord& TopOf(const WindowRecord& window);
CPoint SurfaceToScreen(const WindowRecord& window); // what to add to a point on the surface
CPoint ClientToScreenOffset(const WindowRecord& window);

bool IsShown(const WindowRecord& window); // it and all its ancestors
bool IsSelfOrChild(const WindowRecord& ancestor, const WindowRecord* pWindow);
bool IsAlive(const WindowRecord& window); // neither it nor an ancestor is being destroyed

} // namespace toolkit
