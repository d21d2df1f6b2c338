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

TEST_F(TreeSelectionTest, ASelectionFromTheEditorBringsTheFocusButDoesNotReassertWhatItLeaves)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, b, box, 0);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(Ledger{"nobody tells OnAtomEntered(b in box)"} + kSave + kAsk + kTell, editor.TakeLedger());
    tree.OnAtomEntered(b, box);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(TreeSelectionTest, TheFirstSelectionLeavesNothing)
{
    ProbeTree& tree = ShowTree();
    const auto pStranger = AtomRef::Adopt(new FakeAtom("stranger"));
    EXPECT_FALSE(tree.SetRootAtom(nullptr));
    EXPECT_TRUE(tree.SetRootAtom(pStranger.Get()));
    EXPECT_EQ("world [box [a b c]]", tree.State());
    EXPECT_TRUE(tree.SetRootAtom(a));
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(Ledger({"tree asks OnAtomSelecting(a in box)", "tree tells OnAtomEntered(a in box)",
                      "tree tells OnAtomSelected(a in box)"}),
              editor.TakeLedger());
}

TEST_F(TreeSelectionTest, AVetoOfTheChangeLeavesEverythingAsItWas)
{
    ProbeTree& tree = ShowFocusedTree();
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(tree, b);
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(kAsk, editor.TakeLedger());
    editor.Veto(&IAEStateHandler::OnAtomDeselecting);
    Click(tree, b);
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(Ledger{kAsk[0]}, editor.TakeLedger());
    EXPECT_TRUE(HasFocus(tree));
}

TEST_F(TreeSelectionTest, AFocusThatIsRefusedGoesBackAndTheClickIsDropped)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(tree, b);
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(kSave + Ledger{kReassert[0]}, editor.TakeLedger());
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    desktop.DoubleClick(tree.m_hWnd, tree.PointOf(b)); // is dropped as one
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(kSave, editor.TakeLedger());

    ::SetFocus(nullptr); // with no window to go back to, only the save counts
    editor.Allow();
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(tree, b);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(kSave + Ledger{kReassert[0]} + kAsk, editor.TakeLedger());
    EXPECT_EQ(kASelected, tree.State());
}

// The focus is refused at first, and accepted when it is taken again for the incoming item.
TEST_F(TreeSelectionTest, AfterARefusalTheSameChangeStillDoesNotReassertTheOutgoingItem)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    editor.onNotify = [this](AEStateOperation operation, IAtom*) {
        if (operation == &IAEStateHandler::OnAtomDeselecting)
            editor.Allow();
    };
    tree.OnAtomEntered(b, box);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(kSave + Ledger{kAsk[0]} + kSave + Ledger{kAsk[1]} + kTell, editor.TakeLedger());

    field.SetFocus();
    editor.onNotify = nullptr;
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    tree.OnAtomEntered(a, box);
    EXPECT_EQ(kASelected, tree.State());
    editor.Allow();
    editor.TakeLedger();
    Click(tree, a); // that change is over: this is an ordinary focus
    EXPECT_EQ(kSave + kReassert, editor.TakeLedger());
}

TEST_F(TreeSelectionTest, APassiveTreeFollowsAndShowsButSaysNothing)
{
    ProbeTree& tree = ShowTree(true);
    Click(tree, b);
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_TRUE(HasFocus(tree));
    field.SetFocus();
    tree.OnAtomEntered(a, box);
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(Ledger(), editor.TakeLedger());
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
