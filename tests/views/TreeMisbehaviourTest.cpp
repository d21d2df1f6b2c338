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

} // namespace
