#include "AtomLib/AtomLib.h"

#include "tests/toolkit/Picture.h"

#include <gtest/gtest.h>

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);

// A white surface of 6 by 4; the bitmaps made for a test go with it.
class AtomLibTest : public testing::Test
{
protected:
    AtomLibTest() : surface({6, 4}, 0xFFFFFFFF)
    {
        hdc = toolkit::CreateSurfaceDC(surface, {}, toolkit::Region(surface.Bounds()));
    }
    ~AtomLibTest() override
    {
        DeleteDC(hdc);
        for (HBITMAP hBitmap : bitmaps)
            DeleteBitmap(hBitmap);
        EXPECT_EQ(0, toolkit::CountGdiObjects());
    }

    HBITMAP Bitmap(const Rows& rows) { return bitmaps.emplace_back(CreateBitmapFromSurface(MakePicture(rows))); }

    int Draw(CRect rect, HBITMAP hPicture, HBITMAP hMask = nullptr, HBRUSH hBrush = nullptr)
    {
        return DrawThumbnailProportional(hdc, rect, hPicture, hMask, hBrush, &offset);
    }

    toolkit::Surface surface;
    HDC hdc = nullptr;
    CPoint offset{-1, -1};
    std::vector<HBITMAP> bitmaps;
};

TEST_F(AtomLibTest, APictureIsScaledIntoTheMiddleOfTheRectangleAndTheBrushFillsTheRest)
{
    const HBRUSH hBrush = CreateSolidBrush(RGB(255, 255, 0));
    EXPECT_NE(0, Draw({0, 0, 6, 4}, Bitmap({"R ", "GB"}), nullptr, hBrush));
    EXPECT_EQ(CPoint(1, 0), offset);
    EXPECT_NE(0, Draw({1, 0, 5, 4}, Bitmap({"RRRRBBBB", "RRRRBBBB", "GGGG####", "GGGG####"})));
    EXPECT_EQ((Rows{
                  "YRRYYY",
                  "YRRBBY",
                  "YGG##Y",
                  "YGGBBY",
              }),
              ShowPicture(surface));
    EXPECT_EQ(CPoint(0, 1), offset);
    DeleteBrush(hBrush);
}

TEST_F(AtomLibTest, TheTransparentColourShowsTheGround)
{
    const HBITMAP hPicture = Bitmap({"RRRBBR", "RGGBBR", "RGGRRR"});
    const HBITMAP hMask = bitmaps.emplace_back(CreateMaskBitmap(hPicture, kRed));
    EXPECT_EQ((Rows{"...##.", ".####.", ".##..."}), ShowPicture(*toolkit::BitmapSurface(hMask)));

    EXPECT_NE(0, Draw({0, 0, 6, 4}, hPicture, hMask));
    EXPECT_EQ((Rows{
                  "...BB.",
                  ".GGBB.",
                  ".GG...",
                  "......",
              }),
              ShowPicture(surface));
    EXPECT_EQ(CPoint(0, 0), offset);

    const HBITMAP hHalves = Bitmap({"RB", "RB"});
    EXPECT_NE(0, Draw({0, 3, 1, 4}, hHalves, bitmaps.emplace_back(CreateMaskBitmap(hHalves, kRed))));
    EXPECT_EQ(0xFF7F7FFF, surface.At(0, 3)); // after shrinking half blue on white, no red in it
}

TEST_F(AtomLibTest, RefusesWhatItCannotDrawAndDrawsNothing)
{
    const HBITMAP hPicture = Bitmap({"RB", "RB"}), hEmpty = bitmaps.emplace_back(CreateBitmapFromSurface({}));
    const HBRUSH hGone = CreateSolidBrush(kRed);
    DeleteBrush(hGone);

    EXPECT_EQ(0, Draw({0, 0, 6, 4}, nullptr));
    EXPECT_EQ(0, Draw({0, 0, 6, 4}, hEmpty));
    EXPECT_EQ(0, Draw({3, 0, 3, 4}, hPicture));
    EXPECT_EQ(0, Draw({0, 0, 6, 4}, hPicture, Bitmap({"#"})));
    EXPECT_EQ(0, Draw({0, 0, 6, 4}, hPicture, nullptr, hGone));
    EXPECT_EQ(nullptr, CreateMaskBitmap(nullptr, kRed));
    EXPECT_EQ(CPoint(-1, -1), offset);
    EXPECT_EQ(Rows(4, "......"), ShowPicture(surface));
}

} // namespace
