// Pictures in lists, from resources, and scaled.
#include "Toolkit/graphics/ImageList.h"

#include "Toolkit/graphics/Resources.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"
#include "tests/toolkit/Picture.h"

#include <gtest/gtest.h>
#include <random>

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);

class ImageListTest : public testing::Test
{
protected:
    ~ImageListTest() override
    {
        images.DeleteImageList();
        for (HBITMAP hBitmap : bitmaps)
            DeleteBitmap(hBitmap);
        EXPECT_EQ(0, toolkit::CountGdiObjects());
    }

    HBITMAP Bitmap(const Rows& rows) { return bitmaps.emplace_back(CreateBitmapFromSurface(MakePicture(rows))); }

    int PutIcon(int i, const Rows& rows)
    {
        const HICON hIcon = CreateIconFromSurface(MakePicture(rows));
        const int index = ImageList_ReplaceIcon(images.GetSafeHandle(), i, hIcon);
        DestroyIcon(hIcon);
        return index;
    }

    Rows Shown(int i)
    {
        int cx = 0, cy = 0;
        EXPECT_TRUE(ImageList_GetIconSize(images.GetSafeHandle(), &cx, &cy));
        toolkit::Surface surface({cx, cy}, 0xFFFFFFFF);
        const HDC hdc = toolkit::CreateSurfaceDC(surface, {}, toolkit::Region(surface.Bounds()));
        EXPECT_TRUE(ImageList_Draw(images.GetSafeHandle(), i, hdc, 0, 0, ILD_NORMAL));
        DeleteDC(hdc);
        return ShowPicture(surface);
    }

    CImageList images;
    std::vector<HBITMAP> bitmaps;
};

TEST_F(ImageListTest, ABitmapIsCutIntoImagesAndItsTransparentColourVanishes)
{
    CResourceModule module;
    module.AddBitmap(1006, MakePicture({"RGRBB.R", "GRBRBBR"}));
    EXPECT_FALSE(images.Create(1006, 2, 4, kRed)); // not in the chain yet
    module.Join();

    ASSERT_TRUE(images.Create(1006, 2, 4, kRed));
    EXPECT_EQ(3, images.GetImageCount()); // the rest of a column is no image
    EXPECT_EQ((Rows{".G", "G."}), Shown(0));
    EXPECT_EQ((Rows{".B", "B."}), Shown(1));
    EXPECT_EQ((Rows{"B.", "BB"}), Shown(2));

    EXPECT_FALSE(images.Create(1006, 8, 4, kRed));
    EXPECT_FALSE(images.Create(1006, 0, 4, kRed));
}

TEST_F(ImageListTest, AddsAndReplacesWithAndWithoutMasks)
{
    ASSERT_TRUE(images.Create(2, 2, ILC_COLOR32, 0, 4));
    const HIMAGELIST himl = images.GetSafeHandle();
    const HBITMAP hPicture = Bitmap({"RRBB", "R BB"}), hMask = Bitmap({"#.##", "####"}), hSmall = Bitmap({"RR"});

    EXPECT_EQ(0, ImageList_Add(himl, hPicture, nullptr));
    EXPECT_EQ(2, ImageList_Add(himl, hPicture, hMask));
    EXPECT_EQ((Rows{"RR", "R."}), Shown(0));
    EXPECT_EQ((Rows{"R.", "R."}), Shown(2));
    EXPECT_EQ((Rows{"BB", "BB"}), Shown(3));
    EXPECT_TRUE(ImageList_Replace(himl, 3, hPicture, nullptr));
    EXPECT_EQ((Rows{"RR", "R."}), Shown(3));
    EXPECT_FALSE(ImageList_Replace(himl, 4, hPicture, nullptr));
    EXPECT_FALSE(ImageList_Replace(himl, -1, hPicture, nullptr));
    EXPECT_FALSE(ImageList_Replace(himl, 0, hSmall, nullptr));
    EXPECT_FALSE(ImageList_Replace(himl, 0, hPicture, hSmall));
    EXPECT_EQ(-1, ImageList_Add(himl, hSmall, nullptr));
    EXPECT_FALSE(ImageList_Draw(himl, 4, nullptr, 0, 0, ILD_NORMAL));
}

TEST_F(ImageListTest, IconsAreScaledToFitAndCentred)
{
    ASSERT_TRUE(images.Create(4, 4, ILC_COLOR32, 0, 4));
    EXPECT_EQ(0, PutIcon(-1, {"RRRRRRRR", "RRRRRRRR", "GGGGGGGG", "GGGGGGGG"}));
    EXPECT_EQ((Rows{"....", "RRRR", "GGGG", "...."}), Shown(0));
    EXPECT_EQ(0, PutIcon(0, {"R  R", " BB ", " BB ", "R  R"}));
    EXPECT_EQ((Rows{"R..R", ".BB.", ".BB.", "R..R"}), Shown(0));
    EXPECT_EQ(-1, PutIcon(2, {"R"}));
    EXPECT_EQ(-1, ImageList_ReplaceIcon(images.GetSafeHandle(), -1, nullptr));
}

TEST(ResourcesTest, TheModuleJoinedLastIsAskedFirst)
{
    CResourceModule library;
    CString text;
    library.AddString(7, "library's");
    library.AddString(8, "only here");
    library.AddIcon(7, MakePicture({"R "}));
    library.Join();
    const auto texts = [&] { return text.LoadString(7), std::string(text.View()); };
    {
        CResourceModule host;
        host.AddString(7, "host's");
        host.Join();
        library.Join(); // is in the chain: keeps its place
        EXPECT_EQ("host's", texts());
        EXPECT_TRUE(text.LoadString(8));
    }
    EXPECT_EQ("library's", texts());
    EXPECT_FALSE(text.LoadString(9));

    const HICON hIcon = LoadIcon(7);
    ICONINFO info{};
    ASSERT_TRUE(GetIconInfo(hIcon, &info));
    EXPECT_EQ((Rows{"R "}), ShowPicture(*toolkit::BitmapSurface(info.hbmColor)));
    EXPECT_EQ((Rows{"#."}), ShowPicture(*toolkit::BitmapSurface(info.hbmMask)));
    EXPECT_TRUE(DeleteBitmap(info.hbmColor) && DeleteBitmap(info.hbmMask) && DestroyIcon(hIcon));
    EXPECT_EQ(nullptr, LoadBitmap(7));
}

using toolkit::Pixel;
using toolkit::ScaleSurface;
using toolkit::Surface;

// The same by definition, a channel of a pixel at a time, with fractions of an area.
unsigned MeanOf(const Surface& source, CSize size, int column, int row, int channel)
{
    const auto overlap = [](int target, int from, int targets, int sources) {
        const std::int64_t begin = std::max(std::int64_t{target} * sources, std::int64_t{from} * targets);
        const std::int64_t end = std::min(std::int64_t{target + 1} * sources, std::int64_t{from + 1} * targets);
        return std::max<std::int64_t>(0, end - begin);
    };
    std::int64_t sum = 0;
    for (int y = 0; y < source.Height(); ++y)
        for (int x = 0; x < source.Width(); ++x)
            sum += overlap(column, x, size.cx, source.Width()) * overlap(row, y, size.cy, source.Height()) *
                   (source.At(x, y) >> (8 * channel) & 0xFF);
    const std::int64_t count = std::int64_t{source.Width()} * source.Height();
    return static_cast<unsigned>((sum + count / 2) / count);
}

Surface Noise(CSize size)
{
    std::mt19937 random(static_cast<unsigned>(size.cx * 1000 + size.cy));
    Surface noise(size);
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            noise.Row(y)[x] = static_cast<Pixel>(random());
    return noise;
}

TEST(ScaleTest, EachPixelIsTheMeanOfTheAreaItCovers)
{
    const std::pair<CSize, CSize> cases[] = {
        {{7, 5}, {3, 2}}, {{3, 2}, {7, 5}}, {{16, 600}, {5, 2}},  {{600, 3}, {1, 1}},
        {{9, 4}, {9, 2}}, {{1, 1}, {3, 3}}, {{1, 3}, {1, 70000}},
    };
    for (const auto& [from, to] : cases) {
        const Surface source = Noise(from), scaled = ScaleSurface(source, to);
        ASSERT_EQ(to, scaled.Bounds().Size());
        for (int y = 0; y < to.cy; ++y)
            for (int x = 0; x < to.cx; ++x)
                for (int channel = 0; channel < 4; ++channel)
                    ASSERT_EQ(MeanOf(source, to, x, y, channel), scaled.At(x, y) >> (8 * channel) & 0xFF)
                        << from.cx << " by " << from.cy << " at " << x << ", " << y;
    }
}

TEST(ScaleTest, TransparentPixelsLendNoColourAndAWhitePictureStaysWhite)
{
    EXPECT_EQ((Rows{"Rr"}), ShowPicture(ScaleSurface(MakePicture({"RRR ", "RR R"}), {2, 1})));
    EXPECT_EQ((Rows{"RRG", "RRG"}), ShowPicture(ScaleSurface(MakePicture({"RRRRGG"}), {3, 2})));

    EXPECT_EQ(CSize(34, 80), toolkit::FitInto({3, 7}, {80, 80}));
    EXPECT_TRUE(ScaleSurface(Surface({0, 4}), {3, 3}).IsEmpty());
    EXPECT_TRUE(ScaleSurface(Surface({4, 4}), {3, -3}).IsEmpty());
    EXPECT_EQ((Rows{"...", "..."}), ShowPicture(ScaleSurface(Surface({1023, 769}, 0xFFFFFFFF), {3, 2})));
}

} // namespace
