// Hosts that do not keep to the rules, or do the unexpected from within a call.
#include "tests/views/TreeTest.h"

namespace
{

class TreeMisbehaviourTest : public TreeTest
{
protected:
    FakeAtom* Find(const std::string& strName) const { return strName == "box" ? box : box->Named(strName); }
    // The next time that the operation is asked or told.
    void Do(AEStateOperation operation, std::function<void()> deed)
    {
        editor.onNotify = [this, operation, deed](AEStateOperation told, IAtom*) {
            if (told == operation) {
                editor.onNotify = nullptr;
                deed();
            }
        };
    }

    FakeContainer* const box = MakeBox({"a", "b", "c"});
};

TEST_F(TreeMisbehaviourTest, AContainerBelowItselfIsNotShownAgainAndMembersThatVanishArePassedBy)
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

    Remove(tree, pInner);
    EXPECT_EQ("world [box [a b c]]", tree.State());
    Remove(tree, box);
    EXPECT_EQ("world", tree.State());
    pInner->members.clear(); // it holds itself
}

// While a click goes from a to b. What is said of c while the click is only asked for, or the tree hears of b itself
// after that, does not count.
TEST_F(TreeMisbehaviourTest, AHandlerMayRemoveTheAtomItIsToldAboutOrSelectSomethingElse)
{
    using Handler = IAEStateHandler;
    const struct
    {
        AEStateOperation operation;
        const char *pszWithoutA, *pszWithoutB, *pszSelectingC;
    } rows[] = {
        {&Handler::OnAtomDeselecting, "[*b! c]", "[*a! c]", "[a *b! c]"},
        {&Handler::OnAtomSelecting, "[*b! c]", "[*a! c]", "[a *b! c]"},
        {&Handler::OnAtomDeselected, "[*b! c]", "[a *c!]", "[a b *c!]"},
        {&Handler::OnAtomEntered, "[*b! c]", "[a *c!]", "[a *b! c]"},
        {&Handler::OnAtomSelected, "[*b! c]", "[a *c!]", "[a b *c!]"},
    };
    for (const auto& row : rows) {
        std::string strLast; // said
        const auto after = [&](const std::function<void(ProbeTree&)>& deed) {
            ProbeTree& tree = ShowTree();
            Select(tree, Find("a"));
            Do(row.operation, [&] { deed(tree); });
            Click(tree, Find("b"));
            EXPECT_FALSE(editor.onNotify);
            const std::string strState = tree.State();
            strLast = editor.TakeLedger().back();
            tree.DestroyWindow();
            EXPECT_EQ(1, Find("a")->CountReferences());
            EXPECT_EQ(1, Find("b")->CountReferences());
            return strState;
        };
        const auto in = [](const std::string& members) { return "world! [box! " + members + "]"; };
        EXPECT_EQ(in(row.pszWithoutA), after([&](ProbeTree& tree) { Remove(tree, Find("a")); }));
        EXPECT_EQ(in(row.pszWithoutB), after([&](ProbeTree& tree) { Remove(tree, Find("b")); }));
        EXPECT_EQ("*world!", after([&](ProbeTree& tree) { Remove(tree, box); }));
        EXPECT_EQ(in(row.pszSelectingC), after([&](ProbeTree& tree) { tree.OnAtomEntered(Find("c"), box); }));
        const bool bClickCounts = std::string(row.pszSelectingC) == "[a *b! c]";
        EXPECT_EQ(bClickCounts ? "tree tells OnAtomSelected(b in box)" : "tree tells OnAtomSelected(c in box)",
                  strLast);
    }
}

TEST_F(TreeMisbehaviourTest, AHandlerMayDestroyTheWindow)
{
    for (const char* pszRemoved : {"", "a", "box"}) {
        ProbeTree& tree = ShowTree();
        Select(tree, Find("a"));
        Do(&IAEStateHandler::OnAtomSelecting, [&] { tree.DestroyWindow(); });
        if (*pszRemoved)
            Remove(tree, Find(pszRemoved));
        else
            Click(tree, Find("b"));
        EXPECT_EQ(nullptr, tree.m_hWnd);
        EXPECT_EQ(1, box->CountReferences()) << pszRemoved;
        EXPECT_EQ(1, Find("b")->CountReferences()) << pszRemoved;
        EXPECT_EQ(nullptr, tree.GetItem(box)) << pszRemoved;
    }
}

TEST_F(TreeMisbehaviourTest, AContainerMayGoWhileItsMembersAreFetched)
{
    ProbeTree& tree = ShowTree();
    FakeContainer* const pLate = MakeBox("late", {"x", "y", "z"});
    pLate->onGetAtoms = [&](UINT nFirst) {
        if (nFirst == 1)
            Remove(tree, pLate);
    };
    tree.OnCreateAtom(pLate, world.Get());
    EXPECT_EQ("world [box [a b c]]", tree.State());
    EXPECT_EQ(1, pLate->CountReferences());
    EXPECT_EQ(1, pLate->Named("x")->CountReferences());
}

TEST_F(TreeMisbehaviourTest, AnAtomMayHaveTheTreeDrawOrDestroyItWhileItIsAskedForItsName)
{
    auto* const pRestless = new RestlessAtom("a restless one");
    box->Add(pRestless);
    ProbeTree& tree = ShowTree();
    Find("a")->name.assign(1000, 'a'); // more than the buffer has held so far
    pRestless->Do(1, [&] { tree.OnChangeAtom(box, world.Get()); });
    tree.nLabels = 0;
    EXPECT_EQ("a restless one", std::string(tree.GetItemText(tree.GetItem(pRestless))));
    EXPECT_GT(tree.nLabels, 5);

    pRestless->Do(1, [&] { tree.DestroyWindow(); });
    tree.OnCreateAtom(pRestless, nullptr);
    EXPECT_EQ(nullptr, tree.GetRootItem()); // it is asked for its name only now
    EXPECT_EQ(std::vector<std::string>(), desktop.TakeMessageBoxes());
    EXPECT_EQ(1, pRestless->CountReferences());
}

TEST_F(TreeMisbehaviourTest, MembersMayGoWhileTheyArePutInOrder)
{
    auto* const pRestless = new RestlessAtom("a restless one");
    box->Add(pRestless);
    Find("b")->isLink = true; // so that pairs are compared
    ProbeTree& tree = MakeTree();
    int nth = 0;
    do {
        pRestless->Do(++nth, [&] {
            for (const char* pszName : {"a", "b", "c"})
                Remove(tree, Find(pszName));
        });
        tree.OnCreateAtom(box, nullptr);
        EXPECT_EQ(pRestless->deed ? "box [a a restless one b c]" : "box [a restless one]", tree.State());
        tree.OnDeleteAtom(box, nullptr);
        EXPECT_EQ(1, Find("b")->CountReferences());
    } while (!pRestless->deed);
    EXPECT_GT(nth, 3); // labels are read, then names, then names in pairs
}

TEST_F(TreeMisbehaviourTest, WithTheSelectedItemGoneAndItsHeirRefusedNothingIsSelectedOrBold)
{
    ProbeTree& tree = ShowTree();
    Select(tree, Find("b"));
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Remove(tree, Find("b"));
    EXPECT_EQ("world [box [a c]]", tree.State());
}

} // namespace
