// What the tree is made of and knows no window: the images lent to items, and the one label.
#include "Views/tree/TreeIconSlots.h"
#include "Views/tree/TreeLabel.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace
{

HTREEITEM Item(int n)
{
    return reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(n));
}

TEST(TreeIconSlotsTest, TheOldestSlotThatIsGivenUpOrHiddenIsTakenOver)
{
    views::TreeIconSlots slots;
    std::set<HTREEITEM> hidden;
    const auto takeOver = [&] { return slots.TakeOver([&](HTREEITEM hItem) { return !hidden.contains(hItem); }); };
    for (int i = 1; i <= 5; ++i)
        slots.Lend(Item(i), i == 3 ? -1 : 10 * i); // the third icon could not be made
    slots.Lend(Item(1), 60);                       // the youngest now; its former slot is free
    EXPECT_EQ(10, takeOver());
    EXPECT_EQ(-1, takeOver());

    hidden = {Item(4), Item(2)};
    slots.ItemsHidden();
    slots.GiveUp(Item(3));
    EXPECT_EQ(nullptr, slots.Find(Item(3)));
    EXPECT_EQ(20, takeOver());
    EXPECT_EQ(nullptr, slots.Find(Item(2)));
    EXPECT_EQ(-1, takeOver());
    EXPECT_EQ(3, slots.GetCount());
    EXPECT_EQ(40, takeOver());
    EXPECT_EQ(2, slots.GetCount());
    EXPECT_EQ(60, slots.Find(Item(1))->nImage);
}

TEST(TreeIconSlotsTest, DrawingManyItemsAsksAboutEachOfThemOnce)
{
    views::TreeIconSlots slots;
    int nAsked = 0;
    const auto takeOver = [&] { return slots.TakeOver([&](HTREEITEM) { return ++nAsked != 0; }); };
    for (int i = 1; i <= 1000; ++i) {
        EXPECT_EQ(-1, takeOver());
        slots.Lend(Item(i), i);
    }
    for (int i = 1000; i > 0; i -= 3) { // their icons have changed
        slots.GiveUp(Item(i));
        EXPECT_EQ(i, takeOver());
        slots.Lend(Item(i), i);
    }
    EXPECT_LE(nAsked, 2000);
}

// A source of names that fills what it likes.
struct NameSource
{
    std::string name;
    DWORD announced;
    BOOL available = TRUE;

    BOOL GetName(char* pBuffer, DWORD* pLength)
    {
        if (!pBuffer)
            *pLength = announced;
        else
            name.copy(pBuffer, announced);
        return available;
    }
};

TEST(TreeLabelTest, TheMarkIsAppendedInTheOneBufferWhateverTheSourceDoes)
{
    CString strLabel("what was here before, longer than any label");
    const char* const pszBuffer = strLabel.GetString();
    const auto build = [&](NameSource source, bool bModified = true) {
        const char* pszLabel = views::BuildLabel(&source, &NameSource::GetName, bModified, strLabel);
        EXPECT_EQ(pszBuffer, strLabel.GetString());
        return std::string(pszLabel ? pszLabel : "none");
    };
    EXPECT_EQ("name *", build({"name", 5}));
    EXPECT_EQ("b", build({"b", 2}, false));
    EXPECT_EQ(1, strLabel.GetLength());
    EXPECT_EQ("abcd *", build({"abcdef", 4})); // no terminating zero
    EXPECT_EQ(" *", build({"", 6}));           // nothing written
    EXPECT_EQ(" *", build({"abc", 0}));
    EXPECT_EQ("none", build({"abc", 4, FALSE}));
}

} // namespace
