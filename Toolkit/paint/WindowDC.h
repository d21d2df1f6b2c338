// Device contexts that draw on windows. Internal to the window layer.
#pragma once

#include "Toolkit/handle/WindowRecord.h"

namespace toolkit
{

// Shifted to `origin` and clipped to `clip`, both on the top-level window's surface. It ends, and is refused from
// then on, when the window goes or the surface is replaced. NULL without memory for it.
HDC OpenWindowDC(const WindowRecord& window, CPoint origin, const Region& clip);
bool CloseWindowDC(HWND hWnd, HDC hdc); // notes its clip as painted; false when it is no longer open
void CloseWindowDCs(HWND hWnd);         // of this window
void CloseSurfaceDCs(HWND hTop);        // of all windows that share the surface

} // namespace toolkit
