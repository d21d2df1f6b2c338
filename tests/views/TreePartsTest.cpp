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

class TreeIconSlotsTest : public testing::Test
{
protected:
    int TakeOver()
    {
        return slots.TakeOver([this](HTREEITEM hItem) {
            ++nAsked;
            return !hidden.contains(hItem);
        });
    }

    views::TreeIconSlots slots;
    std::set<HTREEITEM> hidden;
    int nAsked = 0;
};

TEST_F(TreeIconSlotsTest, TheOldestSlotThatIsGivenUpOrHiddenIsTakenOver)
{
    for (int i = 1; i <= 5; ++i)
        slots.Lend(Item(i), 10 * i);
    EXPECT_EQ(-1, TakeOver());

    hidden = {Item(4), Item(2)};
    slots.ItemsHidden();
    slots.GiveUp(Item(3));
    EXPECT_EQ(nullptr, slots.Find(Item(3)));
    EXPECT_EQ(20, TakeOver());
    EXPECT_EQ(nullptr, slots.Find(Item(2)));
    EXPECT_EQ(30, TakeOver());
    EXPECT_EQ(40, TakeOver());
    EXPECT_EQ(-1, TakeOver());
    EXPECT_EQ(2, slots.GetCount());
    EXPECT_EQ(50, slots.Find(Item(5))->nImage);
}

TEST_F(TreeIconSlotsTest, AnImageThatCouldNotBeMadeKeepsItsPlaceInTheLine)
{
    slots.Lend(Item(1), -1);
    slots.Lend(Item(2), 7);
    EXPECT_EQ(-1, slots.Find(Item(1))->nImage);
    slots.GiveUp(Item(1));
    slots.GiveUp(Item(2));
    EXPECT_EQ(-1, TakeOver());
    EXPECT_EQ(1, slots.GetCount());
    EXPECT_EQ(7, TakeOver());
}

TEST_F(TreeIconSlotsTest, AnItemHasOneSlotAndANewOneIsTheYoungest)
{
    slots.Lend(Item(1), 1);
    slots.Lend(Item(2), 2);
    slots.Lend(Item(1), 3);
    EXPECT_EQ(3, slots.Find(Item(1))->nImage);
    hidden = {Item(1), Item(2)};
    EXPECT_EQ(1, TakeOver());
    EXPECT_EQ(2, TakeOver());
    EXPECT_EQ(3, TakeOver());
    EXPECT_EQ(0, slots.GetCount());
}

TEST_F(TreeIconSlotsTest, DrawingManyItemsAsksAboutEachOfThemOnce)
{
    for (int i = 1; i <= 1000; ++i) {
        EXPECT_EQ(-1, TakeOver());
        slots.Lend(Item(i), i);
    }
    EXPECT_LE(nAsked, 1000);
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

TEST(TreeLabelTest, TheMarkIsAppendedInTheOneBuffer)
{
    CString strLabel;
    NameSource longer{"a name with many letters", 25};
    const char* const pszFirst = views::BuildLabel(&longer, &NameSource::GetName, true, strLabel);
    EXPECT_STREQ("a name with many letters *", pszFirst);
    EXPECT_EQ(pszFirst, strLabel.GetString());

    NameSource shorter{"b", 2};
    EXPECT_EQ(pszFirst, views::BuildLabel(&shorter, &NameSource::GetName, true, strLabel));
    EXPECT_STREQ("b *", pszFirst);
    EXPECT_EQ(pszFirst, views::BuildLabel(&shorter, &NameSource::GetName, false, strLabel));
    EXPECT_STREQ("b", pszFirst);
    EXPECT_EQ(1, strLabel.GetLength());
}

TEST(TreeLabelTest, ASourceThatBreaksTheProtocolGivesNothingWorseThanAnotherLabel)
{
    CString strLabel("what was here before");
    NameSource unended{"abcdef", 4}; // four letters and no zero
    EXPECT_STREQ("abcd *", views::BuildLabel(&unended, &NameSource::GetName, true, strLabel));
    NameSource silent{"", 6};
    EXPECT_STREQ("", views::BuildLabel(&silent, &NameSource::GetName, false, strLabel));
    NameSource empty{"abc", 0};
    EXPECT_STREQ(" *", views::BuildLabel(&empty, &NameSource::GetName, true, strLabel));
    NameSource failing{"abc", 4, FALSE};
    EXPECT_EQ(nullptr, views::BuildLabel(&failing, &NameSource::GetName, true, strLabel));
    EXPECT_TRUE(strLabel.IsEmpty());
}

} // namespace
