#include "Toolkit/controls/ListLayout.h"

#include "Toolkit/controls/ListLabel.h"
#include "tests/toolkit/Ruler.h"

#include <gtest/gtest.h>

using namespace toolkit;

namespace
{

constexpr int kMost = 0x7FFFFFFF;

// Three columns of 110, lines of 96, with pictures of 48.
ListLayout MakeLayout(int count, CSize client = {330, 300})
{
    ListLayout layout;
    layout.SetIcon({48, 48});
    layout.SetClient(client);
    layout.SetCount(count);
    return layout;
}

std::string Text(const CRect& r)
{
    return std::to_string(r.left) + "," + std::to_string(r.top) + " " + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

std::string Text(const CellBlock& b)
{
    return b.IsEmpty() ? "none" : Text(CRect(b.firstColumn, b.firstLine, b.endColumn, b.endLine));
}

TEST(ListLayoutTest, ColumnsShareTheWidthAndEveryPixelBelongsToOneCell)
{
    const ListLayout layout = MakeLayout(8);
    EXPECT_EQ(3, layout.Columns());
    EXPECT_EQ(3, layout.Lines());
    EXPECT_EQ("110,96 220,192", Text(layout.CellRect(4)));
    EXPECT_EQ("141,102 189,150", Text(layout.IconRect(4)));
    EXPECT_EQ("113,153 217,192", Text(layout.LabelRoom(4)));
    for (int row = 0; row < 8; ++row) {
        const CRect cell = layout.CellRect(row);
        EXPECT_EQ(row, layout.CellAt(cell.TopLeft()));
        EXPECT_EQ(row, layout.CellAt(cell.BottomRight() - CPoint(1, 1)));
    }
    EXPECT_EQ(-1, layout.CellAt({225, 200})); // where row 8 would be
    EXPECT_EQ(-1, layout.CellAt({0, 288}));
    EXPECT_EQ(-1, layout.CellAt({-1, 0}));
    EXPECT_EQ(-1, layout.CellAt({330, 0}));

    EXPECT_EQ(1, MakeLayout(8, {20, 300}).Columns());
    EXPECT_EQ("0,0 100,96", Text(MakeLayout(8, {20, 300}).CellRect(0)));
}

TEST(ListLayoutTest, ARectangleTouchesABlockOfCells)
{
    ListLayout layout = MakeLayout(100);
    EXPECT_EQ("0,0 3,4", Text(layout.CellsTouching({0, 0, 330, 300})));
    EXPECT_EQ("0,0 1,1", Text(layout.CellsTouching({0, 0, 110, 96})));
    EXPECT_EQ("1,1 3,3", Text(layout.CellsTouching({110, 191, 221, 193})));
    layout.ScrollTo(96);
    EXPECT_EQ("0,1 3,5", Text(layout.CellsTouching({0, 0, 330, 300})));
    EXPECT_EQ(3, layout.FirstVisibleRow());
    layout.ScrollTo(1 << 30);
    EXPECT_EQ(34 * 96 - 300, layout.ScrollPosition());

    // A rubber band passes between the pictures.
    EXPECT_EQ("none", Text(layout.BodiesTouching({90, 0, 130, 300})));
    EXPECT_EQ("1,0 2,3", Text(layout.BodiesTouching({120, 0, 140, 200})));
    EXPECT_EQ("none", Text(layout.BodiesTouching({0, 80, 330, 98})));
    EXPECT_EQ("0,33 3,34", Text(layout.BodiesTouching({-500, 33 * 96 + 60, 900, 99999})));
}

TEST(ListLayoutTest, TheLongestListHasItsRowsWhereTheyBelong)
{
    ListLayout layout = MakeLayout(kMost, {90, 300});
    EXPECT_EQ(std::int64_t{kMost} * 96, layout.ContentHeight());
    layout.ScrollTo(layout.MaxScroll());
    EXPECT_EQ("0,204 100,300", Text(layout.CellRect(kMost - 1)));
    EXPECT_EQ(kMost - 1, layout.CellAt({5, 299}));
    EXPECT_TRUE((layout.CellRect(0) & CRect(0, 0, 90, 300)).IsRectEmpty());
    EXPECT_EQ(0, layout.ScrollToShow(0, false));
    layout.ScrollTo(0);
    EXPECT_EQ(layout.MaxScroll(), layout.ScrollToShow(kMost - 1, false));
}

TEST(ListLayoutTest, ARowIsShownByTheShortestWayAndStaysAtTheTopOfAWiderView)
{
    ListLayout layout = MakeLayout(100);
    layout.ScrollTo(100);
    EXPECT_EQ(96, layout.ScrollToShow(3, false)); // cut at the top
    EXPECT_EQ(100, layout.ScrollToShow(3, true));
    EXPECT_EQ(100, layout.ScrollToShow(6, false));
    EXPECT_EQ(5 * 96 - 300, layout.ScrollToShow(12, false)); // cut at the bottom
    EXPECT_EQ(100, layout.ScrollToShow(12, true));
    EXPECT_EQ(0, layout.ScrollToShow(0, true));
    layout.SetClient({330, 50}); // lower than a cell
    EXPECT_EQ(192, layout.ScrollToShow(6, false));

    layout = MakeLayout(1000);
    layout.ScrollTo(40 * 96 + 10); // row 120
    layout.SetClient({500, 300});
    EXPECT_EQ(5, layout.Columns());
    EXPECT_EQ(120, layout.FirstVisibleRow());
    EXPECT_EQ(24 * 96 + 10, layout.ScrollPosition());
    layout.SetCount(4);
    EXPECT_EQ(0, layout.ScrollPosition());
}

std::string Wrapped(std::string_view text, int width = 100, int maxLines = 2)
{
    std::string all;
    for (const LabelLine& line : WrapLabel(text, width, maxLines)) {
        EXPECT_EQ(CurrentTextEngine().Measure(line.text, FontStyle::Regular), line.width);
        all += (all.empty() ? "" : "|") + line.text;
    }
    return all;
}

TEST(ListLabelTest, ANameIsBrokenWhereItReadsBestWithFewLooks)
{
    Ruler ruler;
    EXPECT_EQ("short", Wrapped("short"));
    EXPECT_EQ("ten chars.", Wrapped("ten chars."));
    EXPECT_EQ("a walk in|the sun", Wrapped("a walk in the sun"));
    EXPECT_EQ("sunny_|autumn.png", Wrapped("sunny_autumn.png"));
    EXPECT_EQ("sunny_holi|day.png", Wrapped("sunny_holiday.png"));
    EXPECT_EQ("sunny_|holiday...", Wrapped("sunny_holidays-in-the-sun.png"));
    EXPECT_EQ("walk|unbreak...", Wrapped("walk unbreakable"));
    EXPECT_EQ("walk to|beautif...", Wrapped("walk to beautiful-1"));
    EXPECT_EQ("unbreakabl|ename", Wrapped("unbreakablename"));
    EXPECT_EQ("a verylong|word here", Wrapped("a verylongword here"));
    EXPECT_EQ("a|verylongwo", Wrapped("a verylongwo")); // nothing is lost by the early break
    EXPECT_EQ("more words|than th...", Wrapped("more words than the cell holds"));
    EXPECT_EQ("more wo...", Wrapped("more words than the cell holds", 100, 1));
    EXPECT_EQ("ÄÖÜäöüßéèç|ñ", Wrapped("ÄÖÜäöüßéèçñ"));
    EXPECT_EQ("two lines", Wrapped("\n two\tlines \r\n"));
    EXPECT_EQ("", Wrapped(" \t "));
    EXPECT_EQ("W|...", Wrapped("WWW", 5)); // too narrow for anything
    EXPECT_EQ("W", Wrapped("W", 5));

    ruler.asked = 0;
    WrapLabel(std::string(4000, 'x'), 100, 2);
    EXPECT_LT(ruler.asked, 40);
    ruler.asked = 0;
    WrapLabel("IMG_20240611_174502.jpeg", 100, 2);
    EXPECT_LT(ruler.asked, 20);
}

} // namespace
