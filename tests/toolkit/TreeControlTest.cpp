// Clicks, keys and messages: how a tree's selection and its branches follow them, and what its owner is told.
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{

TEST_F(TreeControlTest, AClickSelectsAtTheReleaseUnlessTheOwnerTakesItOrItBecomesADrag)
{
    Fill("a [b c] d");
    tree.SetFocus();
    EXPECT_EQ(Ledger({"selecting - -> a", "selected - -> a", "focus comes"}), TakeLedger());
    const CPoint at = LabelOf("c").CenterPoint();
    desktop.Press(tree.m_hWnd, at);
    EXPECT_EQ("*a [b c] d", State());
    desktop.Release(tree.m_hWnd, at);
    EXPECT_EQ("a [b *c] d", State());
    EXPECT_EQ(Ledger({"click", "selecting a -> c by mouse", "selected a -> c by mouse"}), TakeLedger());
    desktop.Click(tree.m_hWnd, {290, 10});  // beside the label
    desktop.Click(tree.m_hWnd, {150, 190}); // below all rows
    EXPECT_EQ(Ledger({"click", "click"}), TakeLedger());
    desktop.Click(tree.m_hWnd, LabelOf("b").CenterPoint(), MouseButton::Right);
    EXPECT_EQ(Ledger({"right click", "menu"}), TakeLedger());

    for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
        desktop.Press(tree.m_hWnd, LabelOf("b").CenterPoint(), button);
        desktop.MoveTo(tree.m_hWnd, LabelOf("b").CenterPoint() + CPoint(3, -3));
        EXPECT_EQ(Ledger(), TakeLedger());
        desktop.MoveTo(tree.m_hWnd, LabelOf("b").CenterPoint() + CPoint(4, 0));
        EXPECT_EQ(Ledger({button == MouseButton::Left ? "drag b" : "right drag b"}), TakeLedger());
        EXPECT_EQ(nullptr, GetCapture());
        desktop.Release(tree.m_hWnd, at, button);
        TakeLedger();
    }
    tree.refuses = [](const std::string&) { return true; };
    Click("a");
    desktop.DoubleClick(tree.m_hWnd, LabelOf("a").CenterPoint());
    desktop.Click(tree.m_hWnd, LabelOf("b").CenterPoint(), MouseButton::Right);
    EXPECT_EQ(Ledger({"click", "click", "double click", "right click"}), TakeLedger());
}

TEST_F(TreeControlTest, AnItemStaysHiddenWhenOpeningTheWayToItIsRefused)
{
    Fill("a (b (c)) d");
    tree.refuses = [](const std::string& line) { return line == "expanding a"; };
    EXPECT_TRUE(tree.SelectItem((*this)["c"])); // selected, but nobody sees it
    EXPECT_EQ("a (b (*c)) d", State());
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

    Fill("a (b) d");
    tree.meanwhile = [this](const std::string& line) {
        if (line == "expanding a")
            tree.SelectItem((*this)["d"]);
    };
    tree.SelectItem((*this)["b"]); // which is left again before it was told of
    EXPECT_EQ(Ledger({"selecting - -> b", "expanding a", "selecting b -> d", "selected b -> d", "expanded a"}),
              TakeLedger());
}

TEST_F(TreeControlTest, AnOwnerMayDeleteMoreWhileItHearsOfDeletions)
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

    Fill("a [b [c] d] f");
    tree.meanwhile = [this](const std::string& line) {
        if (line == "deleted c")
            tree.DeleteItem((*this)["b"]); // which the deletion of a was to go on from
    };
    tree.DeleteItem((*this)["a"]);
    EXPECT_EQ("f", State());
    EXPECT_EQ(Ledger({"deleted c", "deleted b", "deleted d", "deleted a"}), TakeLedger());
}

TEST_F(TreeControlTest, TypingFindsTheNextShownLabelThatBeginsSo)
{
    Fill("Anna [Bernd Berta] Clara (hidden) \xC3\x9Cnal bert");
    tree.SetFocus();
    const std::tuple<DWORD, const char*, const char*> steps[] = {
        {0, "b", "Bernd"}, {999, "ert", "Berta"}, {1001, "B", "bert"},
        {0, "b", "Bernd"}, {1001, "h", "Bernd"},  {1001, "\xC3\xBC", "\xC3\x9Cnal"},
    };
    for (const auto& [wait, typed, found] : steps) {
        desktop.Advance(wait);
        desktop.Type(typed);
        EXPECT_EQ(found, tree.NameOf(tree.GetSelectedItem()));
    }
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
        [&] { tree.SelectItem((*this)["c"]), tree.Expand((*this)["a"], TVE_COLLAPSE); },
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
