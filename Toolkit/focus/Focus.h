// Which window has the focus.
#pragma once

#include "Toolkit/base/Types.h"

// Gives the former focus; NULL, and no change, when the window or an ancestor is being destroyed.
TOOLKIT_API HWND SetFocus(HWND hWnd); // NULL: no window has the focus
TOOLKIT_API HWND GetFocus();

namespace toolkit
{
// A window that is hidden or destroyed: when it or a child of it has the focus, its parent gets it.
void PassFocusOn(HWND hWnd);
void ForgetFocus(HWND hWnd); // the window is gone

// The desktop's news of a top-level window. Leaving remembers which window had the focus; coming back gives it
// back, to the top-level window itself when the other cannot take it any more.
void SetActive(HWND hTop, bool bActive);
} // namespace toolkit
