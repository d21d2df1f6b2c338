// Image lists: pictures of one size, by index.
#pragma once

#include "Toolkit/graphics/Gdi.h"

#include <utility>

inline constexpr UINT ILC_COLOR32 = 0x0020;

inline constexpr UINT ILD_NORMAL = 0x0000;
inline constexpr UINT ILD_BLEND25 = 0x0002; // a quarter of the highlight colour over the picture's pixels

// Images are 1 to 4096 pixels wide and high, 32 bits deep with alpha whatever the flags say. Room is made for
// cGrow of them at a time; nothing that is in the list moves.
TOOLKIT_API HIMAGELIST ImageList_Create(int cx, int cy, UINT flags, int cInitial, int cGrow);
// The bitmap resource nID cut into images cx wide, of the bitmap's height; pixels of colour crMask are
// transparent. NULL when no module of the chain has the bitmap, or when it is narrower than one image.
TOOLKIT_API HIMAGELIST ImageList_LoadBitmap(UINT nID, int cx, int cGrow, COLORREF crMask);
TOOLKIT_API BOOL ImageList_Destroy(HIMAGELIST himl);
TOOLKIT_API int ImageList_GetImageCount(HIMAGELIST himl);
TOOLKIT_API BOOL ImageList_GetIconSize(HIMAGELIST himl, int* cx, int* cy);
// The first new image's index, -1 when refused. Cuts the bitmap into images, from its top left corner; a bitmap
// too small for one is refused. hbmMask (may be NULL; as large as the bitmap) is white where the picture is
// transparent; elsewhere, and without one, the bitmap's own alpha counts.
TOOLKIT_API int ImageList_Add(HIMAGELIST himl, HBITMAP hbmImage, HBITMAP hbmMask);
// The bitmap's first image takes the place of image i.
TOOLKIT_API BOOL ImageList_Replace(HIMAGELIST himl, int i, HBITMAP hbmImage, HBITMAP hbmMask);
// Puts an icon at index i, or at a new index when i is -1: as large as the images are, its proportions kept,
// centred. The index, -1 when refused.
TOOLKIT_API int ImageList_ReplaceIcon(HIMAGELIST himl, int i, HICON hIcon);
TOOLKIT_API BOOL ImageList_Draw(HIMAGELIST himl, int i, HDC hdc, int x, int y, UINT style);

// Owns an image list's handle and destroys it with itself.
class TOOLKIT_API CImageList
{
public:
    CImageList() = default;
    ~CImageList() { DeleteImageList(); }
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    // A list that the object owned before is destroyed.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL DeleteImageList() { return ImageList_Destroy(std::exchange(m_hImageList, nullptr)); }

    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    int GetImageCount() const { return ImageList_GetImageCount(m_hImageList); }

    HIMAGELIST m_hImageList = nullptr;
};
