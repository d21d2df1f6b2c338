// What a window is told to be: where, shown or hidden, its style and text.
#pragma once

#include "Toolkit/base/String.h"
#include "Toolkit/handle/WindowTypes.h"

TOOLKIT_API BOOL ShowWindow(HWND hWnd, int nShow);                    // TRUE when it was visible before
TOOLKIT_API BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy); // in the parent's client area
TOOLKIT_API BOOL ModifyStyle(HWND hWnd, DWORD remove, DWORD add);     // WM_STYLECHANGED when it changes
TOOLKIT_API BOOL SetWindowText(HWND hWnd, LPCSTR pszText);
TOOLKIT_API CString GetWindowText(HWND hWnd);

inline constexpr int GCL_HBRBACKGROUND = -10;          // the background's brush; 0 for a class without one
TOOLKIT_API DWORD GetClassLong(HWND hWnd, int nIndex); // of the window's class; 0 for an index not known here

namespace toolkit
{
// Without asking or telling the window. Notes what is to be painted; a hidden window lets go of focus and capture.
void SetVisible(HWND hWnd, bool bShow);
// Notes what is to be painted, and sends WM_MOVE and WM_SIZE for what changed. The desktop is not told.
void PlaceWindow(HWND hWnd, const CRect& rect);
void TellDesktopOfChange(HWND hWnd); // nothing for a child and for a window that the desktop does not know yet
} // namespace toolkit
