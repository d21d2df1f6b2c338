// What a window is asked by its handle, which may be NULL or stale: then the answer is FALSE, NULL or 0.
//
// Client coordinates count from a window's client area, screen coordinates from the desktop's corner.
#pragma once

#include "Toolkit/base/Geometry.h"

TOOLKIT_API BOOL IsWindow(HWND hWnd);
TOOLKIT_API HWND GetParent(HWND hWnd); // NULL for a top-level window
TOOLKIT_API BOOL IsChild(HWND hAncestor, HWND hWnd);
TOOLKIT_API HWND GetTopLevel(HWND hWnd); // the window itself when it has no parent
TOOLKIT_API UINT GetDlgCtrlID(HWND hWnd);
TOOLKIT_API DWORD GetWindowStyle(HWND hWnd);
TOOLKIT_API DWORD GetWindowExStyle(HWND hWnd);
TOOLKIT_API BOOL IsWindowVisible(HWND hWnd);            // it and all its ancestors are shown
TOOLKIT_API BOOL GetWindowRect(HWND hWnd, RECT* pRect); // screen
TOOLKIT_API BOOL GetClientRect(HWND hWnd, RECT* pRect); // left and top are 0
TOOLKIT_API BOOL ClientToScreen(HWND hWnd, POINT* pPoint);
TOOLKIT_API BOOL ScreenToClient(HWND hWnd, POINT* pPoint);
