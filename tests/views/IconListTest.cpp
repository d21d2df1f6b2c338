// The pictures of an icon list.
#include "tests/views/ListTest.h"

namespace
{

class IconListTest : public ListTest
{
protected:
    IconListTest()
    {
        for (const AtomRef& pMember : box->members) {
            pMember->pLedger = &icons;
            pMember->hasIcon = pMember->name != "d";
        }
    }

    static int CountImages(const ProbeList& list)
    {
        return ImageList_GetImageCount(reinterpret_cast<HIMAGELIST>(list.SendMessage(LVM_GETIMAGELIST, LVSIL_NORMAL)));
    }

    FakeContainer* const box = MakeBox({"a", "b", "c", "d"});
    Ledger icons;
};

TEST_F(IconListTest, IconsFollowTheDefaultPictureAndAtomsWithoutOneShareIt)
{
    ProbeList& list = HideList(box);
    EXPECT_EQ(1, CountImages(list));
    box->Named("c")->iconFails = true;
    box->Named("d")->hasIcon = box->Named("d")->iconNeedsTooMuch = true;
    Hint(list, 0, 3);
    EXPECT_EQ("a 1, b 2, c 0, d 0", Shown(list, 0, 3));
    EXPECT_EQ(Ledger({"icon a at -1", "icon b at -1", "icon c at -1", "icon d at -1"}), icons);
    EXPECT_EQ(3, CountImages(list));
}

TEST_F(IconListTest, PicturesOfRowsThatLeftAreUsedAgainTheOldestFirst)
{
    ProbeList& list = HideList(box);
    Hint(list, 0, 1);
    icons.clear();
    list.OnChangeAtom(box->Named("b"), nullptr); // its image 2 is free
    list.OnChangeAtom(box->Named("a"), nullptr); // and then 1
    Hint(list, 2, 2);
    Hint(list, 3, 3); // has no icon, but takes image 1, which is lost
    Hint(list, 0, 0);
    EXPECT_EQ("a 3, , c 2, d 0", Shown(list, 0, 3));
    list.OnChangeAtom(box->Named("d"), nullptr); // the default picture is never free
    Hint(list, 1, 1);
    EXPECT_EQ(Ledger({"icon c at 2", "icon a at -1", "icon b at -1"}), icons);

    list.SetRootAtom(box); // the rows left in the order c, b, a
    Hint(list, 0, 2);
    EXPECT_EQ("a 4, b 3, c 2", Shown(list, 0, 2));
    EXPECT_EQ(5, CountImages(list));

    list.DestroyWindow(); // a new window begins without the former's pictures
    ASSERT_TRUE(list.Create(&frame));
    list.SetRootAtom(box);
    Hint(list, 0, 1);
    EXPECT_EQ("a 1, b 2", Shown(list, 0, 1));
}

TEST_F(IconListTest, WithoutTheHostsBitmapRowsHaveNoPicture)
{
    resources.Leave();
    ProbeList& list = HideList(box);
    EXPECT_EQ(0, list.SendMessage(LVM_GETIMAGELIST, LVSIL_NORMAL));
    Hint(list, 0, 0);
    EXPECT_EQ("a 0", Shown(list, 0));
    resources.Join();
}

} // namespace
