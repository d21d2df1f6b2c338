#include "Toolkit/base/Exception.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/Pixels.h"
#include "Toolkit/graphics/SysColors.h"
#include "tests/support/AllocationFailures.h"
#include "tests/toolkit/Picture.h"

#include <array>
#include <gtest/gtest.h>

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlack = RGB(0, 0, 0);

// A device context on a white surface; everything made during a test must be gone at its end.
class GraphicsTest : public testing::Test
{
protected:
    void SetUp() override { Begin({6, 4}); }
    void TearDown() override
    {
        DeleteDC(hdc);
        EXPECT_EQ(0, toolkit::CountGdiObjects());
    }

    void Begin(CSize size, CPoint origin = {})
    {
        DeleteDC(hdc);
        surface = toolkit::Surface(size, 0xFFFFFFFF);
        hdc = toolkit::CreateSurfaceDC(surface, origin, toolkit::Region({0, 0, size.cx, size.cy}));
    }

    toolkit::Surface surface;
    HDC hdc = nullptr;
};

TEST_F(GraphicsTest, FillsInsideTheRectangleAndTheSurface)
{
    const HBRUSH hBrush = CreateSolidBrush(kBlack);
    EXPECT_TRUE(FillSolidRect(hdc, CRect(4, -3, INT32_MAX, 2), kRed));
    EXPECT_TRUE(FillRect(hdc, CRect(0, 1, 4, 3), hBrush));
    EXPECT_TRUE(FillRect(hdc, CRect(5, 3, 6, 4), hBrush));
    EXPECT_TRUE(FillSolidRect(hdc, CRect(3, 3, 1, 1), kGreen)); // an empty one
    EXPECT_TRUE(DeleteBrush(hBrush));

    EXPECT_EQ((Rows{
                  "....RR",
                  "####RR",
                  "####..",
                  ".....#",
              }),
              ShowPicture(surface));
}

TEST_F(GraphicsTest, DrawsRelativeToTheOriginAndThroughTheClip)
{
    Begin({6, 4}, {1, 1});
    EXPECT_EQ(1, SaveDC(hdc));
    EXPECT_TRUE(IntersectClipRect(hdc, CRect(0, 0, 4, 9)));
    EXPECT_EQ(2, SaveDC(hdc));
    EXPECT_TRUE(IntersectClipRect(hdc, CRect(1, -9, 9, 9)));
    EXPECT_FALSE(RectVisible(hdc, CRect(-1, 1, 1, 2)));
    EXPECT_TRUE(RectVisible(hdc, CRect(0, 1, 2, 2)));
    FillSolidRect(hdc, CRect(-9, -9, 9, 9), kRed);
    EXPECT_EQ((Rows{
                  "......",
                  "..RRR.",
                  "..RRR.",
                  "..RRR.",
              }),
              ShowPicture(surface));

    SetTextColor(hdc, kRed);
    EXPECT_FALSE(RestoreDC(hdc, 3));
    EXPECT_TRUE(RestoreDC(hdc, 1)); // over the second one
    EXPECT_FALSE(RestoreDC(hdc, -1));
    EXPECT_EQ(kBlack, SetTextColor(hdc, kGreen));
    FillSolidRect(hdc, CRect(-1, -1, 0, 3), kGreen);
    EXPECT_EQ("G.....", ShowPicture(surface)[0]);
}

TEST_F(GraphicsTest, AFocusRectangleDrawnTwiceIsGone)
{
    FillSolidRect(hdc, CRect(0, 0, 3, 4), kRed);
    const Rows before = ShowPicture(surface);
    DrawFocusRect(hdc, CRect(1, 0, 6, 4));
    EXPECT_EQ(0xFF00FFFF, surface.At(1, 0)); // red's opposite
    FillSolidRect(hdc, CRect(0, 0, 3, 4), kGreen);
    EXPECT_EQ((Rows{
                  "GGG#.#",
                  "GGG...",
                  "GGG..#",
                  "GGG.#.",
              }),
              ShowPicture(surface));

    DrawFocusRect(hdc, CRect(0, 0, 1, 4)); // one pixel wide: each once
    DrawFocusRect(hdc, CRect(0, 0, 1, 4));
    DrawFocusRect(hdc, CRect(3, 0, 6, 4));
    DrawFocusRect(hdc, CRect(3, 0, 6, 4));
    DrawFocusRect(hdc, CRect(1, 0, 6, 4));
    FillSolidRect(hdc, CRect(0, 0, 3, 4), kRed);
    EXPECT_EQ(before, ShowPicture(surface));
}

TEST_F(GraphicsTest, BlendsByAlphaWithoutDriftAtTheEnds)
{
    BlendRect(hdc, CRect(0, 0, 1, 1), kRed, 255);
    BlendRect(hdc, CRect(1, 0, 2, 1), kRed, 0);
    BlendRect(hdc, CRect(2, 0, 3, 1), kBlack, 128);
    BlendRect(hdc, CRect(3, 0, 4, 1), RGB(255, 255, 255), 77);
    EXPECT_EQ("R.?.", ShowPicture(surface)[0].substr(0, 4));
    EXPECT_EQ(0xFF7F7F7F, surface.At(2, 0));

    surface.Row(1)[0] = 0;
    BlendRect(hdc, CRect(0, 1, 1, 2), kRed, 128);
    EXPECT_EQ(0x80800000, surface.At(0, 1)); // over nothing the colour stays half transparent
}

// Many at a time and one by one: each row is longer than what is taken at once.
TEST_F(GraphicsTest, ARowIsBlendedLikeEachOfItsPixels)
{
    constexpr int kCount = 23;
    constexpr toolkit::Pixel kColor = 0xFF10C8FF;
    const auto premultiplied = [](toolkit::Pixel p) { return toolkit::ScalePixel(p | 0xFF000000u, p >> 24); };
    for (toolkit::Pixel alpha = 0; alpha < 256; ++alpha) {
        std::array<toolkit::Pixel, kCount> below, above, pictured, masked, expectedPicture, expectedMask;
        std::array<BYTE, kCount> mask;
        for (unsigned i = 0; i < kCount; ++i) {
            below[i] = premultiplied(0x01020304u * (i * 11 + alpha));
            above[i] = premultiplied(alpha << 24 | 0x0B17F3u * i % 0xFFFFFFu);
            mask[i] = static_cast<BYTE>(alpha * (i % 3));
            expectedPicture[i] = toolkit::Over(above[i], below[i]);
            expectedMask[i] = toolkit::Over(toolkit::ScalePixel(kColor, mask[i]), below[i]);
        }
        pictured = masked = below;
        toolkit::BlendRow(pictured.data(), above.data(), kCount);
        toolkit::BlendRow(masked.data(), mask.data(), kCount, kColor);
        EXPECT_EQ(expectedPicture, pictured);
        EXPECT_EQ(expectedMask, masked);
    }
}

TEST_F(GraphicsTest, PicturesAreDrawnByTheAlphaOfEachPixel)
{
    Begin({83, 1});
    const std::string red(17, 'R'), blue(15, 'B');
    const toolkit::Surface wide = MakePicture({red + std::string(20, ' ') + std::string(30, 'r') + blue});
    toolkit::DrawSurface(hdc, {1, 0}, wide, wide.Bounds());
    EXPECT_EQ((Rows{"." + red + std::string(20, '.') + std::string(30, '?') + blue}), ShowPicture(surface));
    for (int x = 38; x < 68; ++x)
        EXPECT_EQ(0xFFFF7F7F, surface.At(x, 0));
    toolkit::DrawSurface(hdc, {-1, 0}, wide, CRect(80, 0, 82, 1)); // a part, half of it out of sight
    EXPECT_EQ("BRRR", ShowPicture(surface)[0].substr(0, 4));
}

TEST_F(GraphicsTest, ABumpIsRaisedOutsideAndSunkenInside)
{
    const auto shown = [this] {
        Rows rows = ShowPicture(surface);
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x)
                for (const auto& [index, letter] : {std::pair(COLOR_3DLIGHT, 'l'), std::pair(COLOR_3DDKSHADOW, 'd')})
                    if (toolkit::ToColor(surface.At(x, y)) == GetSysColor(index))
                        rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = letter;
        return rows;
    };
    Begin({7, 6});
    EXPECT_TRUE(DrawEdge(hdc, CRect(1, 0, 7, 6), EDGE_BUMP, BF_RECT));
    EXPECT_EQ((Rows{
                  ".llllld",
                  ".ldddld",
                  ".ld..ld",
                  ".ld..ld",
                  ".llllld",
                  ".dddddd",
              }),
              shown());
}

TEST_F(GraphicsTest, TheFarthestCoordinatesAreJustOutOfSight)
{
    constexpr int kLeast = INT32_MIN, kMost = INT32_MAX;
    Begin({6, 4}, {-2, 3});
    const HICON hIcon = CreateIconFromSurface(MakePicture({"RG", "BY"}));
    for (const int far : {kLeast, kLeast + 1, kMost - 1, kMost}) {
        EXPECT_TRUE(DrawIcon(hdc, far, 0, hIcon));
        EXPECT_TRUE(DrawIcon(hdc, 0, far, hIcon));
        EXPECT_TRUE(TextOut(hdc, far, 0, "far"));
        EXPECT_TRUE(TextOut(hdc, 0, far, "far"));
    }
    EXPECT_TRUE(DrawFocusRect(hdc, CRect(kLeast, kLeast, kMost, kMost)));
    EXPECT_TRUE(IntersectClipRect(hdc, CRect(kLeast, kLeast, kMost - 1, kMost)));
    EXPECT_EQ(Rows(4, "......"), ShowPicture(surface));

    EXPECT_TRUE(FillSolidRect(hdc, CRect(kLeast, kLeast, kMost, kMost), kRed));
    EXPECT_EQ(Rows(4, "RRRRRR"), ShowPicture(surface));
    EXPECT_TRUE(DestroyIcon(hIcon));
}

TEST_F(GraphicsTest, ASelectedBitmapCannotBeDeletedNorSelectedElsewhere)
{
    const HDC hdcOne = CreateCompatibleDC(nullptr);
    const HDC hdcTwo = CreateCompatibleDC(hdcOne);
    const HBITMAP hBitmap = CreateBitmapFromSurface(toolkit::Surface({3, 2}, 0xFFFFFFFF));

    const HBITMAP hOwn = SelectBitmap(hdcOne, hBitmap);
    EXPECT_EQ(CSize(1, 1), GetBitmapSize(hOwn));
    EXPECT_EQ(nullptr, SelectBitmap(hdcTwo, hBitmap));
    EXPECT_EQ(nullptr, SelectBitmap(hdcTwo, hOwn));
    EXPECT_EQ(nullptr, SelectBitmap(hdc, hBitmap)); // draws into a surface
    EXPECT_FALSE(DeleteBitmap(hBitmap));
    EXPECT_FALSE(DeleteBitmap(hOwn));
    EXPECT_EQ(hBitmap, SelectBitmap(hdcOne, hBitmap));

    FillSolidRect(hdcOne, CRect(1, 0, 2, 9), kRed);
    EXPECT_EQ((Rows{".R.", ".R."}), ShowPicture(*toolkit::BitmapSurface(hBitmap)));

    EXPECT_TRUE(DeleteDC(hdcOne)); // lets go of the bitmap
    EXPECT_EQ(CSize(), GetBitmapSize(hOwn));
    EXPECT_NE(nullptr, SelectBitmap(hdcTwo, hBitmap));
    EXPECT_TRUE(DeleteDC(hdcTwo));
    EXPECT_TRUE(DeleteBitmap(hBitmap));
}

TEST_F(GraphicsTest, WhenMemoryRunsOutNothingIsLeftBehind)
{
    const HICON hIcon = CreateIconFromSurface(MakePicture({"RG"}));
    const int alive = toolkit::CountGdiObjects();
    const auto failEach = [alive](const std::function<void()>& call) {
        const int failed = FailEveryAllocation([&] {
            try {
                call();
            } catch (const CMemoryException&) {
            }
            EXPECT_EQ(alive, toolkit::CountGdiObjects());
        });
        EXPECT_LT(1, failed);
    };
    failEach([] { DeleteDC(CreateCompatibleDC(nullptr)); });
    failEach([] { DeleteBitmap(CreateBitmapFromSurface(toolkit::Surface({3, 3}))); });
    failEach([hIcon] {
        ICONINFO info{};
        GetIconInfo(hIcon, &info);
        DeleteBitmap(info.hbmColor);
        DeleteBitmap(info.hbmMask);
    });
    DestroyIcon(hIcon);
}

TEST_F(GraphicsTest, StaleAndNullHandlesAreRefused)
{
    const HBRUSH hBrush = CreateSolidBrush(kRed);
    const HDC hdcGone = CreateCompatibleDC(hdc);
    EXPECT_TRUE(DeleteBrush(hBrush));
    EXPECT_TRUE(DeleteDC(hdcGone));

    EXPECT_FALSE(DeleteBrush(hBrush));
    EXPECT_FALSE(FillRect(hdc, CRect(0, 0, 2, 2), hBrush));
    EXPECT_FALSE(FillSolidRect(hdcGone, CRect(0, 0, 2, 2), kRed));
    EXPECT_EQ(nullptr, CreateCompatibleDC(hdcGone));
    EXPECT_EQ(nullptr, SelectBitmap(hdcGone, nullptr));
    EXPECT_EQ(0, SaveDC(hdcGone));
    EXPECT_FALSE(TextOut(nullptr, 0, 0, "x"));
    EXPECT_FALSE(DrawIcon(hdc, 0, 0, nullptr));
    EXPECT_EQ(ShowPicture(toolkit::Surface({6, 4}, 0xFFFFFFFF)), ShowPicture(surface));
}

} // namespace
