// Clicks, keys and messages: how a tree's selection and its branches follow them, and what its owner is told.
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{

constexpr Modifiers kControl{false, true, false};

TEST_F(TreeControlTest, AClickSelectsAtTheReleaseAndTellsEachStep)
{
    Fill("a [b c] d");
    tree.SetFocus();
    EXPECT_EQ("*a [b c] d", State());
    EXPECT_EQ(Ledger({"selecting - -> a", "selected - -> a", "focus comes"}), TakeLedger());

    desktop.Press(tree.m_hWnd, LabelOf("c").CenterPoint());
    EXPECT_EQ("*a [b c] d", State());
    desktop.Release(tree.m_hWnd, LabelOf("c").CenterPoint());
    EXPECT_EQ("a [b *c] d", State());
    EXPECT_EQ(Ledger({"click", "selecting a -> c by mouse", "selected a -> c by mouse"}), TakeLedger());

    Click("c");
    desktop.Click(tree.m_hWnd, {290, 10});  // beside the label
    desktop.Click(tree.m_hWnd, {150, 190}); // below all rows
    EXPECT_EQ("a [b *c] d", State());
    EXPECT_EQ(Ledger({"click", "click", "click"}), TakeLedger());

    other.SetFocus();
    EXPECT_EQ(Ledger({"focus goes"}), TakeLedger());
}

TEST_F(TreeControlTest, ARefusedChangeLeavesEverythingAsItWas)
{
    Fill("a (b) c");
    tree.SelectItem((*this)["c"]);
    tree.refuses = [](const std::string&) { return true; };
    TakeLedger();

    EXPECT_FALSE(tree.SelectItem((*this)["b"]));
    EXPECT_FALSE(tree.Expand((*this)["a"], TVE_EXPAND));
    EXPECT_EQ(Ledger({"selecting c -> b", "expanding a"}), TakeLedger());
    Click("a"); // the owner takes the click for itself
    EXPECT_EQ(Ledger({"focus comes", "click"}), TakeLedger());
    desktop.DoubleClick(tree.m_hWnd, LabelOf("a").CenterPoint());
    EXPECT_EQ("a (b) *c", State());
    EXPECT_EQ("double click", TakeLedger().back());
    EXPECT_TRUE(tree.SelectItem((*this)["c"])); // nothing to ask
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(TreeControlTest, ADragStartsAfterFourPixelsAndLeavesTheSelectionAlone)
{
    Fill("a b c");
    tree.SetFocus();
    TakeLedger();
    const CPoint at = LabelOf("b").CenterPoint();
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
        desktop.Press(tree.m_hWnd, at, button);
        desktop.MoveTo(tree.m_hWnd, at + CPoint(3, -3));
        EXPECT_EQ(Ledger(), TakeLedger());
        desktop.MoveTo(tree.m_hWnd, at + CPoint(4, 0));
        EXPECT_EQ(Ledger({button == MouseButton::Left ? "drag b" : "right drag b"}), TakeLedger());
        EXPECT_EQ(nullptr, GetCapture());
        desktop.Release(tree.m_hWnd, at + CPoint(4, 0), button);
        TakeLedger();
    }
    desktop.Press(tree.m_hWnd, {290, 10});
    desktop.MoveTo(tree.m_hWnd, {200, 50});
    desktop.Release(tree.m_hWnd, {200, 50});
    EXPECT_EQ(Ledger({"click"}), TakeLedger()); // there was nothing to carry
    EXPECT_EQ("*a b c", State());
}

TEST_F(TreeControlTest, TheRightButtonAsksForAMenuUnlessTheOwnerTakesTheClick)
{
    Fill("a b");
    tree.SetFocus();
    TakeLedger();
    desktop.Click(tree.m_hWnd, LabelOf("b").CenterPoint(), MouseButton::Right);
    EXPECT_EQ(Ledger({"right click", "menu"}), TakeLedger());
    tree.refuses = [](const std::string&) { return true; };
    desktop.Click(tree.m_hWnd, LabelOf("b").CenterPoint(), MouseButton::Right);
    EXPECT_EQ(Ledger({"right click"}), TakeLedger());
    EXPECT_EQ("*a b", State());
}

TEST_F(TreeControlTest, ButtonsAndDoubleClicksOpenAndClose)
{
    Fill("a (b [c]) d");
    tree.SetFocus();
    TakeLedger();
    desktop.Click(tree.m_hWnd, ButtonOf("a"));
    EXPECT_EQ("*a [b [c]] d", State());
    EXPECT_EQ(Ledger({"expanding a", "expanded a"}), TakeLedger());

    Click("c");
    TakeLedger();
    desktop.Click(tree.m_hWnd, ButtonOf("a")); // hides the selected item
    EXPECT_EQ("*a (b [c]) d", State());
    EXPECT_EQ(Ledger({"collapsing a", "selecting c -> a by mouse", "selected c -> a by mouse", "collapsed a"}),
              TakeLedger());

    desktop.DoubleClick(tree.m_hWnd, LabelOf("a").CenterPoint());
    EXPECT_EQ("*a [b [c]] d", State());
    EXPECT_EQ(Ledger({"click", "double click", "expanding a", "expanded a"}), TakeLedger());
    desktop.DoubleClick(tree.m_hWnd, LabelOf("d").CenterPoint()); // which has nothing to show
    EXPECT_EQ("double click", TakeLedger().back());
}

TEST_F(TreeControlTest, SelectingAHiddenItemOpensTheWayToIt)
{
    Fill("a (b (c d)) e");
    EXPECT_TRUE(tree.SelectItem((*this)["d"]));
    EXPECT_EQ("a [b [c *d]] e", State());
    EXPECT_EQ(Ledger({"selecting - -> d", "expanding a", "expanded a", "expanding b", "expanded b", "selected - -> d"}),
              TakeLedger());

    Fill("a (b (c)) d");
    tree.refuses = [](const std::string& line) { return line == "expanding a"; };
    EXPECT_TRUE(tree.SelectItem((*this)["c"])); // selected, but nobody sees it
    EXPECT_EQ("a (b (*c)) d", State());
    EXPECT_FALSE(tree.EnsureVisible((*this)["c"]));
    Key(VK_DOWN);
    tree.SetFocus();
    Key(VK_DOWN); // on from the item that hides it
    EXPECT_EQ("a (b (c)) *d", State());
}

TEST_F(TreeControlTest, AnOwnerThatSelectsOrTakesTheFocusWhileItIsAskedOrToldWins)
{
    Fill("a b");
    tree.meanwhile = [this](const std::string& line) {
        if (line.starts_with("selecting"))
            tree.SetFocus();
    };
    tree.SelectItem((*this)["b"]);
    EXPECT_EQ(Ledger({"selecting - -> b", "focus comes", "selected - -> b"}), TakeLedger());

    Fill("a b c d");
    tree.SelectItem((*this)["a"]);
    TakeLedger();
    tree.meanwhile = [this](const std::string& line) {
        if (line == "selecting a -> b")
            tree.SelectItem((*this)["c"]);
        if (line == "selected c -> b")
            tree.SelectItem((*this)["d"]);
    };
    EXPECT_TRUE(tree.SelectItem((*this)["b"]));
    EXPECT_EQ("a b c *d", State());
    EXPECT_EQ(Ledger({"selecting a -> b", "selecting a -> c", "selected a -> c", "selected c -> b", "selecting b -> d",
                      "selected b -> d"}),
              TakeLedger());

    Fill("a (b) c");
    tree.meanwhile = [this](const std::string& line) {
        if (line == "expanding a")
            tree.SelectItem((*this)["c"]);
    };
    tree.SelectItem((*this)["b"]);
    EXPECT_EQ("a [b] *c", State());
    EXPECT_EQ(Ledger({"selecting - -> b", "expanding a", "selecting b -> c", "selected b -> c", "expanded a"}),
              TakeLedger());
}

TEST_F(TreeControlTest, TheSelectionLeavesWhatIsDeletedAndChildrenGoFirst)
{
    Fill("a b [c [d e] f] g");
    tree.SelectItem((*this)["e"]);
    TakeLedger();
    EXPECT_TRUE(tree.DeleteItem((*this)["c"]));
    EXPECT_EQ("a b [*f] g", State());
    EXPECT_EQ(Ledger({"selecting e -> f", "selected e -> f", "deleted d", "deleted e", "deleted c"}), TakeLedger());

    tree.DeleteItem((*this)["f"]);
    EXPECT_EQ("a *b g", State());
    tree.SelectItem((*this)["g"]);
    tree.DeleteItem((*this)["g"]);
    EXPECT_EQ("a *b", State());
    TakeLedger();
    tree.DeleteAllItems();
    EXPECT_EQ(Ledger({"selecting b -> -", "selected b -> -", "deleted a", "deleted b"}), TakeLedger());
    EXPECT_EQ(0u, tree.GetCount());

    Fill("a b");
    tree.SelectItem((*this)["a"]);
    TakeLedger();
    tree.refuses = [](const std::string&) { return true; };
    tree.DeleteItem((*this)["a"]); // the item goes all the same
    EXPECT_EQ("b", State());
    EXPECT_EQ(Ledger({"selecting a -> b", "deleted a"}), TakeLedger());
    tree.DestroyWindow();
    EXPECT_EQ(Ledger({"deleted b"}), TakeLedger());
}

TEST_F(TreeControlTest, AnOwnerMayDeleteInTheMiddleOfADeletion)
{
    Fill("a [b [c d] e] f");
    tree.meanwhile = [this](const std::string& line) {
        if (line != "deleted c")
            return;
        EXPECT_FALSE(tree.SelectItem((*this)["d"])); // it is on its way out
        EXPECT_EQ(nullptr, tree.Add("x", (*this)["b"]));
        tree.DeleteItem((*this)["a"]);
    };
    tree.DeleteItem((*this)["b"]);
    EXPECT_EQ("f", State());
    EXPECT_EQ(Ledger({"deleted c", "deleted d", "deleted b", "deleted e", "deleted a"}), TakeLedger());
}

TEST_F(TreeControlTest, ArrowsWalkTheShownRowsAndTheBranches)
{
    Fill("a [b (c) d] e f g h i j k l");
    tree.SetFocus();
    const auto after = [this](UINT vkey) {
        Key(vkey);
        return tree.NameOf(tree.GetSelectedItem());
    };
    EXPECT_EQ("b", after(VK_DOWN));
    EXPECT_EQ("b", after(VK_RIGHT));
    EXPECT_EQ("c", after(VK_RIGHT));
    EXPECT_EQ("c", after(VK_RIGHT));
    EXPECT_EQ("b", after(VK_LEFT));
    EXPECT_EQ("b", after(VK_LEFT));
    EXPECT_EQ("a [*b (c) d] e f g h i j k l", State());
    EXPECT_EQ("a", after(VK_BACK));
    EXPECT_EQ("a", after(VK_UP));
    EXPECT_EQ("a", after(VK_SUBTRACT));
    EXPECT_EQ("*a (b (c) d) e f g h i j k l", State());
    EXPECT_EQ("a", after(VK_MULTIPLY));
    EXPECT_EQ("*a [b [c] d] e f g h i j k l", State());
    EXPECT_EQ("l", after(VK_END));
    EXPECT_EQ("c", after(VK_PRIOR)); // a page less one row up
    EXPECT_EQ("l", after(VK_NEXT));
    EXPECT_EQ("a", after(VK_HOME));
    TakeLedger();
    Key(VK_DOWN, kControl); // scrolls alone
    EXPECT_EQ(Ledger(), TakeLedger());
    EXPECT_EQ("b", InRow(0));
    Key(VK_RETURN);
    EXPECT_EQ(Ledger({"return"}), TakeLedger());
    Key(VK_DOWN);
    EXPECT_EQ(Ledger({"selecting a -> b by key", "selected a -> b by key"}), TakeLedger());
}

TEST_F(TreeControlTest, TypingFindsTheNextLabelThatBeginsSo)
{
    Fill("Anna [Bernd Berta] Clara (hidden) \xC3\x9Cnal bert");
    tree.SetFocus();
    const auto after = [this](const char* typed) {
        desktop.Type(typed);
        return tree.NameOf(tree.GetSelectedItem());
    };
    EXPECT_EQ("Bernd", after("b"));
    EXPECT_EQ("Bernd", after("er"));
    EXPECT_EQ("Berta", after("t"));
    desktop.Advance(1001);
    EXPECT_EQ("bert", after("B"));
    EXPECT_EQ("Bernd", after("b")); // the same letter goes on, and round
    desktop.Advance(1001);
    EXPECT_EQ("Bernd", after("h")); // not shown
    desktop.Advance(1001);
    EXPECT_EQ("\xC3\x9Cnal", after("\xC3\xBC"));
    desktop.Advance(1001);
    tree.refuses = [](const std::string& line) { return line == "key C"; };
    EXPECT_EQ("\xC3\x9Cnal", after("c")); // the owner keeps the key
    tree.refuses = [](const std::string&) { return false; };
    EXPECT_EQ("Clara", after("c"));
}

// Whatever the owner does in whatever notification, nothing of the control is touched that is gone.
TEST_F(TreeControlTest, TheWindowOrAllItemsMayGoInAnyNotification)
{
    CPoint button, a, d;
    const std::function<void()> scenarios[] = {
        [&] { tree.SetFocus(); },
        [&] { desktop.Click(tree.m_hWnd, d); },
        [&] { desktop.Click(tree.m_hWnd, button); },
        [&] { desktop.DoubleClick(tree.m_hWnd, a); },
        [&] { tree.SelectItem((*this)["c"]), tree.Expand((*this)["a"], TVE_COLLAPSE | TVE_COLLAPSERESET); },
        [&] { tree.SelectItem((*this)["c"]), tree.DeleteItem((*this)["a"]); },
        [&] { tree.SetFocus(), desktop.Key(VK_MULTIPLY), desktop.Type("d"), desktop.Key(VK_RETURN); },
        [&] { tree.Add("x", TVI_ROOT, TVI_SORT), tree.SortChildren(TVI_ROOT), desktop.Run(); },
        [&] { desktop.Press(tree.m_hWnd, d), desktop.MoveTo(tree.m_hWnd, d + CPoint(9, 0)); },
        [&] { desktop.Click(tree.m_hWnd, d, MouseButton::Right), other.SetFocus(); },
    };
    for (const bool destroys : {false, true}) {
        for (const auto& scenario : scenarios) {
            for (int step = 0, steps = 0;; ++step) {
                TearDown();
                SetUp();
                Fill("a (b (c)) d e");
                button = ButtonOf("a"), a = LabelOf("a").CenterPoint(), d = LabelOf("d").CenterPoint();
                steps = 0;
                tree.asked = tree.meanwhile = [&](const std::string&) {
                    if (steps++ != step)
                        return;
                    if (destroys)
                        tree.DestroyWindow();
                    else
                        tree.DeleteAllItems();
                };
                scenario();
                desktop.Run();
                tree.asked = tree.meanwhile = [](const std::string&) {};
                if (steps <= step)
                    break; // all were tried
                ASSERT_EQ(destroys, tree.m_hWnd == nullptr);
                ASSERT_LE(tree.m_hWnd ? tree.GetCount() : 0u, 1u);
                ASSERT_TRUE(!tree.m_hWnd || !tree.GetSelectedItem() || State().front() == '*');
            }
        }
    }
}

} // namespace
