// Clicks, keys and messages: how a tree's selection and its branches follow them, and what its owner is told.
#include "tests/support/AllocationFailures.h"
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

int CompareFirstLetters(LPARAM one, LPARAM other, LPARAM)
{
    return *reinterpret_cast<const std::string*>(one)->data() - *reinterpret_cast<const std::string*>(other)->data();
}

TEST_F(TreeControlTest, AnItemIsPutWhereItsOwnerWantsItOrBeforeTheFirstGreaterLabel)
{
    Fill("b [x] d");
    tree.Add("a", TVI_ROOT, TVI_FIRST);
    tree.Add("c", TVI_ROOT, (*this)["b"]);
    tree.Add("y", (*this)["b"], (*this)["d"]); // no sibling: at the end
    EXPECT_EQ("a b [x y] c d", State());
    EXPECT_EQ(nullptr, tree.Add("z", reinterpret_cast<HTREEITEM>(-1)));

    Fill("");
    for (const char* name : {"m", "B", "a", "Z", "b2", "A"})
        tree.Add(name, TVI_ROOT, TVI_SORT);
    EXPECT_EQ("a A B b2 m Z", State()); // an equal label stays behind its like
    Fill("c a d");                      // not in order: as it is
    tree.Add("b", TVI_ROOT, TVI_SORT);
    EXPECT_EQ("b c a d", State());
    tree.Add("c5", TVI_ROOT, TVI_SORT);
    EXPECT_EQ("b c a c5 d", State());

    Fill("b1 [x] a1 b2 c a2 b3");
    TVSORTCB sort{TVI_ROOT, &CompareFirstLetters, 0};
    EXPECT_TRUE(tree.SortChildrenCB(&sort));
    EXPECT_EQ("a1 a2 b1 [x] b2 b3 c", State());
}

TEST_F(TreeControlTest, ChildrenTakeTheOrderThatTheyAreGivenAndNoLabelIsAskedFor)
{
    Fill("a [x] b c");
    const HTREEITEM a = (*this)["a"], b = (*this)["b"], c = (*this)["c"], x = (*this)["x"];
    tree.labelRequests = 0;
    const HTREEITEM d = tree.Add("d", TVI_ROOT, TVI_SORT);
    for (const std::vector<HTREEITEM>& wrong : {std::vector{a, b, c}, {a, b, c, c}, {a, b, c, x}, {a, b, c, d, d}})
        EXPECT_FALSE(tree.ArrangeChildren(TVI_ROOT, wrong));
    EXPECT_TRUE(tree.ArrangeChildren(TVI_ROOT, std::vector{d, b, a, c}));
    EXPECT_EQ(0, tree.labelRequests);
    EXPECT_EQ("d b a [x] c", State());
}

TEST_F(TreeControlTest, AnAnswerMayBeKeptForGood)
{
    Fill("a b");
    tree.keeps = TVIF_DI_SETITEM;
    tree.Invalidate();
    desktop.Run();
    tree.labelRequests = 0;
    tree.Invalidate();
    desktop.Run();
    EXPECT_EQ("a", tree.GetItemText((*this)["a"]));
    EXPECT_EQ(0, tree.labelRequests);
}

TEST_F(TreeControlTest, AnInsertionWithoutMemoryIsRefusedAndLeavesNothing)
{
    Fill("a [b c]");
    const HTREEITEM hParent = (*this)["a"];
    const std::string name = "bb";
    TVINSERTSTRUCT insert{hParent, TVI_SORT, {}};
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    insert.item.pszText = const_cast<LPSTR>("a text that is too long to need no memory of its own");
    insert.item.lParam = reinterpret_cast<LPARAM>(&name);
    int inserted = 0;
    const int failures = FailEveryAllocation([&] {
        const UINT count = tree.GetCount();
        const HTREEITEM hItem = tree.InsertItem(&insert);
        inserted += hItem != nullptr;
        ASSERT_EQ(count + (hItem ? 1u : 0u), tree.GetCount());
    });
    EXPECT_GT(failures, 2);
    EXPECT_GE(inserted, 1);
    EXPECT_LE(inserted, failures);
    tree.DeleteAllItems(); // while their name lives
}

} // namespace
