#include "Toolkit/graphics/Scale.h"

#include "tests/toolkit/Picture.h"

#include <gtest/gtest.h>
#include <random>

namespace
{

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
