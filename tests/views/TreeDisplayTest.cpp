// What items show, and how a container's members are ordered.
#include "tests/support/AllocationFailures.h"
#include "tests/views/TreeTest.h"

#include <set>

namespace
{

class TreeDisplayTest : public TreeTest
{
protected:
    static std::string Label(ProbeTree& tree, FakeAtom* pAtom)
    {
        return std::string(tree.GetItemText(tree.GetItem(pAtom)));
    }
    static TVDISPINFO Ask(ProbeTree& tree, FakeAtom* pAtom, UINT mask, UINT state = 0)
    {
        TVDISPINFO info{{tree.m_hWnd, tree.GetDlgCtrlID(), TVN_GETDISPINFO}, {}};
        info.item.mask = mask;
        info.item.hItem = tree.GetItem(pAtom);
        info.item.state = state;
        info.item.lParam = tree.GetItemData(info.item.hItem);
        info.item.iImage = info.item.iSelectedImage = info.item.cChildren = -7;
        tree.GetParent()->SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
        return info;
    }
    FakeAtom* AddIcon(FakeContainer* pBox, const std::string& strName)
    {
        FakeAtom* const pAtom = pBox->Add(strName);
        pAtom->hasIcon = true;
        pAtom->pLedger = &icons;
        return pAtom;
    }
    Ledger TakeIcons() { return std::exchange(icons, {}); }

    Ledger icons;
};

TEST_F(TreeDisplayTest, LabelsAreAskedForAtEachPaintAndMarkWhatIsModified)
{
    FakeContainer* const pBox = MakeBox("box", {"a"});
    FakeAtom* const a = pBox->Named("a");
    ProbeTree& tree = ShowTree();
    Expand(tree, pBox);
    a->isModified = true;
    EXPECT_EQ("a *", Label(tree, a));
    a->displayName = "Anna";
    EXPECT_EQ("Anna *", Label(tree, a));
    a->isModified = false;
    EXPECT_EQ("Anna", Label(tree, a));

    const TVDISPINFO info = Ask(tree, a, TVIF_TEXT | TVIF_IMAGE | TVIF_CHILDREN | TVIF_DI_SETITEM);
    EXPECT_STREQ("Anna", info.item.pszText);
    EXPECT_EQ(TVIF_TEXT | TVIF_IMAGE | TVIF_CHILDREN, info.item.mask);
    EXPECT_EQ(0, info.item.cChildren);
    EXPECT_EQ(1, Ask(tree, pBox, TVIF_CHILDREN).item.cChildren);
}

TEST_F(TreeDisplayTest, OnlyAVisibleItemsLabelIsAskedForAndNothingIsStored)
{
    FakeContainer* const pBox = MakeBox("box", {});
    for (int i = 0; i < 300; ++i)
        pBox->Add("member " + std::to_string(i));
    ProbeTree& tree = ShowTree();
    tree.nLabels = 0;
    Expand(tree, pBox);
    desktop.Run();
    EXPECT_GT(tree.nLabels, 5);
    EXPECT_LT(tree.nLabels, 60);
    tree.nLabels = 0;
    EXPECT_TRUE(tree.OnChangeAtom(pBox, world.Get())); // repaints at once
    EXPECT_GT(tree.nLabels, 5);

    tree.nLabels = 0;
    const auto pStranger = AtomRef::Adopt(new FakeAtom("stranger"));
    EXPECT_FALSE(tree.OnChangeAtom(pStranger.Get(), world.Get()));
    EXPECT_FALSE(tree.OnChangeAtom(nullptr, world.Get()));
    EXPECT_EQ(0, tree.nLabels);
}

TEST_F(TreeDisplayTest, ANameThatCannotBeReadIsReportedAndNothingMoreIsAnswered)
{
    FakeContainer* const pBox = MakeBox("box", {"a"});
    ProbeTree& tree = ShowTree();
    FakeAtom* const a = pBox->Named("a");
    a->nameFails = true;
    a->isModified = true;
    tree.onDispInfo = [](TVDISPINFO*) { FAIL() << "the hook is not called"; };
    const TVDISPINFO info = Ask(tree, a, TVIF_TEXT | TVIF_IMAGE | TVIF_CHILDREN);
    EXPECT_STREQ("Unnamed", info.item.pszText);
    EXPECT_EQ(0, info.item.iImage);
    EXPECT_EQ(-7, info.item.cChildren);
    EXPECT_EQ(Ledger({"error \"Unreadable\" of a"}), editor.TakeLedger());
}

TEST_F(TreeDisplayTest, ADerivedClassMayChangeTheAnswer)
{
    FakeContainer* const pBox = MakeBox("box", {"a"});
    ProbeTree& tree = ShowTree();
    char szOther[] = "other";
    tree.onDispInfo = [&](TVDISPINFO* pInfo) { pInfo->item.pszText = szOther; };
    EXPECT_EQ("other", Label(tree, pBox->Named("a")));
}

TEST_F(TreeDisplayTest, AtomsWithoutAnIconShowAFolderThatIsOpenWhileItsItemIs)
{
    FakeContainer* const pBox = MakeBox("box", {"a"});
    FakeAtom* const pBad = AddIcon(pBox, "bad");
    pBad->iconFails = true;
    ProbeTree& tree = ShowTree();
    const auto answer = [&](FakeAtom* pAtom, UINT state) {
        const TVDISPINFO info = Ask(tree, pAtom, TVIF_IMAGE, state);
        return std::pair(info.item.iImage, info.item.iSelectedImage);
    };
    EXPECT_EQ(std::pair(0, 0), answer(pBox, 0));
    EXPECT_EQ(std::pair(1, 1), answer(pBox, TVIS_EXPANDED));
    EXPECT_EQ(std::pair(0, 0), answer(pBox->Named("a"), TVIS_EXPANDED));
    EXPECT_EQ(std::pair(0, 0), answer(pBad, 0));
    EXPECT_EQ(std::pair(0, 0), answer(pBad, 0));
    EXPECT_EQ(Ledger({"icon bad at -1"}), TakeIcons());
    EXPECT_EQ(-7, Ask(tree, pBox, TVIF_SELECTEDIMAGE).item.iSelectedImage);
}

TEST_F(TreeDisplayTest, IconsAreLentToItemsThatAreShown)
{
    FakeContainer* const pBox = MakeBox("box", {});
    AddIcon(pBox, "a");
    FakeContainer* const pLast = MakeBox("last", {});
    for (const char* pszName : {"l", "m", "n"})
        AddIcon(pLast, pszName);
    ProbeTree& tree = ShowTree();
    Expand(tree, pBox);
    Expand(tree, pLast);
    desktop.Run();
    EXPECT_EQ(Ledger({"icon a at -1", "icon l at -1", "icon m at -1", "icon n at -1"}), TakeIcons());

    tree.Expand(tree.GetItem(pBox), TVE_COLLAPSE);
    tree.OnCreateAtom(AddIcon(pLast, "o"), pLast);
    desktop.Run();
    EXPECT_EQ(Ledger({"icon o at 2"}), TakeIcons());

    tree.OnChangeAtom(pLast->Named("m"), pLast);
    EXPECT_EQ(Ledger({"icon m at 4"}), TakeIcons());
    tree.OnDeleteAtom(pLast->Named("n"), pLast);
    Expand(tree, pBox);
    desktop.Run();
    EXPECT_EQ(Ledger({"icon a at 5"}), TakeIcons());
    EXPECT_EQ(5, Ask(tree, pBox->Named("a"), TVIF_IMAGE).item.iImage);
}

TEST_F(TreeDisplayTest, BoldLeadsToTheSelectedItem)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b"});
    MakeBox("other", {"c"});
    ProbeTree& tree = ShowTree();
    Select(tree, pBox->Named("a"));
    EXPECT_EQ("world! [box! [*a! b] other [c]]", tree.State());
    Select(tree, pBox->Named("b"));
    EXPECT_EQ("world! [box! [a *b!] other [c]]", tree.State());
    Select(tree, world->Named("other"));
    EXPECT_EQ("world! [box [a b] *other! [c]]", tree.State());
}

TEST_F(TreeDisplayTest, WithoutMemoryTheLabelIsMissingAndTheRequestGoesOn)
{
    FakeAtom* const pAtom = MakeBox("box", {"a"})->Named("a");
    ProbeTree& tree = ShowTree();
    pAtom->name.assign(1000, 'a'); // more than the buffer has held so far
    TVDISPINFO info{};
    {
        const FailAllocation failure(1);
        info = Ask(tree, pAtom, TVIF_TEXT | TVIF_CHILDREN);
    }
    EXPECT_EQ(nullptr, info.item.pszText);
    EXPECT_EQ(0, info.item.cChildren);
    EXPECT_EQ(std::vector<std::string>({": Out of memory."}), desktop.TakeMessageBoxes());
}

// Each allocation that an announcement makes fails in its turn: what is shown then is whole, and all is given back.
TEST_F(TreeDisplayTest, AnAnnouncementWithoutMemoryShowsLessButNothingWrong)
{
    FakeContainer* const pBox = MakeBox("box", {"c", "b", "a"});
    ProbeTree& tree = MakeTree({});
    std::set<std::string> states;
    for (int nth = 1; nth == 1 || FailAllocation::HasFailed(); ++nth) {
        {
            const FailAllocation failure(nth);
            tree.OnCreateAtom(pBox, nullptr);
        }
        std::string strState = tree.State();
        for (const AtomRef& pMember : pBox->members)
            EXPECT_EQ(tree.GetItem(pMember.Get()) != nullptr, strState.find(pMember->name, 4) != std::string::npos)
                << strState;
        states.insert(std::move(strState));
        tree.OnDeleteAtom(pBox, nullptr);
        EXPECT_EQ("", tree.State());
        EXPECT_EQ(1, pBox->CountReferences());
        EXPECT_EQ(1, pBox->Named("a")->CountReferences());
    }
    EXPECT_EQ((std::set<std::string>{"", "box [a b c]", "box [a b]", "box [a c]", "box [b c]"}), states);
    desktop.TakeMessageBoxes();
}

} // namespace
