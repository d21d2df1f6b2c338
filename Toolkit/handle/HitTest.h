// Which window the mouse is over.
#pragma once

#include "Toolkit/base/Geometry.h"

TOOLKIT_API HWND WindowFromPoint(POINT screen); // the innermost visible one

namespace toolkit
{

struct MouseTarget
{
    HWND hWnd = nullptr;
    bool bClient = false; // in its client area, not on its frame
};

// The innermost visible and enabled window there: of the given top-level window when the point lies in it, else
// of whichever lies there. A disabled child's clicks are its parent's.
MouseTarget FindMouseTarget(HWND hTop, CPoint screen);

} // namespace toolkit
