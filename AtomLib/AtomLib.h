// The host's drawing functions: pictures at the size of a thumbnail, and masks for pictures without alpha.
#pragma once

#include "Toolkit/graphics/Gdi.h"

#if defined(ATOMLIB_EXPORTS)
#define ATOMLIB_API __attribute__((visibility("default")))
#else
#define ATOMLIB_API
#endif

// Draws the picture as large as the rectangle allows, its proportions kept, centred; larger and smaller pictures are
// scaled by taking means. It is transparent where the mask, a bitmap of the same size, is white, and where its own
// alpha says so. hMask may be NULL. hBrush, when not NULL, first fills the rectangle. pOffset, when not NULL, receives
// where in the rectangle the picture's top left corner lies.
//
// Non-zero when drawn, also when the clip lets nothing of it through. Zero, and nothing drawn, when a handle is
// refused, the mask's size differs, or the rectangle or the picture is empty. Each pixel of the picture is read once.
ATOMLIB_API int DrawThumbnailProportional(HDC hdc, CRect& rect, HBITMAP hPicture, HBITMAP hMask, HBRUSH hBrush,
                                          CPoint* pOffset);

// A new mask of the picture: white (transparent) where it is opaque and of that colour, black elsewhere. The caller
// owns it and gives it to DeleteBitmap. NULL when the picture is refused.
ATOMLIB_API HBITMAP CreateMaskBitmap(HBITMAP hPicture, COLORREF crTransparent);
