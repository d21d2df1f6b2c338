// A window that is not to be drawn on for a while.
#pragma once

#include "Toolkit/base/Types.h"

TOOLKIT_API BOOL LockWindowUpdate(HWND hWnd); // one window at a time, FALSE when another holds it; NULL lets go

namespace toolkit
{
struct WindowRecord;

bool IsUpdateLocked(const WindowRecord& window);
void NoteDrawnWhileLocked(); // somebody would have drawn on the locked window
void ForgetUpdateLock(HWND hWnd);
} // namespace toolkit
