// Making windows.
#pragma once

#include "Toolkit/handle/WindowTypes.h"

class CWnd;

// A window belongs to its parent and is destroyed with it; one without a parent is a top-level window. A new window
// lies above its siblings. Class names are those that toolkit::RegisterWindowClass knows; "" is a plain window. NULL
// when the parent, which a WS_CHILD needs, or the class is not there, memory has run out, or the window itself refused.
TOOLKIT_API HWND CreateWindowEx(DWORD exStyle, LPCSTR pszClass, LPCSTR pszName, DWORD style, int x, int y, int cx,
                                int cy, HWND hParent, UINT nID, void* lpParam);

namespace toolkit
{
// Makes the window and sends it what a new window is sent. NULL when refused. pOwner, when there is one, gets
// its messages from the first on; a failed creation ends with its PostNcDestroy, after which it may be gone.
HWND MakeWindow(const CREATESTRUCT& cs, CWnd* pOwner);
} // namespace toolkit
