#include "Toolkit/base/Exception.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/Pixels.h"
#include "Toolkit/graphics/Region.h"
#include "Toolkit/graphics/SysColors.h"
#include "tests/support/AllocationFailures.h"
#include "tests/toolkit/Picture.h"

#include <array>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <utility>

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

TEST_F(GraphicsTest, DrawsInsideTheRectangleTheClipAndTheSurfaceHoweverFarTheCoordinates)
{
    constexpr int kLeast = INT32_MIN, kMost = INT32_MAX;
    Begin({6, 4}, {1, 1});
    const HBRUSH hBrush = CreateSolidBrush(kBlack);
    EXPECT_TRUE(FillRect(hdc, CRect(-1, 0, 1, 1), hBrush));
    EXPECT_TRUE(FillSolidRect(hdc, CRect(3, 3, 1, 1), kGreen)); // an empty one
    EXPECT_EQ(1, SaveDC(hdc));
    EXPECT_TRUE(IntersectClipRect(hdc, CRect(0, 0, 4, 9)));
    EXPECT_EQ(2, SaveDC(hdc));
    EXPECT_TRUE(IntersectClipRect(hdc, CRect(1, kLeast, kMost, kMost)));
    EXPECT_FALSE(RectVisible(hdc, CRect(-1, 1, 1, 2)));
    EXPECT_TRUE(RectVisible(hdc, CRect(0, 1, 2, 2)));
    FillSolidRect(hdc, CRect(kLeast, 1, kMost, kMost), kRed);
    SetTextColor(hdc, kRed);
    EXPECT_FALSE(RestoreDC(hdc, 3));
    EXPECT_TRUE(RestoreDC(hdc, 1)); // over the second one
    EXPECT_EQ(kBlack, SetTextColor(hdc, kGreen));

    const HICON hIcon = CreateIconFromSurface(MakePicture({"RG", "BY"}));
    for (const int far : {kLeast, kLeast + 1, kMost - 1, kMost}) {
        EXPECT_TRUE(toolkit::DrawSurface(hdc, {far, 0}, *toolkit::IconSurface(hIcon)));
        EXPECT_TRUE(TextOut(hdc, 0, far, "far"));
    }
    EXPECT_TRUE(DrawFocusRect(hdc, CRect(kLeast, kLeast, kMost, kMost)));
    EXPECT_TRUE(toolkit::DrawSurface(hdc, {4, -1}, *toolkit::IconSurface(hIcon)));
    EXPECT_EQ((Rows{
                  ".....R",
                  "##...B",
                  "..RRR.",
                  "..RRR.",
              }),
              ShowPicture(surface));
    EXPECT_TRUE(DestroyIcon(hIcon) && DeleteBrush(hBrush));

    EXPECT_FALSE(DeleteBrush(hBrush)); // what is gone is refused
    EXPECT_FALSE(FillRect(hdc, CRect(0, 0, 2, 2), hBrush));
    EXPECT_EQ(0, SaveDC(nullptr));
    EXPECT_FALSE(TextOut(nullptr, 0, 0, "x"));
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
    DrawFocusRect(hdc, CRect(1, 0, 6, 4));
    FillSolidRect(hdc, CRect(0, 0, 3, 4), kRed);
    EXPECT_EQ(before, ShowPicture(surface));
}

TEST_F(GraphicsTest, PicturesAreDrawnByTheAlphaOfEachPixel)
{
    Begin({83, 1});
    const std::string red(17, 'R'), blue(15, 'B');
    const toolkit::Surface wide = MakePicture({red + std::string(20, ' ') + std::string(30, 'r') + blue});
    toolkit::DrawSurface(hdc, {1, 0}, wide, wide.Bounds());
    EXPECT_EQ((Rows{"." + red + std::string(20, '.') + std::string(30, '?') + blue}), ShowPicture(surface));
    EXPECT_EQ(0xFFFF7F7F, surface.At(38, 0));
    BlendRect(hdc, CRect(0, 0, 1, 1), kBlack, 128);
    BlendRect(hdc, CRect(1, 0, 2, 1), kBlack, 255);
    BlendRect(hdc, CRect(2, 0, 3, 1), kBlack, 0);
    EXPECT_EQ("?#R", ShowPicture(surface)[0].substr(0, 3));
    EXPECT_EQ(0xFF7F7F7F, surface.At(0, 0));
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

TEST_F(GraphicsTest, ASelectedBitmapCannotBeDeletedNorSelectedElsewhere)
{
    const HDC hdcOne = CreateCompatibleDC(nullptr);
    const HDC hdcTwo = CreateCompatibleDC(hdcOne);
    const HBITMAP hBitmap = CreateBitmapFromSurface(toolkit::Surface({3, 2}, 0xFFFFFFFF));

    const HBITMAP hOwn = SelectBitmap(hdcOne, hBitmap);
    EXPECT_EQ(nullptr, SelectBitmap(hdcTwo, hBitmap));
    EXPECT_EQ(nullptr, SelectBitmap(hdc, hBitmap)); // draws into a surface
    EXPECT_FALSE(DeleteBitmap(hBitmap));
    EXPECT_FALSE(DeleteBitmap(hOwn));
    FillSolidRect(hdcOne, CRect(1, 0, 2, 9), kRed);
    EXPECT_EQ((Rows{".R.", ".R."}), ShowPicture(*toolkit::BitmapSurface(hBitmap)));

    EXPECT_TRUE(DeleteDC(hdcOne)); // lets go of the bitmap
    EXPECT_NE(nullptr, SelectBitmap(hdcTwo, hBitmap));
    EXPECT_TRUE(DeleteDC(hdcTwo));
    EXPECT_TRUE(DeleteBitmap(hBitmap));
}

TEST_F(GraphicsTest, WhenMemoryRunsOutNothingIsLeftBehind)
{
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
}

using toolkit::Region;
using Pixels = std::set<std::pair<int, int>>;

Pixels PixelsOf(const CRect& rect)
{
    Pixels pixels;
    for (int y = rect.top; y < rect.bottom; ++y)
        for (int x = rect.left; x < rect.right; ++x)
            pixels.emplace(x, y);
    return pixels;
}

// Also checks that no pixel is in the region twice.
Pixels PixelsOf(const Region& region)
{
    Pixels pixels;
    std::size_t area = 0;
    for (const CRect& rect : region.Rects()) {
        EXPECT_FALSE(rect.IsRectEmpty());
        area += static_cast<std::size_t>(rect.Width() * rect.Height());
        pixels.merge(PixelsOf(rect));
    }
    EXPECT_EQ(area, pixels.size());
    return pixels;
}

TEST(RegionTest, HoldsExactlyThePixelsThatWereAddedAndNotTakenAway)
{
    std::mt19937 random(7);
    const auto rect = [&random] {
        const int x = static_cast<int>(random() % 12), y = static_cast<int>(random() % 12);
        return CRect(x, y, x + static_cast<int>(random() % 7), y + static_cast<int>(random() % 7));
    };
    for (int round = 0; round < 200; ++round) {
        Region region(rect());
        Pixels expected = PixelsOf(region);
        for (int step = 0; step < 4; ++step) {
            const CRect added = rect(), taken = rect();
            region.Add(added);
            expected.merge(PixelsOf(added));
            region.Subtract(taken);
            for (const auto& pixel : PixelsOf(taken))
                expected.erase(pixel);
            if (region.Rects().size() > 12)
                break; // beyond 16 the region may hold more
            ASSERT_EQ(expected, PixelsOf(region)) << "round " << round << " step " << step;
        }
        region.Intersect({3, 3, 9, 9});
        std::erase_if(expected, [](auto p) { return p.first < 3 || p.first > 8 || p.second < 3 || p.second > 8; });
        ASSERT_EQ(expected, PixelsOf(region)) << "round " << round;
    }
}

} // namespace
