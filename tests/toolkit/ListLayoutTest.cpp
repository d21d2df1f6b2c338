// The rows of a list, without a window: where they lie, how they are labelled, which are selected.
#include "Toolkit/controls/list/IconLayout.h"
#include "Toolkit/controls/list/RowSet.h"
#include "tests/toolkit/Ruler.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sstream>

using namespace toolkit;

namespace
{

// Three columns of 110, lines of 96, with pictures of 48.
IconLayout MakeLayout(int count, CSize client = {330, 300})
{
    IconLayout layout;
    layout.SetIcon({48, 48});
    layout.SetClient(client);
    layout.SetCount(count);
    return layout;
}

TEST(ListLayoutTest, ARowIsShownByTheShortestWayAndStaysAtTheTopOfAWiderView)
{
    IconLayout layout = MakeLayout(100);
    layout.ScrollTo(100);
    EXPECT_EQ(96, layout.ScrollToShow(3, false)); // cut at the top
    EXPECT_EQ(100, layout.ScrollToShow(3, true));
    EXPECT_EQ(5 * 96 - 300, layout.ScrollToShow(12, false)); // cut at the bottom
    layout.SetClient({330, 50});                             // lower than a cell
    EXPECT_EQ(192, layout.ScrollToShow(6, false));

    layout = MakeLayout(1000);
    layout.ScrollTo(40 * 96 + 10); // row 120
    layout.SetClient({500, 300});
    EXPECT_EQ(5, layout.Columns());
    EXPECT_EQ(120, layout.FirstVisibleRow());
    EXPECT_EQ(24 * 96 + 10, layout.ScrollPosition());
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
    EXPECT_EQ("ten chars.", Wrapped("ten chars."));
    EXPECT_EQ("a walk in|the sun", Wrapped("a walk in the sun"));
    EXPECT_EQ("sunny_|autumn.png", Wrapped("sunny_autumn.png"));
    EXPECT_EQ("sunny_holi|day.png", Wrapped("sunny_holiday.png"));
    EXPECT_EQ("sunny_|holiday...", Wrapped("sunny_holidays-in-the-sun.png"));
    EXPECT_EQ("walk to|beautif...", Wrapped("walk to beautiful-1"));
    EXPECT_EQ("unbreakabl|ename", Wrapped("unbreakablename"));
    EXPECT_EQ("a verylong|word here", Wrapped("a verylongword here"));
    EXPECT_EQ("a|verylongwo", Wrapped("a verylongwo")); // nothing is lost by the early break
    EXPECT_EQ("more wo...", Wrapped("more words than the cell holds", 100, 1));
    EXPECT_EQ("ÄÖÜäöüßéèç|ñ", Wrapped("ÄÖÜäöüßéèçñ"));
    EXPECT_EQ("two lines", Wrapped("\n two\tlines \r\n"));
    EXPECT_EQ("", Wrapped(" \t "));
    EXPECT_EQ("W|...", Wrapped("WWW", 5)); // too narrow for anything

    ruler.asked = 0;
    WrapLabel(std::string(4000, 'x'), 100, 2);
    EXPECT_LT(ruler.asked, 40);
}

std::string Text(const RowSet& rows)
{
    std::ostringstream text;
    for (RowRange run = rows.NextRange(-1); !run.IsEmpty(); run = rows.NextRange(run.end)) {
        text << (text.tellp() > 0 ? " " : "") << run.first;
        if (run.Count() > 1)
            text << '-' << run.end - 1;
    }
    return text.str();
}

TEST(RowSetTest, AgreesWithAPlainSetWhateverIsDone)
{
    std::mt19937 random(7);
    RowSet rows;
    std::set<int> plain;
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int step = 0; step < 3000; ++step) {
        const int first = below(60), end = first + below(9);
        const bool insert = below(2) == 0;
        insert ? rows.Insert({first, end}) : rows.Erase({first, end});
        for (int row = first; row < end; ++row)
            insert ? void(plain.insert(row)) : void(plain.erase(row));

        ASSERT_EQ(static_cast<int>(plain.size()), rows.Count());
        const int asked = below(70) - 1;
        ASSERT_EQ(plain.count(asked) > 0, rows.Contains(asked));
        const auto next = plain.upper_bound(asked);
        ASSERT_EQ(next == plain.end() ? -1 : *next, rows.Next(asked));
        const RowSet other({below(60), 40});
        std::set<int> rest;
        for (const int row : plain)
            if (!other.Contains(row))
                rest.insert(row);
        RowSet expected;
        for (const int row : rest)
            expected.Insert({row, row + 1});
        ASSERT_EQ(Text(expected), Text(rows.Without(other)));
        ASSERT_EQ(Text(expected), Text(rows.Without(rows.Within(other))));
    }
}

} // namespace
