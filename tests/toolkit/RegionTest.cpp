#include "Toolkit/graphics/Region.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <utility>

namespace
{

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
