// The selection and the focus, exchanged with the editor as the user works.
#include "tests/views/TreeTest.h"

namespace
{

class TreeSelectionTest : public TreeTest
{
protected:
    TreeSelectionTest()
    {
        box = MakeBox("box", {"a", "b", "c"});
        a = box->Named("a");
        b = box->Named("b");
        c = box->Named("c");
    }

    // With the box open, a selected, and the focus, all news taken.
    ProbeTree& ShowFocusedTree()
    {
        ProbeTree& tree = ShowOpenTree();
        Select(tree, a);
        EXPECT_TRUE(HasFocus(tree));
        return tree;
    }
    ProbeTree& ShowOpenTree(const Shape& shape = {})
    {
        ProbeTree& tree = ShowTree(shape);
        Expand(tree, box);
        return tree;
    }
    // With the box open, a selected, but the focus elsewhere.
    ProbeTree& ShowUnfocusedTree()
    {
        ProbeTree& tree = ShowFocusedTree();
        field.SetFocus();
        editor.active = CStubRef<IAtom>::Share(b);
        editor.TakeLedger();
        return tree;
    }

    FakeContainer* box;
    FakeAtom *a, *b, *c;
};

constexpr char kASelected[] = "world! [box! [*a! b c]]";
constexpr char kBSelected[] = "world! [box! [a *b! c]]";

TEST_F(TreeSelectionTest, AClickIsAskedForAndThenTold)
{
    ProbeTree& tree = ShowFocusedTree();
    EXPECT_EQ(kASelected, tree.State());
    Click(tree, b);
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(Ledger({"tree asks OnAtomDeselecting(a in box)", "tree asks OnAtomSelecting(b in box)",
                      "tree tells OnAtomDeselected(a in box)", "tree tells OnAtomEntered(b in box)",
                      "tree tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
    Click(tree, b);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    Click(tree, world.Get());
    EXPECT_EQ("*world! [box [a b c]]", tree.State());
}

TEST_F(TreeSelectionTest, TheFocusReassertsTheOldSelectionBeforeAClickChangesIt)
{
    ProbeTree& tree = ShowUnfocusedTree();
    Click(tree, b);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)", "tree asks OnAtomSelecting(a in box)",
                      "tree tells OnAtomSelected(a in box)", "tree asks OnAtomDeselecting(a in box)",
                      "tree asks OnAtomSelecting(b in box)", "tree tells OnAtomDeselected(a in box)",
                      "tree tells OnAtomEntered(b in box)", "tree tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
}

TEST_F(TreeSelectionTest, TheFirstSelectionLeavesNothing)
{
    ProbeTree& tree = ShowOpenTree();
    EXPECT_EQ("world [box [a b c]]", tree.State());
    EXPECT_TRUE(tree.SetRootAtom(b));
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(Ledger({"tree asks OnAtomSelecting(b in box)", "tree tells OnAtomEntered(b in box)",
                      "tree tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
}

TEST_F(TreeSelectionTest, AVetoOfTheChangeLeavesEverythingAsItWas)
{
    ProbeTree& tree = ShowFocusedTree();
    editor.Veto(&IAEStateHandler::OnAtomDeselecting);
    Click(tree, b);
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(Ledger({"tree asks OnAtomDeselecting(a in box)"}), editor.TakeLedger());

    editor.Allow();
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(tree, b);
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(Ledger({"tree asks OnAtomDeselecting(a in box)", "tree asks OnAtomSelecting(b in box)"}),
              editor.TakeLedger());
    EXPECT_TRUE(HasFocus(tree));
}

TEST_F(TreeSelectionTest, AFocusThatIsRefusedGoesBackAndTheClickIsDropped)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    Click(tree, b);
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)"}), editor.TakeLedger());

    editor.Allow();
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(tree, b);
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)", "tree asks OnAtomSelecting(a in box)"}),
              editor.TakeLedger());
}

// Nothing to go back to: the save is still refused, the selection no longer.
TEST_F(TreeSelectionTest, AFocusFromNowhereIsKeptWhenOnlyTheSelectionIsRefused)
{
    ProbeTree& tree = ShowUnfocusedTree();
    ::SetFocus(nullptr);
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    tree.SetFocus();
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)", "tree asks OnAtomSelecting(a in box)"}),
              editor.TakeLedger());
    Click(tree, b);
    EXPECT_EQ(Ledger({"tree asks OnAtomDeselecting(a in box)", "tree asks OnAtomSelecting(b in box)"}),
              editor.TakeLedger());
}

TEST_F(TreeSelectionTest, ASelectionFromTheEditorBringsTheFocusButDoesNotReassertWhatItLeaves)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, b, box, 0);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(Ledger({"nobody tells OnAtomEntered(b in box)", "nobody asks PreSaveAtom(world in -)",
                      "tree asks OnAtomDeselecting(a in box)", "tree asks OnAtomSelecting(b in box)",
                      "tree tells OnAtomDeselected(a in box)", "tree tells OnAtomEntered(b in box)",
                      "tree tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
    tree.OnAtomEntered(b, box);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

// Each time the focus is taken for the change it is refused, and the selection goes ahead without it.
TEST_F(TreeSelectionTest, ARefusedFocusDoesNotReassertTheOutgoingItemAtTheSecondTry)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    editor.onNotify = [this](AEStateOperation operation, IAtom*) {
        if (operation == &IAEStateHandler::OnAtomDeselecting)
            editor.Allow();
    };
    tree.OnAtomEntered(b, box);
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)", "tree asks OnAtomDeselecting(a in box)",
                      "nobody asks PreSaveAtom(world in -)", "tree asks OnAtomSelecting(b in box)",
                      "tree tells OnAtomDeselected(a in box)", "tree tells OnAtomEntered(b in box)",
                      "tree tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
}

TEST_F(TreeSelectionTest, APassiveTreeFollowsAndShowsButSaysNothing)
{
    ProbeTree& tree = ShowOpenTree({.passive = true});
    Click(tree, b);
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_TRUE(HasFocus(tree));
    field.SetFocus();
    editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, a, box, 0);
    EXPECT_EQ(kASelected, tree.State());
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(Ledger({"nobody tells OnAtomEntered(a in box)"}), editor.TakeLedger());
}

TEST_F(TreeSelectionTest, InsideAnothersFocusHandlerTheTreeSaysNothing)
{
    ProbeTree& tree = ShowUnfocusedTree();
    {
        const FocusBlock block;
        tree.SetFocus();
    }
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    Click(tree, b); // as if it had no focus yet: the focus flag was left alone
    EXPECT_EQ(kBSelected, tree.State());
}

TEST_F(TreeSelectionTest, TwoTreesFollowEachOther)
{
    ProbeTree& tree = ShowFocusedTree();
    ProbeTree& other = ShowOpenTree({.x = 400, .name = "other"});
    Select(other, a);
    Click(tree, b);
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_EQ(kBSelected, other.State());
}

TEST_F(TreeSelectionTest, WithoutAnEditorEverythingGoesAhead)
{
    ProbeTree& tree = ShowUnfocusedTree();
    editor.Uninstall();
    Click(tree, b);
    EXPECT_EQ(kBSelected, tree.State());
    EXPECT_TRUE(HasFocus(tree));
    editor.Install();
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(TreeSelectionTest, TheSelectedAtomIsGivenWithAReference)
{
    ProbeTree& tree = ShowOpenTree();
    AtomRef pOut;
    void* pInterface = &tree;
    EXPECT_FALSE(tree.GetSelectedAtom(&pInterface, IID_IAtom));
    EXPECT_EQ(nullptr, pInterface);
    EXPECT_FALSE(tree.GetSelectedAtom(nullptr, IID_IAtom));

    Select(tree, a);
    EXPECT_FALSE(tree.GetSelectedAtom(&pInterface, IID_IAtomContainer));
    CStubRef<IAtom> pAtom;
    EXPECT_TRUE(tree.GetSelectedAtom(pAtom.Receive(), IID_IAtom));
    EXPECT_EQ(static_cast<IAtom*>(a), pAtom.Get());
}

TEST_F(TreeSelectionTest, TheOneActivePairIsTheSelectedItems)
{
    ProbeTree& tree = ShowOpenTree();
    DWORD dwCount = 7;
    OBJPAIR pair{};
    EXPECT_FALSE(tree.OnGetActivePairs(&pair, nullptr));
    EXPECT_FALSE(tree.OnGetActivePairs(nullptr, &dwCount));
    EXPECT_TRUE(tree.OnGetActivePairs(&pair, &dwCount));
    EXPECT_EQ(7u, dwCount);
    EXPECT_EQ(nullptr, pair.pAtom);

    Select(tree, world.Get());
    const auto pFormer = AtomRef::Share(c); // a slot's former pointers are released
    pair = {CStubRef<IAtom>::Share(c).Detach(), CStubRef<IAtomContainer>::Share(box).Detach()};
    const int nOfC = c->CountReferences(), nOfBox = box->CountReferences(), nOfWorld = world->CountReferences();
    EXPECT_FALSE(tree.OnGetActivePairs(nullptr, &dwCount));
    EXPECT_EQ(1u, dwCount);
    dwCount = 0;
    EXPECT_TRUE(tree.OnGetActivePairs(&pair, &dwCount));
    EXPECT_EQ(1u, dwCount);
    EXPECT_EQ(static_cast<IAtom*>(world.Get()), pair.pAtom);
    EXPECT_EQ(nullptr, pair.pContainer);
    EXPECT_EQ(nOfC - 1, c->CountReferences());
    EXPECT_EQ(nOfBox - 1, box->CountReferences());
    EXPECT_EQ(nOfWorld + 1, world->CountReferences());
    CStubRef<IAtom>::Adopt(pair.pAtom).Release();
}

TEST_F(TreeSelectionTest, SettingTheRootSelectsAShownAtomOnly)
{
    ProbeTree& tree = ShowFocusedTree();
    EXPECT_FALSE(tree.SetRootAtom(nullptr));
    const auto pStranger = AtomRef::Adopt(new FakeAtom("stranger"));
    EXPECT_TRUE(tree.SetRootAtom(pStranger.Get()));
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    EXPECT_EQ(kASelected, tree.State());
}

TEST_F(TreeSelectionTest, RenamingOnRequestEditsTheSelectedItemOnly)
{
    ProbeTree& tree = ShowOpenTree();
    EXPECT_FALSE(tree.OnAtomRename(nullptr, nullptr));
    Select(tree, a);
    EXPECT_FALSE(tree.OnAtomRename(a, box));
    EXPECT_EQ(nullptr, tree.GetEditControl());
}

} // namespace
