// What items show.
#include "tests/support/AllocationFailures.h"
#include "tests/views/TreeTest.h"

namespace
{

class TreeDisplayTest : public TreeTest
{
protected:
    // A display request such as the control makes.
    static TVITEM Ask(ProbeTree& tree, FakeAtom* pAtom, UINT mask, UINT state = 0)
    {
        TVDISPINFO info{{tree.m_hWnd, tree.GetDlgCtrlID(), TVN_GETDISPINFO}, {}};
        info.item.mask = mask;
        info.item.hItem = tree.GetItem(pAtom);
        info.item.state = state;
        info.item.lParam = tree.GetItemData(info.item.hItem);
        info.item.iImage = info.item.iSelectedImage = info.item.cChildren = -7;
        tree.GetParent()->SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
        return info.item;
    }
    FakeAtom* AddIcon(FakeContainer* pBox, const std::string& strName)
    {
        FakeAtom* const pAtom = pBox->Add(strName);
        pAtom->hasIcon = true;
        pAtom->pLedger = &icons;
        return pAtom;
    }
    Ledger TakeIcons() { return std::exchange(icons, {}); }

    FakeContainer* const box = MakeBox({"a"});
    FakeAtom* const a = box->Named("a");
    Ledger icons;
};

TEST_F(TreeDisplayTest, LabelsAreAskedForEachTimeAndMarkWhatIsModified)
{
    ProbeTree& tree = ShowTree();
    a->isModified = true;
    MakeBox("wide", {std::string(1000, 'w')}); // more than the buffer has held so far
    a->onAsked = [&] {
        a->onAsked = nullptr;
        tree.OnCreateAtom(world->Named("wide"), world.Get());
        tree.OnChangeAtom(box, world.Get()); // draws
    };
    EXPECT_EQ("a *", tree.Labels(box));
    a->displayName = "Anna";
    EXPECT_EQ("Anna *", tree.Labels(box));
    a->isModified = false;
    EXPECT_EQ("Anna", tree.Labels(box));

    const TVITEM item = Ask(tree, a, TVIF_TEXT | TVIF_IMAGE | TVIF_CHILDREN | TVIF_DI_SETITEM);
    EXPECT_EQ(TVIF_TEXT | TVIF_IMAGE | TVIF_CHILDREN, item.mask);
    EXPECT_EQ(0, item.cChildren);
    EXPECT_EQ(1, Ask(tree, box, TVIF_CHILDREN).cChildren);
    char szOther[] = "other";
    tree.onDispInfo = [&](TVDISPINFO* pInfo) { pInfo->item.pszText = szOther; };
    EXPECT_EQ("other", tree.Labels(box));
}

TEST_F(TreeDisplayTest, APaintAsksForWhatIsVisibleAndAChangeRepaintsAtOnce)
{
    for (int i = 0; i < 300; ++i)
        box->Add("member " + std::to_string(i));
    ProbeTree& tree = ShowTree();
    tree.nLabels = 0;
    EXPECT_TRUE(tree.OnChangeAtom(box, world.Get()));
    EXPECT_GT(tree.nLabels, 5);
    EXPECT_LT(std::exchange(tree.nLabels, 0), 60);
    const auto pStranger = AtomRef::Adopt(new FakeAtom("stranger"));
    EXPECT_FALSE(tree.OnChangeAtom(pStranger.Get(), world.Get()));
    EXPECT_FALSE(tree.OnChangeAtom(nullptr, world.Get()));
    EXPECT_EQ(0, tree.nLabels);
}

TEST_F(TreeDisplayTest, ANameThatCannotBeReadIsReportedAndWithoutMemoryForItTheLabelIsMissing)
{
    ProbeTree& tree = ShowTree();
    a->nameFails = a->isModified = true;
    tree.onDispInfo = [](TVDISPINFO*) { FAIL() << "the hook is not called"; };
    TVITEM item = Ask(tree, a, TVIF_TEXT | TVIF_IMAGE | TVIF_CHILDREN);
    EXPECT_STREQ("Unnamed", item.pszText);
    EXPECT_EQ(0, item.iImage);
    EXPECT_EQ(-7, item.cChildren); // nothing more is answered
    EXPECT_EQ(Ledger({"error \"Unreadable\" of a"}), editor.TakeLedger());

    tree.onDispInfo = nullptr;
    a->nameFails = false;
    a->name.assign(1000, 'a'); // more than the buffer has held so far
    {
        const FailAllocation failure(1);
        item = Ask(tree, a, TVIF_TEXT | TVIF_CHILDREN);
    }
    EXPECT_EQ(nullptr, item.pszText);
    EXPECT_EQ(0, item.cChildren); // the request goes on
    EXPECT_EQ(std::vector<std::string>({": Out of memory."}), desktop.TakeMessageBoxes());
}

TEST_F(TreeDisplayTest, AtomsWithoutAnIconShowAFolderThatIsOpenWhileItsItemIs)
{
    FakeAtom* const pBad = AddIcon(box, "bad");
    pBad->iconFails = true;
    AddIcon(box, "big")->iconNeedsTooMuch = true;
    ProbeTree& tree = ShowTree();
    const auto images = [&](FakeAtom* pAtom, UINT state) {
        const TVITEM item = Ask(tree, pAtom, TVIF_IMAGE, state);
        return std::pair(item.iImage, item.iSelectedImage);
    };
    EXPECT_EQ(std::pair(0, 0), images(box, 0));
    EXPECT_EQ(std::pair(1, 1), images(box, TVIS_EXPANDED));
    EXPECT_EQ(std::pair(0, 0), images(a, TVIS_EXPANDED));
    EXPECT_EQ(std::pair(0, 0), images(pBad, 0));
    EXPECT_EQ(std::pair(0, 0), images(box->Named("big"), 0));
    EXPECT_EQ(Ledger({"icon bad at -1", "icon big at -1"}), TakeIcons()); // and are not tried again
    EXPECT_EQ(-7, Ask(tree, box, TVIF_SELECTEDIMAGE).iSelectedImage);
}

TEST_F(TreeDisplayTest, ImagesAreLentToItemsThatAreShown)
{
    for (const char* pszName : {"i", "j"})
        AddIcon(box, pszName);
    for (const bool bSelectedInside : {false, true}) {
        ProbeTree& tree = ShowTree();
        EXPECT_EQ(Ledger({"icon i at -1", "icon j at -1"}), TakeIcons());
        Select(tree, bSelectedInside ? box->Named("i") : world.Get());
        const auto draw = [&] {
            FakeAtom* const pNew = AddIcon(MakeBox("other", {}), "k");
            tree.OnCreateAtom(pNew, nullptr);
            tree.UpdateWindow();
        };
        editor.onNotify = [&](AEStateOperation operation, IAtom*) {
            if (operation == &IAEStateHandler::OnAtomDeselected)
                draw();
        };
        tree.Expand(tree.GetItem(box), TVE_COLLAPSE); // tells of what it hides already as its selection goes
        editor.onNotify = nullptr;
        if (!bSelectedInside)
            draw();
        EXPECT_EQ(Ledger({"icon k at 2"}), TakeIcons());
        tree.DestroyWindow();
        world->members.pop_back();
    }
}

TEST_F(TreeDisplayTest, DrawingManyItemsAsksAboutEachOfThemOnce)
{
    for (int i = 0; i < 300; ++i)
        AddIcon(box, std::to_string(1000 + i));
    ProbeTree& tree = ShowTree();
    std::map<FakeAtom*, int> images;
    for (const AtomRef& pMember : box->members)
        images[pMember.Get()] = Ask(tree, pMember.Get(), TVIF_IMAGE).iImage;
    for (std::size_t i = 300; i > 3; i -= 3) {
        FakeAtom* const pChanged = box->members[i].Get();
        tree.RefreshItem(pChanged);
        EXPECT_EQ(images[pChanged], Ask(tree, pChanged, TVIF_IMAGE).iImage);
    }
    EXPECT_LE(tree.nRects, 800);
}

TEST_F(TreeDisplayTest, TheMarkIsAppendedInTheOneBufferWhateverTheNameAnnounces)
{
    a->isModified = true;
    ProbeTree& tree = ShowTree();
    a->name = "a name that is longer than all others";
    const LPSTR pszBuffer = Ask(tree, a, TVIF_TEXT).pszText;
    const std::tuple<const char*, DWORD, const char*> rows[] = {
        {"name", 5, "name *"}, {"abcdef", 4, "abcd *"}, {"", 6, " *"}, {"abc", 0, " *"}};
    for (const auto& [pszName, nLength, pszLabel] : rows) {
        a->name = pszName;
        a->announcedLength = nLength;
        EXPECT_STREQ(pszLabel, Ask(tree, a, TVIF_TEXT).pszText);
    }
    a->announcedLength.reset();
    EXPECT_EQ(pszBuffer, Ask(tree, a, TVIF_TEXT).pszText);
}

} // namespace
