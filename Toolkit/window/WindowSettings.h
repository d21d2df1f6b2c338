// A window's style, text and class.
#pragma once

#include "Toolkit/base/String.h"

TOOLKIT_API BOOL ModifyStyle(HWND hWnd, DWORD remove, DWORD add); // WM_STYLECHANGED when it changes
TOOLKIT_API BOOL SetWindowText(HWND hWnd, LPCSTR pszText);
TOOLKIT_API CString GetWindowText(HWND hWnd);

inline constexpr int GCL_HBRBACKGROUND = -10;          // the background's brush; 0 for a class without one
TOOLKIT_API DWORD GetClassLong(HWND hWnd, int nIndex); // of the window's class; 0 for an index not known here
