#include "tests/toolkit/ItemControlFixture.h"

void ItemControlTest::MakeTop(int imageExtent, std::initializer_list<COLORREF> colors)
{
    ASSERT_TRUE(top.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 600, 320), nullptr, 0));
    ASSERT_TRUE(other.CreateEx(0, "", "", WS_CHILD | WS_VISIBLE, CRect(400, 0, 500, 100), &top, kControlID + 1));
    ASSERT_TRUE(images.Create(imageExtent, imageExtent, ILC_COLOR32, 0, 4));
    for (const COLORREF color : colors) {
        const toolkit::Surface picture({imageExtent, imageExtent}, toolkit::ToPixel(color));
        const HBITMAP hPicture = CreateBitmapFromSurface(picture);
        ImageList_Add(images.GetSafeHandle(), hPicture, nullptr);
        DeleteBitmap(hPicture);
    }
}
