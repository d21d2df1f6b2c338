// Hosts that do not keep to the rules, or do the unexpected from within a call.
#include "tests/views/TreeTest.h"

namespace
{

class TreeMisbehaviourTest : public TreeTest
{
protected:
    TreeMisbehaviourTest() { box = MakeBox("box", {"a", "b", "c"}); }
    ~TreeMisbehaviourTest() override
    {
        world->members.clear(); // a container among its own members holds itself
    }

    FakeContainer* box;
};

TEST_F(TreeMisbehaviourTest, MembersThatVanishBetweenCountAndFetchArePassedBy)
{
    box->nMissing = 3;
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [box [a b c]]", tree.State());
    tree.OnDeleteAtom(box, world.Get());
    EXPECT_EQ("world", tree.State());
}

TEST_F(TreeMisbehaviourTest, AContainerBelowItselfIsNotShownAgain)
{
    auto* const pInner = new FakeContainer("inner");
    box->Add(pInner);
    pInner->members.push_back(AtomRef::Share(box));
    pInner->members.push_back(AtomRef::Share(pInner));
    pInner->Add("x");
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [box [a b c inner [x]]]", tree.State());
    EXPECT_FALSE(tree.OnCreateAtom(box, box));
    EXPECT_FALSE(tree.OnCreateAtom(world.Get(), pInner));
    EXPECT_EQ("world [box [a b c inner [x]]]", tree.State());

    EXPECT_TRUE(tree.OnDeleteAtom(pInner, box));
    EXPECT_EQ("world [box [a b c]]", tree.State());
    EXPECT_TRUE(tree.OnDeleteAtom(box, world.Get()));
    EXPECT_EQ("world", tree.State());
    pInner->members.clear();
}

TEST_F(TreeMisbehaviourTest, AnAtomInTwoContainersIsRemovedWithEach)
{
    auto* const pOther = MakeBox("other", {});
    FakeAtom* const pShared = box->Named("b");
    pOther->members.push_back(AtomRef::Share(pShared));
    ProbeTree& tree = ShowTree();
    EXPECT_EQ("world [box [a b c] other [b]]", tree.State());
    const auto pKept = box->Remove(pShared);
    tree.OnDeleteAtom(nullptr, box);
    EXPECT_EQ("world [box [a c] other [b]]", tree.State());

    box->members.push_back(AtomRef::Share(pShared));
    EXPECT_TRUE(tree.OnCreateAtom(pShared, box));
    tree.OnDeleteAtom(pOther, world.Get()); // which names b a member, whose item is the one in the box
    EXPECT_EQ("world [box [a c]]", tree.State());
    EXPECT_EQ(3, pShared->CountReferences()); // the test's and the two containers'
}

// Whatever is told or asked, someone removes the atom in question, or the one that is left.
TEST_F(TreeMisbehaviourTest, AHandlerMayRemoveTheAtomItIsToldAbout)
{
    const AEStateOperation operations[] = {&IAEStateHandler::OnAtomDeselecting, &IAEStateHandler::OnAtomSelecting,
                                           &IAEStateHandler::OnAtomDeselected, &IAEStateHandler::OnAtomEntered,
                                           &IAEStateHandler::OnAtomSelected};
    for (const AEStateOperation operation : operations) {
        for (const char* pszVictim : {"a", "b", "box"}) {
            ProbeTree& tree = ShowTree();
            Select(tree, box->Named("a"));
            editor.onNotify = [&](AEStateOperation told, IAtom*) {
                if (told == operation) {
                    editor.onNotify = nullptr;
                    FakeAtom* const pVictim = box->name == pszVictim ? box : box->Named(pszVictim);
                    tree.OnDeleteAtom(pVictim, pVictim->parent);
                }
            };
            Click(tree, box->Named("b"));
            desktop.Run();
            EXPECT_EQ(nullptr, editor.onNotify);
            const std::string strState = tree.State();
            EXPECT_EQ(std::string::npos, strState.find(std::string(pszVictim) + "!")) << strState;
            tree.DestroyWindow();
            EXPECT_EQ(1, box->Named("a")->CountReferences()) << pszVictim;
            EXPECT_EQ(1, box->Named("b")->CountReferences()) << pszVictim;
        }
    }
}

TEST_F(TreeMisbehaviourTest, AHandlerMaySelectSomethingElse)
{
    const AEStateOperation operations[] = {&IAEStateHandler::OnAtomDeselecting, &IAEStateHandler::OnAtomSelecting,
                                           &IAEStateHandler::OnAtomDeselected, &IAEStateHandler::OnAtomEntered,
                                           &IAEStateHandler::OnAtomSelected};
    for (const AEStateOperation operation : operations) {
        ProbeTree& tree = ShowTree();
        Select(tree, box->Named("a"));
        editor.onNotify = [&](AEStateOperation told, IAtom*) {
            if (told == operation) {
                editor.onNotify = nullptr;
                tree.OnAtomEntered(box->Named("c"), box);
            }
        };
        Click(tree, box->Named("b"));
        const std::string strState = tree.State();
        EXPECT_TRUE(strState == "world! [box! [a *b! c]]" || strState == "world! [box! [a b *c!]]") << strState;
        tree.DestroyWindow();
    }
}

TEST_F(TreeMisbehaviourTest, AHandlerMayDestroyTheWindow)
{
    for (const char* pszRemoved : {"", "a", "box"}) {
        ProbeTree& tree = ShowTree();
        Select(tree, box->Named("a"));
        editor.onNotify = [&](AEStateOperation, IAtom*) {
            editor.onNotify = nullptr;
            tree.DestroyWindow();
        };
        if (!*pszRemoved)
            Click(tree, box->Named("b"));
        else
            tree.OnDeleteAtom(box->name == pszRemoved ? box : box->Named(pszRemoved), nullptr);
        EXPECT_EQ(nullptr, tree.m_hWnd);
        EXPECT_EQ(1, box->Named("a")->CountReferences()) << pszRemoved;
        EXPECT_EQ(1, box->CountReferences()) << pszRemoved;
        EXPECT_EQ(nullptr, tree.GetItem(box)) << pszRemoved;
    }
}

TEST_F(TreeMisbehaviourTest, AContainerMayGoWhileItsMembersAreFetched)
{
    ProbeTree& tree = ShowTree();
    auto* const pLate = MakeBox("late", {"x", "y", "z"});
    pLate->onGetAtoms = [&](UINT nFirst) {
        if (nFirst == 1)
            tree.OnDeleteAtom(pLate, world.Get());
    };
    tree.OnCreateAtom(pLate, world.Get());
    EXPECT_EQ("world [box [a b c]]", tree.State());
    EXPECT_EQ(1, pLate->CountReferences());
    EXPECT_EQ(1, pLate->Named("x")->CountReferences());
}

TEST_F(TreeMisbehaviourTest, WithTheSelectedItemGoneAndItsHeirRefusedNothingIsSelectedOrBold)
{
    ProbeTree& tree = ShowTree();
    Select(tree, box->Named("b"));
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    tree.OnDeleteAtom(box->Named("b"), box);
    EXPECT_EQ("world [box [a c]]", tree.State());
}

} // namespace
