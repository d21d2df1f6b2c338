#include "Editor/frame/CrumbLayout.h"

#include <gtest/gtest.h>

namespace
{

using editor::CrumbLayout;

// Parts with their places: "0@0-50 ..@60-70 3@80-120".
std::string Lay(const std::vector<int>& widths, int room)
{
    const CrumbLayout layout(widths, 10, 10, CRect(0, 0, room, 20));
    std::string text;
    for (const CrumbLayout::Crumb& crumb : layout.Crumbs())
        text += (text.empty() ? "" : " ") + (crumb.nPart == CrumbLayout::kDots ? ".." : std::to_string(crumb.nPart)) +
                '@' + std::to_string(crumb.rect.left) + '-' + std::to_string(crumb.rect.right);
    return text;
}

TEST(CrumbLayoutTest, PartsInTheMiddleMakeWayAndTheLastIsAlwaysShown)
{
    EXPECT_EQ("0@0-30 1@40-70 2@80-110 3@120-150", Lay({30, 30, 30, 30}, 150));
    EXPECT_EQ("0@0-30 ..@40-50 2@60-90 3@100-130", Lay({30, 30, 30, 30}, 149));
    EXPECT_EQ("0@0-30 ..@40-50 3@60-90", Lay({30, 30, 30, 30}, 129));
    EXPECT_EQ("0@0-30 ..@40-50 3@60-70", Lay({30, 30, 30, 30}, 70)) << "cut, when nothing is left to leave out";
    const CrumbLayout layout({30, 30, 30}, 10, 10, CRect(0, 0, 90, 20));
    EXPECT_EQ(0, layout.PartAt({29, 10}));
    EXPECT_EQ(CrumbLayout::kDots, layout.PartAt({45, 10}));
    EXPECT_EQ(2, layout.PartAt({60, 10}));
}

} // namespace
