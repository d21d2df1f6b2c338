// What the views are made of and knows no window: the map of cached rows, the images lent to items, the one label.
#include "Views/list/inside/ObjectsListCache.h"
#include "Views/tree/inside/TreeIconSlots.h"
#include "Views/tree/inside/TreeLabel.h"

#include <gtest/gtest.h>
#include <string>

namespace
{

std::string Walk(const CObjectsListCache& cache)
{
    std::string strRows;
    for (const auto& node : cache)
        strRows += std::to_string(node.nRow) + node.data.strText.GetString() + " ";
    return strRows;
}

TEST(ObjectsListCacheTest, RowsMoveUpIntoTheSpareMapInWalkingOrder)
{
    CObjectsListCache cache, spare;
    for (const int nRow : {0, 1, 3, 16, 2, 17, 32})
        cache.Store(nRow, {0, nRow, ""});
    cache.Store(33, {7, 8, "last"});
    cache.Remove(2);
    spare.Store(99, {});
    spare.CopyWithoutRow(cache, 2);
    EXPECT_EQ("15 0 1 2 31 16 32last ", Walk(spare)); // the walk 3 1 0 17 16 33 32, each put in front of the last
    EXPECT_EQ(8, spare.Find(32)->nImage);
    EXPECT_EQ("3 1 0 17 16 33last 32 ", Walk(cache));

    EXPECT_EQ(15, spare.FindOldest(9)); // of all but the last, the first in the walk
    for (const int nRow : {15, 0, 1, 2, 16})
        spare.Touch(nRow, 8);
    EXPECT_EQ(31, spare.FindOldest(9));
    spare.Remove(31);
    EXPECT_EQ(32, spare.FindOldest(9));
}

TEST(TreeIconSlotsTest, DrawingManyItemsAsksAboutEachOfThemOnce)
{
    const auto item = [](int n) { return reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(n)); };
    views::TreeIconSlots slots;
    int nAsked = 0;
    const auto takeOver = [&] { return slots.TakeOver([&](HTREEITEM) { return ++nAsked != 0; }); };
    for (int i = 1; i <= 1000; ++i) {
        EXPECT_EQ(-1, takeOver());
        slots.Lend(item(i), i);
    }
    for (int i = 1000; i > 0; i -= 3) { // their icons have changed
        slots.GiveUp(item(i));
        EXPECT_EQ(i, takeOver());
        slots.Lend(item(i), i);
    }
    EXPECT_LE(nAsked, 2000);
    slots.ItemsHidden();
    EXPECT_EQ(2, slots.TakeOver([](HTREEITEM) { return false; })); // the oldest
}

// A source of names that fills what it likes.
struct NameSource
{
    std::string name;
    DWORD announced;

    BOOL GetName(char* pBuffer, DWORD* pLength)
    {
        if (pBuffer)
            name.copy(pBuffer, announced);
        else
            *pLength = announced;
        return TRUE;
    }
};

TEST(TreeLabelTest, TheMarkIsAppendedInTheOneBufferWhateverTheSourceDoes)
{
    CString strLabel("what was here before, longer than any label");
    const char* const pszBuffer = strLabel.GetString();
    const auto build = [&](NameSource source) {
        return std::string(views::BuildLabel(&source, &NameSource::GetName, true, strLabel));
    };
    EXPECT_EQ("name *", build({"name", 5}));
    EXPECT_EQ("abcd *", build({"abcdef", 4})); // no terminating zero
    EXPECT_EQ(" *", build({"", 6}));           // nothing written
    EXPECT_EQ(" *", build({"abc", 0}));
    EXPECT_EQ(pszBuffer, strLabel.GetString());
}

} // namespace
