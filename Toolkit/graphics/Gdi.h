// Drawing objects by handle, and the functions that draw: the standard names for what the views and their
// hosts need. Every function refuses a handle that is NULL or stale: FALSE, NULL or -1, and nothing drawn.
// The caller owns what a Create or Load function gives and gives it back to the matching delete function.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/graphics/Region.h"
#include "Toolkit/graphics/Surface.h"
#include "Toolkit/graphics/TextEngine.h"

// Bitmaps.
TOOLKIT_API HBITMAP CreateBitmapFromSurface(toolkit::Surface surface);
// Black, of the device context's scale; NULL when an extent is not positive.
TOOLKIT_API HBITMAP CreateCompatibleBitmap(HDC hdc, int cx, int cy);
TOOLKIT_API BOOL DeleteBitmap(HBITMAP hBitmap); // FALSE, too, while it is selected into a device context

// Brushes: one colour. Drawing takes for a brush also a system colour's index plus 1.
TOOLKIT_API HBRUSH CreateSolidBrush(COLORREF color);
TOOLKIT_API BOOL DeleteBrush(HBRUSH hBrush);

// Icons: one picture with transparency.
TOOLKIT_API HICON CreateIconFromSurface(toolkit::Surface surface);
TOOLKIT_API BOOL DestroyIcon(HICON hIcon);

struct ICONINFO
{
    BOOL fIcon;
    DWORD xHotspot, yHotspot;
    HBITMAP hbmMask;  // white where nothing of the icon is seen
    HBITMAP hbmColor; // with the icon's own alpha
};
// New bitmaps of the icon, for the caller to delete; FALSE, and no change, when refused.
TOOLKIT_API BOOL GetIconInfo(HICON hIcon, ICONINFO* pInfo);

// Memory device contexts. A new one has a 1 by 1 bitmap of its own until another is selected into it. Selecting
// makes the whole bitmap the clip. A bitmap is selected into one device context at a time; deleting that lets go
// of it. A device context on a window or a surface takes no bitmap.
TOOLKIT_API HDC CreateCompatibleDC(HDC hdc); // NULL as argument is right, too
TOOLKIT_API BOOL DeleteDC(HDC hdc);
TOOLKIT_API HBITMAP SelectBitmap(HDC hdc, HBITMAP hBitmap); // the former one; NULL when refused

// Drawing state. Coordinates of all drawing are relative to the origin.
TOOLKIT_API COLORREF SetTextColor(HDC hdc, COLORREF color); // the former one; black at first
TOOLKIT_API toolkit::FontStyle SetFontStyle(HDC hdc, toolkit::FontStyle style);
TOOLKIT_API BOOL IntersectClipRect(HDC hdc, const RECT& rect);
TOOLKIT_API BOOL RectVisible(HDC hdc, const RECT& rect); // does the clip let any of it through?
TOOLKIT_API int SaveDC(HDC hdc);                         // clip, colours, font and origin; the depth, from 1
TOOLKIT_API BOOL RestoreDC(HDC hdc, int nSaved);         // back to that depth; -1: the last one

// A rectangle's edges: two lines on each side asked for, the outer one first.
inline constexpr UINT BDR_RAISEDOUTER = 0x0001;
inline constexpr UINT BDR_SUNKENOUTER = 0x0002;
inline constexpr UINT BDR_RAISEDINNER = 0x0004;
inline constexpr UINT BDR_SUNKENINNER = 0x0008;
inline constexpr UINT EDGE_SUNKEN = BDR_SUNKENOUTER | BDR_SUNKENINNER;
inline constexpr UINT EDGE_BUMP = BDR_RAISEDOUTER | BDR_SUNKENINNER;
inline constexpr UINT BF_LEFT = 0x0001;
inline constexpr UINT BF_TOP = 0x0002;
inline constexpr UINT BF_RIGHT = 0x0004;
inline constexpr UINT BF_BOTTOM = 0x0008;
inline constexpr UINT BF_RECT = BF_LEFT | BF_TOP | BF_RIGHT | BF_BOTTOM;

// Drawing.
TOOLKIT_API BOOL FillSolidRect(HDC hdc, const RECT& rect, COLORREF color);
TOOLKIT_API BOOL FillRoundRect(HDC hdc, const RECT& rect, int radius,
                               COLORREF color); // smooth; of half its sides at most
TOOLKIT_API BOOL FillRect(HDC hdc, const RECT& rect, HBRUSH hBrush);
TOOLKIT_API BOOL BlendRect(HDC hdc, const RECT& rect, COLORREF color, BYTE alpha); // 255 covers, 0 leaves
TOOLKIT_API BOOL DrawFocusRect(HDC hdc, const RECT& rect); // dotted, by inverting: drawn twice it is gone
TOOLKIT_API BOOL DrawEdge(HDC hdc, const RECT& rect, UINT edge, UINT flags); // BDR_* or EDGE_*, BF_*
TOOLKIT_API BOOL TextOut(HDC hdc, int x, int y, std::string_view text);      // top left of the line; background kept
TOOLKIT_API CSize GetTextExtent(HDC hdc, std::string_view text);

namespace toolkit
{
// A device context that draws into a surface someone else keeps, shifted to `origin` and only inside `clip`
// (both in the surface's coordinates). The surface must outlive it. DeleteDC ends it.
TOOLKIT_API HDC CreateSurfaceDC(Surface& target, CPoint origin, Region clip);
TOOLKIT_API bool IsDrawnOn(HDC hdc); // has anything come through its clip since it was made?

TOOLKIT_API PixelScale ScaleOf(HDC hdc); // of what it draws on; pictures made for it have the same

// Draws a picture, or a part of it (in its pixels), by its alpha, the top left corner at `at`. Not of the surface that
// is drawn on. Where the scales differ the picture is resampled, each time: its size in coordinates stays.
TOOLKIT_API BOOL DrawSurface(HDC hdc, CPoint at, const Surface& picture, const CRect& part);
TOOLKIT_API BOOL DrawSurface(HDC hdc, CPoint at, const Surface& picture);

// The pixels behind a handle; NULL when refused. Valid until the object is changed or deleted.
TOOLKIT_API Surface* BitmapSurface(HBITMAP hBitmap);
TOOLKIT_API const Surface* IconSurface(HICON hIcon);

// How many drawing objects are alive, all kinds together; tests compare it.
TOOLKIT_API int CountGdiObjects();
} // namespace toolkit
