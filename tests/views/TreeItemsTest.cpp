// Items that come and go as the editor announces, and the selection that it hears of.
#include "tests/support/AllocationFailures.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <set>

namespace
{

class TreeItemsTest : public TreeTest
{
protected:
    FakeContainer* const box = MakeBox({"a", "b", "c"});
    FakeAtom* const a = box->Named("a");
    FakeAtom* const b = box->Named("b");
};

TEST_F(TreeItemsTest, WithoutAnEditorAClickIsAskedForAndToldToNobody)
{
    ProbeTree& tree = ShowTree();
    Select(tree, a);
    EXPECT_FALSE(tree.OnCreateAtom(nullptr, box));
    field.SetFocus();
    editor.Uninstall();
    editor.TakeLedger();
    Click(tree, b);
    editor.Install();
    EXPECT_EQ("world! [box! [a *b! c]]", tree.State());
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(TreeItemsTest, AFocusThatIsRefusedGoesBackWhereThereIsAWindowAndIsForgottenAfterTheChange)
{
    ProbeTree& tree = ShowTree();
    Select(tree, a);
    editor.active = CStubRef<IAtom>::Share(b);
    const Ledger reassert{"nobody asks PreSaveAtom(world in -)", "tree asks OnAtomSelecting(a in box)",
                          "tree tells OnAtomSelected(a in box)"};
    const auto told = [&](AEStateOperation refused, const std::function<void()>& deed) {
        editor.Allow();
        editor.TakeLedger();
        if (refused)
            editor.Veto(refused);
        deed();
        editor.Allow();
        return editor.TakeLedger();
    };
    ::SetFocus(nullptr);
    told(&IAEStateHandler::OnAtomSelecting, [&] { Click(tree, b); });
    EXPECT_TRUE(HasFocus(tree));
    EXPECT_EQ("world! [box! [*a! b c]]", tree.State());
    field.SetFocus();
    EXPECT_EQ(Ledger({reassert[0], reassert[1]}), told(&IAEStateHandler::OnAtomSelecting, [&] { Click(tree, b); }));
    EXPECT_TRUE(HasFocus(field));

    told(&IAEStateHandler::OnAtomDeselecting, [&] { tree.OnAtomEntered(b, box); });
    field.SetFocus();
    EXPECT_EQ(reassert, told(nullptr, [&] { Click(tree, a); }));
    field.SetFocus();
    told(&IAEStateHandler::PreSaveAtom, [&] { tree.OnAtomEntered(b, box); });
    told(&IAEStateHandler::PreSaveAtom, [&] { tree.OnAtomEntered(a, box); });
    EXPECT_EQ(reassert, told(nullptr, [&] { Click(tree, a); }));

    field.SetFocus();
    editor.onNotify = [this](AEStateOperation operation, IAtom*) {
        if (operation == &IAEStateHandler::OnAtomDeselecting)
            editor.Allow(); // the focus, when it is taken again for the incoming item
    };
    const Ledger accepted = told(&IAEStateHandler::PreSaveAtom, [&] { tree.OnAtomEntered(b, box); });
    EXPECT_EQ(0, std::ranges::count(accepted, reassert[1]));
    EXPECT_TRUE(HasFocus(tree));
}

TEST_F(TreeItemsTest, TheSelectedAtomIsGivenWithReferencesAloneOrAsTheOneActivePair)
{
    ProbeTree& tree = ShowTree();
    DWORD dwCount = 7;
    OBJPAIR pair{};
    EXPECT_FALSE(tree.OnGetActivePairs(&pair, nullptr));
    EXPECT_TRUE(tree.OnGetActivePairs(&pair, &dwCount));
    EXPECT_EQ(7u, dwCount);
    CStubRef<IAtom> pAtom;
    EXPECT_FALSE(tree.GetSelectedAtom(pAtom.Receive(), IID_IAtom));

    EXPECT_FALSE(tree.SetRootAtom(nullptr));
    EXPECT_TRUE(tree.SetRootAtom(world.Get()));
    EXPECT_FALSE(tree.GetSelectedAtom(nullptr, IID_IAtom));
    EXPECT_FALSE(tree.GetSelectedAtom(pAtom.Receive(), IID_IPhase));
    EXPECT_TRUE(tree.GetSelectedAtom(pAtom.Receive(), IID_IAtom));
    EXPECT_EQ("world", NameOf(pAtom.Get()));
    pair = {CStubRef<IAtom>::Share(b).Detach(), CStubRef<IAtomContainer>::Share(box).Detach()};
    EXPECT_FALSE(tree.OnGetActivePairs(nullptr, &dwCount));
    EXPECT_EQ(1u, dwCount);
    EXPECT_TRUE(tree.OnGetActivePairs(&pair, &dwCount)); // which gives up what the slot held
    EXPECT_EQ("world", NameOf(CStubRef<IAtom>::Adopt(pair.pAtom).Get()));
    EXPECT_EQ(nullptr, pair.pContainer);
}

TEST_F(TreeItemsTest, AContainerBelowItselfIsNotShownAgainAndMembersThatVanishArePassedBy)
{
    box->nMissing = 3;
    auto* const pInner = new FakeContainer("inner");
    box->Add(pInner);
    pInner->members.push_back(AtomRef::Share(box));
    pInner->members.push_back(AtomRef::Share(pInner));
    pInner->Add("x");
    ProbeTree& tree = ShowTree();
    EXPECT_FALSE(tree.OnCreateAtom(box, box));
    EXPECT_FALSE(tree.OnCreateAtom(world.Get(), pInner));
    EXPECT_EQ("world [box [a b c inner [x]]]", tree.State());
    Remove(tree, box);
    EXPECT_EQ("world", tree.State());
    pInner->members.clear(); // it holds itself
}

// While a click goes from a to b. What is said of c while the click is only asked for, or the tree hears of b itself
// after that, does not count.
TEST_F(TreeItemsTest, AHandlerMaySelectSomethingElse)
{
    using Handler = IAEStateHandler;
    const std::pair<AEStateOperation, const char*> rows[] = {
        {&Handler::OnAtomDeselecting, "world! [box! [a *b! c]]"},
        {&Handler::OnAtomSelecting, "world! [box! [a *b! c]]"},
        {&Handler::OnAtomDeselected, "world! [box! [a b *c!]]"},
        {&Handler::OnAtomEntered, "world! [box! [a *b! c]]"},
        {&Handler::OnAtomSelected, "world! [box! [a b *c!]]"},
    };
    for (const auto& [operation, pszState] : rows) {
        ProbeTree& tree = ShowTree();
        Select(tree, a);
        editor.onNotify = [&, expected = operation](AEStateOperation told, IAtom*) {
            if (told == expected) {
                editor.onNotify = nullptr;
                tree.OnAtomEntered(box->Named("c"), box);
            }
        };
        Click(tree, b);
        EXPECT_FALSE(editor.onNotify);
        EXPECT_EQ(pszState, tree.State());
        tree.DestroyWindow();
    }
}

TEST_F(TreeItemsTest, AnAtomAnnouncedTwiceHasTwoItemsAndTheSecondIsTheOneThatCounts)
{
    ProbeTree& tree = ShowTree();
    const HTREEITEM hFirst = tree.GetItem(a);
    EXPECT_TRUE(tree.OnCreateAtom(a, box));
    EXPECT_EQ("world [box [a a b c]]", tree.State());
    EXPECT_EQ(hFirst, tree.GetPrevSiblingItem(tree.GetItem(a)));
    for (int i = 0; i < 2; ++i) {
        Remove(tree, a);
        EXPECT_EQ("world [box [a b c]]", tree.State());
        EXPECT_EQ(nullptr, tree.GetItem(a));
    }
    const AtomRef pRemoved = box->Remove(a);
    tree.OnDeleteAtom(nullptr, box);
    EXPECT_EQ("world [box [b c]]", tree.State());
}

TEST_F(TreeItemsTest, OnDemandMembersComeWhenTheyAreAskedForAndThenOnlyTheNewOnes)
{
    ProbeTree& tree = MakeTree();
    tree.ShowMembersOnDemand();
    tree.OnCreateAtom(world.Get(), nullptr);
    EXPECT_FALSE(tree.OnCreateAtom(box, world.Get()));
    EXPECT_EQ("world", tree.State());
    EXPECT_TRUE(tree.ShowMembers(world.Get()));
    EXPECT_TRUE(tree.ShowMembers(box));
    box->Add("A new one");
    EXPECT_TRUE(tree.ShowMembers(box));
    EXPECT_EQ("world [box [a A new one b c]]", tree.State());
    EXPECT_FALSE(tree.ShowMembers(b));
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

TEST_F(TreeItemsTest, TheWindowsEndGivesEverythingBackAndIsNoNewsToAnyone)
{
    ProbeTree& tree = ShowTree();
    tree.OnCreateAtom(world.Get(), nullptr);
    tree.OnCreateAtom(a, box);
    EXPECT_TRUE(tree.SelectItem(tree.InsertItem("own", tree.GetItem(box))));
    EXPECT_EQ("world [box [a b c]] world! [box! [a a b c *-!]]", tree.State());
    editor.TakeLedger();

    tree.DestroyWindow();
    EXPECT_EQ(Ledger({"tree unregisters"}), editor.TakeLedger());
    EXPECT_EQ(nullptr, tree.GetItem(world.Get()));
}

// Each allocation fails in its turn. What is shown then is whole, and all is given back.
TEST_F(TreeItemsTest, WithoutMemoryLessIsShownButNothingWrong)
{
    std::ranges::reverse(box->members);
    ProbeTree& tree = MakeTree();
    std::set<std::string> states;
    const auto check = [&] {
        const std::string strState = tree.State();
        for (const AtomRef& pMember : box->members)
            EXPECT_EQ(tree.GetItem(pMember.Get()) != nullptr, strState.find(pMember->name, 4) != std::string::npos);
        states.insert(strState);
        tree.OnDeleteAtom(box, nullptr);
        EXPECT_EQ("", tree.State());
        EXPECT_EQ(1, box->CountReferences());
    };
    FailEveryAllocation([&] { tree.OnCreateAtom(box, nullptr); }, check);
    EXPECT_EQ((std::set<std::string>{"", "box [a b c]", "box [a c]", "box [b c]"}), states);
    desktop.TakeMessageBoxes();
}

} // namespace
