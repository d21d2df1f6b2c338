// What is seen on a screen that shows a coordinate as more than one pixel.
#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/paint/ScrollWindow.h"
#include "Toolkit/window/Wnd.h"
#include "tests/support/DesktopTest.h"
#include "tests/toolkit/Picture.h"

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0), kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255);

class CanvasWnd : public CWnd
{
public:
    std::function<void(HDC hdc)> draw;

protected:
    void OnPaint()
    {
        const CPaintDC dc(this);
        FillSolidRect(dc, CRect(0, 0, 99, 99), kWhite);
        draw(dc);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CanvasWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

class ScreenScaleTest : public DesktopTest
{
protected:
    Rows Show(CSize size, std::function<void(HDC)> draw)
    {
        canvas.draw = std::move(draw);
        if (!canvas.m_hWnd)
            canvas.CreateEx(0, "", "", WS_VISIBLE, CRect({}, size), nullptr, 1);
        canvas.Invalidate();
        return Seen();
    }
    Rows Seen() { return ShowPicture(desktop.Dump(canvas.m_hWnd)); }
    void UseScale(double factor) { desktop.ShowScale(toolkit::PixelScale(factor)); }

    CanvasWnd canvas;
};

// Both twice as many pixels, and half as many coordinates, as they have rows and columns.
toolkit::Surface MakeFinePicture(const Rows& rows)
{
    toolkit::Surface picture = MakePicture(rows);
    picture.SetScale(toolkit::PixelScale(2));
    return picture;
}

} // namespace

TEST_F(ScreenScaleTest, WhatAdjoinsInCoordinatesAdjoinsInPixels)
{
    const auto columns = [](HDC hdc) {
        FillSolidRect(hdc, CRect(1, 0, 2, 1), kBlack);
        FillSolidRect(hdc, CRect(2, 0, 3, 1), kRed);
        IntersectClipRect(hdc, CRect(0, 0, 99, 2));
        BlendRect(hdc, CRect(3, 1, 4, 99), kBlue, 255);
    };
    EXPECT_EQ((Rows{".#R.", "...B", "...."}), Show({4, 3}, columns));
    UseScale(1.5);
    EXPECT_EQ((Rows{"..#RR.", "..#RR.", ".....B", "......", "......"}), Seen());
    UseScale(2);
    EXPECT_EQ((Rows{"..##RR..", "..##RR..", "......BB", "......BB", "........", "........"}), Seen());
    UseScale(1);
    EXPECT_EQ((Rows{".#R.", "...B", "...."}), Seen());
}

TEST_F(ScreenScaleTest, AScrolledWindowLooksAsOnePaintedAnew)
{
    int nScrolled = 0;
    const auto bars = [&](HDC hdc) {
        for (int y = 0; y < 12; ++y)
            FillSolidRect(hdc, CRect(0, y - nScrolled, y % 5, y - nScrolled + 1), y % 2 ? kBlack : kRed);
    };
    Show({9, 12}, bars);
    for (const double factor : {1.0, 1.25, 1.5, 2.0}) {
        UseScale(factor);
        for (const int nBy : {1, 2, 4, -7}) {
            nScrolled += nBy;
            ScrollWindow(canvas.m_hWnd, 0, -nBy);
            const Rows scrolled = Seen();
            EXPECT_EQ(Show({}, bars), scrolled) << factor << " by " << nBy;
        }
    }
}

TEST_F(ScreenScaleTest, PicturesMadeForTheScreenKeepTheirPixelsOthersTheirSize)
{
    UseScale(2);
    CImageList images;
    images.Create(2, 1, ILC_COLOR32, 0, 1);
    const HICON hFine = CreateIconFromSurface(MakeFinePicture({"RGBY", "#RGB"}));
    EXPECT_EQ(CSize(2, 1), toolkit::IconSurface(hFine)->Size());
    ImageList_ReplaceIcon(images.GetSafeHandle(), -1, hFine);
    const HBITMAP hCoarse = CreateBitmapFromSurface(MakePicture({"RBG#"}));
    EXPECT_EQ(1, ImageList_Add(images.GetSafeHandle(), hCoarse, nullptr)) << "cut into two";

    const auto drawThem = [&](HDC hdc) {
        toolkit::DrawSurface(hdc, {1, 0}, *toolkit::IconSurface(hFine));
        for (int i = 0; i < images.GetImageCount(); ++i)
            ImageList_Draw(images.GetSafeHandle(), i, hdc, 1 + i, 1 + i, ILD_NORMAL);
        toolkit::DrawSurface(hdc, {0, 3}, MakeFinePicture({"RGBY", "#RGB"}), CRect(1, 1, 3, 2));
    };
    EXPECT_EQ((Rows{"..RGBY..", "..#RGB..", "..RGBY..", "..#RGB..", "....RRBB", "....RRBB", "RG....GG", "......GG"}),
              Show({4, 4}, drawThem));
    UseScale(1);
    EXPECT_EQ(4u, Seen().size()) << "the same objects, on a coarser screen";
    DestroyIcon(hFine);
    DeleteBitmap(hCoarse);
}

TEST_F(ScreenScaleTest, MemoryIsAsFineAsTheWindowItIsFor)
{
    UseScale(2);
    EXPECT_EQ((Rows{"RR##", "RR##"}), Show({2, 1}, [](HDC hdc) {
                  const HDC hMemory = CreateCompatibleDC(hdc);
                  const HBITMAP hBitmap = CreateCompatibleBitmap(hdc, 2, 1);
                  SelectBitmap(hMemory, hBitmap);
                  FillSolidRect(hMemory, CRect(0, 0, 1, 1), kRed);
                  toolkit::DrawSurface(hdc, {0, 0}, *toolkit::BitmapSurface(hBitmap));
                  DeleteDC(hMemory);
                  DeleteBitmap(hBitmap);
              }));
}

TEST_F(ScreenScaleTest, TheBuiltInFontIsEnlargedDotByDot)
{
    const auto write = [](HDC hdc) {
        SetTextColor(hdc, kRed);
        TextOut(hdc, 1, 1, "fy\u0301");
    };
    const Rows small = Show({20, 16}, write);
    Rows enlarged;
    for (const std::string& row : small) {
        std::string twice;
        for (const char letter : row)
            twice.append(2, letter);
        enlarged.insert(enlarged.end(), 2, twice);
    }
    UseScale(2);
    EXPECT_EQ(enlarged, Seen());
}
