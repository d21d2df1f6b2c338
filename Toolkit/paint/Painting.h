// Invalidating what is to be painted and painting it, as the rest of the window layer asks for it.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{

// Nothing is noted for what is not shown.
void InvalidateWhole(WindowRecord& window);                      // all of it, frame and children included
void InvalidateExposed(WindowRecord& parent, const CRect& area); // client: the parent and all children under the area
void InvalidateArea(WindowRecord& window, const CRect& area, bool bErase); // client
void InvalidateFrame(WindowRecord& window, const CRect& area);             // from the window's top left corner
void InvalidateChildren(WindowRecord& window, const CRect& area);          // client: the children under the area
void NotePainted(WindowRecord& top, const CRect& area); // pixels of the surface that the desktop has not seen yet

void RequestPaint(); // the queue looks for what was noted

bool HasPaint();
bool RunOnePaint();
void ForgetPainting(WindowRecord& window); // the window goes
bool IsUpdateLocked(const WindowRecord& window);
void NoteDrawnWhileLocked(); // somebody would have drawn on the locked window
void ForgetUpdateLock(HWND hWnd);

// The top-level window's surface in its present size. Device contexts of a replaced one end.
Surface& SurfaceOf(WindowRecord& top);
// Paints what is noted of the window itself, frame and client area.
void PaintWindow(HWND hWnd);
void PresentPainted(); // hands the desktop what was painted since the last time

} // namespace toolkit
