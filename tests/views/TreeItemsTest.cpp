// Items that come and go as the editor announces.
#include "Kernel/Kernel.h"
#include "tests/views/TreeTest.h"

namespace
{

using TreeItemsTest = TreeTest;

// A container that will not say which atom it is.
class NobodysContainer : public FakeContainer
{
public:
    using FakeContainer::FakeContainer;

protected:
    void* Find(DWORD id) override { return id == IID_IAtom ? nullptr : FakeContainer::Find(id); }
};

TEST_F(TreeItemsTest, ATreeShowsItsPaneAndRegistersUntilItGoes)
{
    ProbeTree& tree = MakeTree({});
    EXPECT_EQ(Ledger({"pane 0 \"Libraries\" with icon", "tree registers"}), editor.TakeLedger());
    EXPECT_EQ(0x4600002Fu, tree.GetStyle() & ~WS_VISIBLE);
    EXPECT_TRUE(tree.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(0xE900u, tree.GetDlgCtrlID());
    tree.DestroyWindow();
    EXPECT_EQ(Ledger({"tree unregisters"}), editor.TakeLedger());

    MakeTree({.passive = true, .name = "passive"}).DestroyWindow();
    EXPECT_EQ(Ledger({"passive registers", "passive unregisters"}), editor.TakeLedger());
}

TEST_F(TreeItemsTest, ATreeIsAHandlerAndAComponentAndIsNotCounted)
{
    ProbeTree& tree = MakeTree({});
    void* pOut = &tree;
    tree.GetInterface(IID_IAtom, &pOut);
    EXPECT_EQ(nullptr, pOut);
    tree.GetInterface(IID_IAEStateHandler, &pOut);
    EXPECT_EQ(static_cast<IAEStateHandler*>(&tree), pOut);
    for (int i = 0; i < 3; ++i)
        static_cast<IAEStateHandler*>(pOut)->Release();
    tree.GetInterface(STUB_BASE_INTERFACE_ID, &pOut);
    EXPECT_EQ(static_cast<CStubBaseInterface*>(&tree), pOut);
    EXPECT_EQ("", tree.State());
}

TEST_F(TreeItemsTest, AnAnnouncedAtomBringsItsWholeSubtree)
{
    MakeBox("second", {"c", "A", "b"})->Add(new FakeContainer("empty"));
    MakeBox("First", {"x"});
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [First [x] second [A b c empty]]", tree.State());
}

TEST_F(TreeItemsTest, AnAtomIsShownWhereItsContainerIsAndElseNotAtAll)
{
    ProbeTree& tree = ShowTree();
    const auto pHidden = ContainerRef::Adopt(new FakeContainer("hidden"));
    FakeAtom* const pMember = pHidden->Add("member");
    EXPECT_FALSE(tree.OnCreateAtom(pMember, pHidden.Get()));
    EXPECT_FALSE(tree.OnCreateAtom(nullptr, world.Get()));
    EXPECT_EQ("world", tree.State());
    EXPECT_EQ(nullptr, tree.GetItem(pMember));
    EXPECT_EQ(1, pMember->CountReferences());

    EXPECT_TRUE(tree.OnCreateAtom(pMember, nullptr));
    EXPECT_TRUE(tree.OnCreateAtom(MakeBox("box", {}), world.Get()));
    EXPECT_EQ("member world [box]", tree.State());
}

TEST_F(TreeItemsTest, RemovingAContainerRemovesWhatIsBelowIt)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b"});
    MakeBox("other", {"c"});
    ProbeTree& tree = ShowTree();
    FakeAtom* const pMember = pBox->Named("a");

    const auto pHidden = ContainerRef::Adopt(new FakeContainer("hidden"));
    EXPECT_TRUE(tree.OnDeleteAtom(pBox, pHidden.Get()));
    EXPECT_TRUE(tree.OnDeleteAtom(pHidden.Get(), world.Get()));
    EXPECT_TRUE(tree.OnDeleteAtom(nullptr, nullptr));
    EXPECT_EQ("world [box [a b] other [c]]", tree.State());

    EXPECT_TRUE(tree.OnDeleteAtom(pBox, world.Get()));
    EXPECT_EQ("world [other [c]]", tree.State());
    EXPECT_EQ(nullptr, tree.GetItem(pMember));
    EXPECT_EQ(1, pMember->CountReferences());
    EXPECT_EQ(1, pBox->CountReferences());
    EXPECT_TRUE(tree.OnDeleteAtom(world.Get(), nullptr));
    EXPECT_EQ("", tree.State());
}

TEST_F(TreeItemsTest, SynchronisingDropsJustTheItemsWhoseAtomsAreMembersNoLonger)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b", "c"});
    FakeContainer* const pInner = new FakeContainer("inner");
    pBox->Add(pInner);
    pInner->Add("x");
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [box [a b c inner [x]]]", tree.State());

    pBox->Remove(pBox->Named("a"));
    pBox->Remove(pInner);
    pBox->Add("new");
    EXPECT_TRUE(tree.OnDeleteAtom(nullptr, pBox));
    EXPECT_EQ("world [box [b c]]", tree.State());
    const auto pHidden = ContainerRef::Adopt(new FakeContainer("hidden"));
    EXPECT_TRUE(tree.OnDeleteAtom(nullptr, pHidden.Get()));
}

TEST_F(TreeItemsTest, AnAtomAnnouncedTwiceHasTwoItemsAndTheSecondIsTheOneThatCounts)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b"});
    ProbeTree& tree = ShowTree();
    FakeAtom* const pAtom = pBox->Named("a");
    const HTREEITEM hFirst = tree.GetItem(pAtom);
    EXPECT_TRUE(tree.OnCreateAtom(pAtom, pBox));
    EXPECT_EQ("world [box [a a b]]", tree.State());
    EXPECT_NE(hFirst, tree.GetItem(pAtom));
    EXPECT_EQ(hFirst, tree.GetPrevSiblingItem(tree.GetItem(pAtom)));

    EXPECT_TRUE(tree.OnDeleteAtom(pAtom, pBox));
    EXPECT_EQ("world [box [a b]]", tree.State());
    EXPECT_EQ(nullptr, tree.GetItem(pAtom));
    EXPECT_TRUE(tree.OnDeleteAtom(pAtom, pBox));
    EXPECT_EQ("world [box [a b]]", tree.State());

    const AtomRef pRemoved = pBox->Remove(pAtom);
    tree.OnDeleteAtom(nullptr, pBox);
    EXPECT_EQ("world [box [b]]", tree.State());
    EXPECT_EQ(1, pAtom->CountReferences());
}

TEST_F(TreeItemsTest, AnItemThatTheControlRefusesIsReportedAndNothingIsKept)
{
    const auto pAtom = AtomRef::Adopt(new FakeAtom("a"));
    ProbeTree tree(FALSE); // there is no control yet
    EXPECT_FALSE(tree.OnCreateAtom(pAtom.Get(), nullptr));
    EXPECT_EQ(std::vector<std::string>({": No room"}), desktop.TakeMessageBoxes());
    EXPECT_EQ(1, pAtom->CountReferences());
    EXPECT_EQ(nullptr, tree.GetItem(pAtom.Get()));
}

// What the editor says later has no effect, and all is given back, whatever is among the items.
TEST_F(TreeItemsTest, TheWindowsEndGivesEverythingBack)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b"});
    ProbeTree& tree = ShowTree();
    auto* const pNobody = new NobodysContainer("nobody");
    world->Add(pNobody); // which does not show, having no atom
    const auto pOrphan = AtomRef::Adopt(new FakeAtom("orphan"));
    EXPECT_TRUE(tree.OnCreateAtom(pOrphan.Get(), pNobody)); // a top-level item that is never removed by its container
    EXPECT_TRUE(tree.OnCreateAtom(world.Get(), nullptr));
    EXPECT_TRUE(tree.OnCreateAtom(pBox->Named("a"), pBox));
    EXPECT_EQ("orphan world [box [a b]] world [box [a a b]]", tree.State());
    tree.OnAtomEntered(pOrphan.Get(), nullptr);
    editor.TakeLedger();

    tree.DestroyWindow();
    EXPECT_EQ(Ledger({"tree unregisters"}), editor.TakeLedger());
    EXPECT_EQ(1, pOrphan->CountReferences());
    EXPECT_EQ(1, world->CountReferences());
    EXPECT_EQ(1, pBox->Named("a")->CountReferences());
    EXPECT_EQ(nullptr, tree.GetItem(world.Get()));
    EXPECT_TRUE(tree.OnDeleteAtom(world.Get(), nullptr));
}

} // namespace
