// Noting what is to be painted. The paint comes last but for timers, merged, or at once by UpdateWindow.
#pragma once

#include "Toolkit/base/Geometry.h"

TOOLKIT_API BOOL InvalidateRect(HWND hWnd, const RECT* pRect, BOOL bErase = TRUE); // client; NULL: all of it
TOOLKIT_API BOOL GetUpdateRect(HWND hWnd, RECT* pRect); // bounds of what is noted; FALSE when nothing is
TOOLKIT_API BOOL LockWindowUpdate(HWND hWnd); // one window at a time, FALSE when another holds it; NULL lets go

namespace toolkit
{
struct WindowRecord;

// Nothing is noted for what is not shown.
void InvalidateWhole(WindowRecord& window);                      // all of it, frame and children included
void InvalidateExposed(WindowRecord& parent, const CRect& area); // client: the parent and all children under the area
void InvalidateArea(WindowRecord& window, const CRect& area, bool bErase); // client
void InvalidateFrame(WindowRecord& window, const CRect& area);             // from the window's top left corner
void InvalidateChildren(WindowRecord& window, const CRect& area);          // client: the children under the area

bool IsUpdateLocked(const WindowRecord& window);
void NoteDrawnWhileLocked(); // somebody would have drawn on the locked window
void ForgetUpdateLock(HWND hWnd);
} // namespace toolkit
