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
