// Items that come and go as the editor announces.
#include "tests/support/AllocationFailures.h"
#include "tests/views/TreeTest.h"

#include <set>

namespace
{

using TreeItemsTest = TreeTest;

TEST_F(TreeItemsTest, ATreeShowsItsPaneAndRegistersUntilItGoes)
{
    ProbeTree& tree = MakeTree();
    EXPECT_EQ(Ledger({"pane 0 \"Libraries\" with icon", "tree registers"}), editor.TakeLedger());
    EXPECT_EQ(0x4600002Fu, tree.GetStyle() & ~WS_VISIBLE);
    EXPECT_EQ(0xE900u, tree.GetDlgCtrlID());
    tree.DestroyWindow();
    MakeTree(true).DestroyWindow();
    EXPECT_EQ(Ledger({"tree unregisters", "tree registers", "tree unregisters"}), editor.TakeLedger());
}

TEST_F(TreeItemsTest, AnAtomAnnouncedTwiceHasTwoItemsAndTheSecondIsTheOneThatCounts)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b"});
    ProbeTree& tree = ShowTree();
    FakeAtom* const a = pBox->Named("a");
    const HTREEITEM hFirst = tree.GetItem(a);
    EXPECT_TRUE(tree.OnCreateAtom(a, pBox));
    EXPECT_EQ("world [box [a a b]]", tree.State());
    EXPECT_EQ(hFirst, tree.GetPrevSiblingItem(tree.GetItem(a)));
    for (int i = 0; i < 2; ++i) {
        Remove(tree, a);
        EXPECT_EQ("world [box [a b]]", tree.State());
        EXPECT_EQ(nullptr, tree.GetItem(a));
    }
    const AtomRef pRemoved = pBox->Remove(a);
    tree.OnDeleteAtom(nullptr, pBox);
    EXPECT_EQ("world [box [b]]", tree.State());
    EXPECT_EQ(1, a->CountReferences());
}

TEST_F(TreeItemsTest, OnDemandMembersComeWhenTheyAreAskedForAndThenOnlyTheNewOnes)
{
    FakeContainer* const pBox = MakeBox("box", {"b", "a"});
    FakeContainer* const pOther = MakeBox("other", {});
    pOther->members.push_back(AtomRef::Share(pBox->Named("a")));
    ProbeTree& tree = MakeTree();
    tree.ShowMembersOnDemand();
    tree.OnCreateAtom(world.Get(), nullptr);
    EXPECT_FALSE(tree.OnCreateAtom(pBox, world.Get()));
    EXPECT_EQ("world", tree.State());
    for (FakeContainer* const pContainer : {static_cast<FakeContainer*>(world.Get()), pBox, pOther})
        EXPECT_TRUE(tree.ShowMembers(pContainer));
    EXPECT_EQ("world [box [a b] other [a]]", tree.State());

    pBox->Add("A new one");
    EXPECT_TRUE(tree.ShowMembers(pBox)); // though the item that counts for a is the other one
    EXPECT_EQ("world [box [a A new one b] other [a]]", tree.State());
    EXPECT_FALSE(tree.ShowMembers(pBox->Named("b")));
    Remove(tree, pBox);
    EXPECT_EQ("world [other]", tree.State());
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

// A container that will not say which atom it is.
class NobodysContainer : public FakeContainer
{
public:
    using FakeContainer::FakeContainer;

protected:
    void* Find(DWORD id) override { return id == IID_IAtom ? nullptr : FakeContainer::Find(id); }
};

TEST_F(TreeItemsTest, TheWindowsEndGivesEverythingBackAndIsNoNewsToAnyone)
{
    FakeContainer* const pBox = MakeBox("box", {"a", "b"});
    FakeAtom* const a = pBox->Named("a");
    ProbeTree& tree = ShowTree();
    const auto pNobody = ContainerRef::Adopt(new NobodysContainer("nobody"));
    const auto pOrphan = AtomRef::Adopt(new FakeAtom("orphan"));
    tree.OnCreateAtom(pOrphan.Get(), pNobody.Get()); // which will never agree to its removal
    tree.OnCreateAtom(world.Get(), nullptr);
    tree.OnCreateAtom(a, pBox);
    EXPECT_TRUE(tree.SelectItem(tree.InsertItem("own", tree.GetItem(pBox))));
    EXPECT_EQ("orphan world [box [a b]] world! [box! [a a b *-!]]", tree.State());
    Select(tree, pOrphan.Get());

    tree.DestroyWindow();
    EXPECT_EQ(Ledger({"tree unregisters"}), editor.TakeLedger());
    EXPECT_EQ(1, pOrphan->CountReferences());
    EXPECT_EQ(1, world->CountReferences());
    EXPECT_EQ(1, a->CountReferences());
    EXPECT_EQ(nullptr, tree.GetItem(world.Get()));
}

// Each allocation fails in its turn. What is shown then is whole, and all is given back.
TEST_F(TreeItemsTest, WithoutMemoryLessIsShownButNothingWrong)
{
    FakeContainer* const pBox = MakeBox("box", {"c", "b", "a"});
    ProbeTree& tree = MakeTree();
    std::set<std::string> states;
    const auto check = [&] {
        const std::string strState = tree.State();
        for (const AtomRef& pMember : pBox->members)
            EXPECT_EQ(tree.GetItem(pMember.Get()) != nullptr, strState.find(pMember->name, 4) != std::string::npos);
        states.insert(strState);
        tree.OnDeleteAtom(pBox, nullptr);
        EXPECT_EQ("", tree.State());
        EXPECT_EQ(1, pBox->CountReferences());
        EXPECT_EQ(1, pBox->Named("a")->CountReferences());
    };
    FailEveryAllocation([&] { tree.OnCreateAtom(pBox, nullptr); }, check);
    EXPECT_EQ((std::set<std::string>{"", "box [a b c]", "box [a c]", "box [b c]"}), states);
    desktop.TakeMessageBoxes();
}

} // namespace
