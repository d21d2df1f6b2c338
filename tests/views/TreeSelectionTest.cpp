// The selection and the focus, exchanged with the editor as the user works.
#include "tests/views/TreeTest.h"

namespace
{

// What the tree says, from a to b in their box.
const Ledger kSave{"nobody asks PreSaveAtom(world in -)"};
const Ledger kReassert{"tree asks OnAtomSelecting(a in box)", "tree tells OnAtomSelected(a in box)"};
const Ledger kAsk{"tree asks OnAtomDeselecting(a in box)", "tree asks OnAtomSelecting(b in box)"};
const Ledger kTell{"tree tells OnAtomDeselected(a in box)", "tree tells OnAtomEntered(b in box)",
                   "tree tells OnAtomSelected(b in box)"};

Ledger operator+(Ledger ledger, const Ledger& more)
{
    ledger.insert(ledger.end(), more.begin(), more.end());
    return ledger;
}

constexpr char kASelected[] = "world! [box! [*a! b c]]";
constexpr char kBSelected[] = "world! [box! [a *b! c]]";

class TreeSelectionTest : public TreeTest
{
protected:
    // With a selected; the focus is the tree's, or the field's.
    ProbeTree& ShowFocusedTree()
    {
        ProbeTree& tree = ShowTree();
        Select(tree, a);
        EXPECT_TRUE(HasFocus(tree));
        return tree;
    }
    ProbeTree& ShowUnfocusedTree()
    {
        ProbeTree& tree = ShowFocusedTree();
        field.SetFocus();
        editor.active = CStubRef<IAtom>::Share(b);
        return tree;
    }

    FakeContainer* const box = MakeBox({"a", "b", "c"});
    FakeAtom* const a = box->Named("a");
    FakeAtom* const b = box->Named("b");
};

TEST_F(TreeSelectionTest, AClickIsAskedForAndToldAfterTheFocusHasReassertedTheOldSelection)
{
    ProbeTree& tree = ShowUnfocusedTree();
    EXPECT_EQ(kASelected, tree.State());
    Click(tree, b);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(kSave + kReassert + kAsk + kTell, editor.TakeLedger());
    Click(tree, b);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    Click(tree, world.Get());
    EXPECT_EQ("*world! [box [a b c]]", tree.State());
}

TEST_F(TreeSelectionTest, InsideAnothersFocusHandlerOrWithoutAnEditorNothingIsSaid)
{
    ProbeTree& tree = ShowUnfocusedTree();
    {
        const FocusBlock block;
        tree.SetFocus();
    }
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    field.SetFocus();
    editor.Uninstall();
    Click(tree, b);
    editor.Install();
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(TreeSelectionTest, TheSelectedAtomIsGivenWithReferencesAloneOrAsTheOneActivePair)
{
    ProbeTree& tree = ShowTree();
    DWORD dwCount = 7;
    OBJPAIR pair{};
    EXPECT_FALSE(tree.OnGetActivePairs(&pair, nullptr));
    EXPECT_FALSE(tree.GetSelectedAtom(nullptr, IID_IAtom));
    EXPECT_FALSE(tree.OnGetActivePairs(nullptr, &dwCount));
    EXPECT_TRUE(tree.OnGetActivePairs(&pair, &dwCount));
    EXPECT_EQ(7u, dwCount);
    CStubRef<IAtom> pAtom;
    EXPECT_FALSE(tree.GetSelectedAtom(pAtom.Receive(), IID_IAtom));

    Select(tree, world.Get());
    EXPECT_FALSE(tree.GetSelectedAtom(pAtom.Receive(), IID_IPhase));
    EXPECT_TRUE(tree.GetSelectedAtom(pAtom.Receive(), IID_IAtom));
    EXPECT_EQ(static_cast<IAtom*>(world.Get()), pAtom.Get());
    pair = {CStubRef<IAtom>::Share(b).Detach(), CStubRef<IAtomContainer>::Share(box).Detach()};
    EXPECT_FALSE(tree.OnGetActivePairs(nullptr, &dwCount));
    EXPECT_EQ(1u, dwCount);
    dwCount = 0;
    EXPECT_TRUE(tree.OnGetActivePairs(&pair, &dwCount)); // which gives up what the slot held
    EXPECT_EQ(1u, dwCount);
    EXPECT_EQ(static_cast<IAtom*>(world.Get()), pair.pAtom);
    EXPECT_EQ(nullptr, pair.pContainer);
    CStubRef<IAtom>::Adopt(pair.pAtom).Release();
}

} // namespace
