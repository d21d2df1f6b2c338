// Hosts that do not keep to the rules, or do the unexpected from within a call.
#include "tests/views/TreeTest.h"

namespace
{

class TreeMisbehaviourTest : public TreeTest
{
protected:
    static constexpr AEStateOperation kOperations[] = {
        &IAEStateHandler::OnAtomDeselecting, &IAEStateHandler::OnAtomSelecting, &IAEStateHandler::OnAtomDeselected,
        &IAEStateHandler::OnAtomEntered, &IAEStateHandler::OnAtomSelected};

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

TEST_F(TreeMisbehaviourTest, AnAtomInTwoContainersIsRemovedWithEach)
{
    FakeContainer* const pOther = MakeBox("other", {});
    FakeAtom* const b = Find("b");
    pOther->members.push_back(AtomRef::Share(b));
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [box [a b c] other [b]]", tree.State());
    AtomRef pKept = box->Remove(b);
    tree.OnDeleteAtom(nullptr, box);
    EXPECT_EQ("world [box [a c] other [b]]", tree.State());

    box->members.push_back(std::move(pKept));
    tree.OnCreateAtom(b, box);
    Remove(tree, pOther); // whose member is the one in the box by now
    EXPECT_EQ("world [box [a c]]", tree.State());
    EXPECT_EQ(2, b->CountReferences());
}

TEST_F(TreeMisbehaviourTest, AHandlerMayRemoveTheAtomItIsToldAbout)
{
    for (const AEStateOperation operation : kOperations) {
        for (const char* pszVictim : {"a", "b", "box"}) {
            ProbeTree& tree = ShowTree();
            Select(tree, Find("a"));
            Do(operation, [&] { Remove(tree, Find(pszVictim)); });
            Click(tree, Find("b"));
            EXPECT_FALSE(editor.onNotify);
            EXPECT_EQ(nullptr, tree.GetItem(Find(pszVictim)));
            const std::string strState = tree.State();
            const std::size_t nSelected = strState.find('*');
            ASSERT_NE(std::string::npos, nSelected) << strState;
            EXPECT_NE(std::string::npos, strState.find('!', nSelected)) << strState << " is not bold";
            tree.DestroyWindow();
            EXPECT_EQ(1, Find("a")->CountReferences()) << pszVictim;
            EXPECT_EQ(1, Find("b")->CountReferences()) << pszVictim;
        }
    }
}

TEST_F(TreeMisbehaviourTest, AHandlerMaySelectSomethingElse)
{
    for (const AEStateOperation operation : kOperations) {
        ProbeTree& tree = ShowTree();
        Select(tree, Find("a"));
        Do(operation, [&] { tree.OnAtomEntered(Find("c"), box); });
        Click(tree, Find("b"));
        // The click goes on after what it was asked, and after what was told when the focus came.
        const bool bClickCounts = tree.GetItem(Find("b")) == tree.GetSelectedItem();
        EXPECT_EQ(bClickCounts ? "world! [box! [a *b! c]]" : "world! [box! [a b *c!]]", tree.State());
        EXPECT_EQ(bClickCounts ? "tree tells OnAtomSelected(b in box)" : "tree tells OnAtomSelected(c in box)",
                  editor.TakeLedger().back());
        tree.DestroyWindow();
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

// An atom that does something else while it says its name.
class RestlessAtom : public FakeAtom
{
public:
    using FakeAtom::FakeAtom;

    std::function<void()> onName;

    // Has it done when it says its name for the nth time from now on.
    void Do(int nth, std::function<void()> deed)
    {
        onName = [this, nth, deed]() mutable {
            if (--nth > 0)
                return;
            const auto last = std::exchange(onName, nullptr);
            deed();
        };
    }
    BOOL GetName(char* pBuffer, DWORD* pLength) override
    {
        const BOOL bRead = FakeAtom::GetName(pBuffer, pLength);
        if (pBuffer && onName)
            onName();
        return bRead;
    }
};

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
    EXPECT_FALSE(tree.OnCreateAtom(pRestless, nullptr));
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
        EXPECT_EQ(pRestless->onName ? "box [a a restless one b c]" : "box [a restless one]", tree.State());
        tree.OnDeleteAtom(box, nullptr);
        EXPECT_EQ(1, Find("b")->CountReferences());
    } while (!pRestless->onName);
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
