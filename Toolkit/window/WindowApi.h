// Windows by handle: the functions under their standard names.
//
// User-interface thread only. A NULL or stale handle is refused: FALSE, NULL or 0, and nothing happens.
// Client coordinates count from a window's client area, screen coordinates from the desktop's corner.
#pragma once

#include "Toolkit/base/String.h"
#include "Toolkit/message/Messages.h"

// Life. A window belongs to its parent and is destroyed with it; one without a parent is a top-level window. A new
// window lies above its siblings. Class names are those that toolkit::RegisterWindowClass knows; "" is a plain
// window. NULL when the parent, which a WS_CHILD needs, or the class is not there, memory has run out, or the window
// itself refused.
TOOLKIT_API HWND CreateWindowEx(DWORD exStyle, LPCSTR pszClass, LPCSTR pszName, DWORD style, int x, int y, int cx,
                                int cy, HWND hParent, UINT nID, void* lpParam);
TOOLKIT_API BOOL DestroyWindow(HWND hWnd);
TOOLKIT_API BOOL IsWindow(HWND hWnd);

// Place and look.
TOOLKIT_API HWND GetParent(HWND hWnd); // NULL for a top-level window
TOOLKIT_API BOOL IsChild(HWND hAncestor, HWND hWnd);
TOOLKIT_API HWND GetTopLevel(HWND hWnd); // the window itself when it has no parent
TOOLKIT_API UINT GetDlgCtrlID(HWND hWnd);
TOOLKIT_API DWORD GetWindowStyle(HWND hWnd);
TOOLKIT_API DWORD GetWindowExStyle(HWND hWnd);
inline constexpr int GCL_HBRBACKGROUND = -10;          // the background's brush; 0 for a class without one
TOOLKIT_API DWORD GetClassLong(HWND hWnd, int nIndex); // of the window's class; 0 for an index not known here
TOOLKIT_API BOOL ModifyStyle(HWND hWnd, DWORD remove, DWORD add); // WM_STYLECHANGED when it changes
TOOLKIT_API BOOL GetWindowRect(HWND hWnd, RECT* pRect);           // screen
TOOLKIT_API BOOL GetClientRect(HWND hWnd, RECT* pRect);           // left and top are 0
TOOLKIT_API BOOL ClientToScreen(HWND hWnd, POINT* pPoint);
TOOLKIT_API BOOL ScreenToClient(HWND hWnd, POINT* pPoint);
TOOLKIT_API BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy); // in the parent's client area
TOOLKIT_API BOOL ShowWindow(HWND hWnd, int nShow);                    // TRUE when it was visible before
TOOLKIT_API BOOL IsWindowVisible(HWND hWnd);                          // it and all its ancestors are shown
TOOLKIT_API BOOL SetWindowText(HWND hWnd, LPCSTR pszText);
TOOLKIT_API CString GetWindowText(HWND hWnd);
TOOLKIT_API HWND WindowFromPoint(POINT screen); // the innermost visible one

// Messages. A toolkit exception that leaves a handler ends there: it fails a creation, leaves a paint as it is, and is
// reported for any other message, whose answer is then 0.
TOOLKIT_API LRESULT SendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
TOOLKIT_API BOOL PostMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
TOOLKIT_API LRESULT DefWindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

// Focus, capture, input. SetFocus gives the former focus; NULL, and no change, when the window or an ancestor is
// disabled or being destroyed.
TOOLKIT_API HWND SetFocus(HWND hWnd); // NULL: no window has the focus
TOOLKIT_API HWND GetFocus();
TOOLKIT_API HWND SetCapture(HWND hWnd);
TOOLKIT_API HWND GetCapture();
TOOLKIT_API BOOL ReleaseCapture();
TOOLKIT_API BOOL GetCursorPos(POINT* pPoint);    // screen
TOOLKIT_API std::int16_t GetKeyState(UINT vkey); // negative while the key is down, as of the input last handled
TOOLKIT_API UINT GetDoubleClickTime();           // milliseconds

// Timers. The shortest period is 10 ms; a known identifier starts anew. Due timers are never queued twice.
TOOLKIT_API UINT_PTR SetTimer(HWND hWnd, UINT_PTR nID, UINT nElapse);
TOOLKIT_API BOOL KillTimer(HWND hWnd, UINT_PTR nID);

// Painting. Invalidating only notes; the paint comes last but for timers, merged, or at once by UpdateWindow.
TOOLKIT_API BOOL InvalidateRect(HWND hWnd, const RECT* pRect, BOOL bErase = TRUE); // client; NULL: all of it
TOOLKIT_API BOOL ValidateRect(HWND hWnd, const RECT* pRect);
TOOLKIT_API BOOL GetUpdateRect(HWND hWnd, RECT* pRect); // bounds of what is noted; FALSE when nothing is
TOOLKIT_API BOOL UpdateWindow(HWND hWnd);
TOOLKIT_API BOOL LockWindowUpdate(HWND hWnd); // one window at a time, FALSE when another holds it; NULL lets go
// Moves the client area's pixels by dx, dy and invalidates what came into sight. What was noted moves along.
TOOLKIT_API BOOL ScrollWindow(HWND hWnd, int dx, int dy);
TOOLKIT_API HDC GetDC(HWND hWnd);       // draws on the client area at once; give it back
TOOLKIT_API HDC GetWindowDC(HWND hWnd); // the same on the whole window, its border included
TOOLKIT_API int ReleaseDC(HWND hWnd, HDC hdc);

// Scroll bars, shown on the window's edge while page is smaller than the range. The position is kept in range.
TOOLKIT_API int SetScrollInfo(HWND hWnd, int nBar, const SCROLLINFO& info); // the position taken
TOOLKIT_API BOOL GetScrollInfo(HWND hWnd, int nBar, SCROLLINFO* pInfo);

namespace toolkit
{
struct PaintTarget
{
    HDC hdc;
    CRect rcPaint; // client
};
// WM_PAINT's begin: the device context is clipped to what was noted, which is noted no longer; the background
// has been erased (WM_ERASEBKGND). The CPaintDC class does both.
TOOLKIT_API PaintTarget BeginPaint(HWND hWnd);
TOOLKIT_API void EndPaint(HWND hWnd, HDC hdc);
} // namespace toolkit
