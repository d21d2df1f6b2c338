// Clicks, keys and messages: how a list's selection follows them, and what its owner is told.
#include "tests/toolkit/ListControlFixture.h"

using namespace toolkit;

namespace
{

TEST_F(ListControlTest, AClickSelectsOneRowAloneAndTellsEachStep)
{
    EXPECT_EQ("[a (*b) c d e f]", AfterClick(1));
    EXPECT_EQ(Ledger({"b? +selected +focused", "b: +selected +focused", "click b"}), TakeLedger());

    desktop.Press(list.m_hWnd, LabelOf(4));
    EXPECT_EQ("[a b c d (*e) f]", State()); // at once
    EXPECT_EQ(Ledger({"b? -selected", "b: -selected", "e? +selected +focused", "b? -focused", "b: -focused",
                      "e: +selected +focused"}),
              TakeLedger());
    desktop.Release(list.m_hWnd, LabelOf(4));
    EXPECT_EQ(Ledger({"click e"}), TakeLedger());

    Click(4);
    EXPECT_EQ(Ledger({"click e"}), TakeLedger());
    desktop.Click(list.m_hWnd, kEmpty);
    EXPECT_EQ("[a b c d (e) f]", State());
    EXPECT_EQ(Ledger({"e? -selected", "e: -selected", "click nothing"}), TakeLedger());
}

TEST_F(ListControlTest, ARefusedChangeLeavesTheRowAsItWas)
{
    Click(0);
    list.refuses = [](const std::string& line) { return line == "b? +selected +focused" || line == "c? -selected"; };
    EXPECT_EQ("[(a) b c d e f]", AfterClick(1));

    Click(2);
    TakeLedger();
    EXPECT_EQ("[a b *c (*d) e f]", AfterClick(3));
    EXPECT_EQ(Ledger({"c? -selected", "d? +selected +focused", "c? -focused", "c: -focused", "d: +selected +focused",
                      "click d"}),
              TakeLedger());
    EXPECT_FALSE(list.SetItemState(2, 0, LVIS_SELECTED));
    EXPECT_TRUE(list.SetItemState(3, 0, LVIS_SELECTED));
}

// Whoever is asked shows a message box, which gets the release.
TEST_F(ListControlTest, APressWhoseReleaseAnotherWindowHadDragsAndSweepsNothing)
{
    for (const CPoint& from : {IconOf(1), kEmpty}) {
        list.meanwhile = [&, bShown = false](const std::string&) mutable {
            if (std::exchange(bShown, true))
                return;
            InputActivate(top.m_hWnd, false);
            InputActivate(top.m_hWnd, true);
            desktop.Run();
        };
        desktop.Press(list.m_hWnd, from);
        TakeLedger();
        desktop.MoveTo(list.m_hWnd, IconOf(5));
        EXPECT_EQ(Ledger(), TakeLedger());
        EXPECT_EQ(nullptr, GetCapture());
    }
}

TEST_F(ListControlTest, ShiftTakesTheRectangleBetweenTheAnchorAndTheRow)
{
    Click(1);
    EXPECT_EQ("[a *b *c d *e (*f)]", AfterClick(5, kShift));
    EXPECT_EQ("[*a *b c (*d) *e f]", AfterClick(3, kShift)); // from the same anchor
    TakeLedger();
    EXPECT_EQ("[(*a) *b c d e f]", AfterClick(0, kShift)); // one of several selected: only at the release
    EXPECT_EQ(Ledger({"d? -selected", "d: -selected", "e? -selected", "e: -selected", "a? +focused", "d? -focused",
                      "d: -focused", "a: +focused", "click a"}),
              TakeLedger());

    Click(5, kControl);
    EXPECT_EQ("[*a *b (*c) d e *f]", AfterClick(2, {true, true, false})); // beside what is selected
}

TEST_F(ListControlTest, APressOnOneOfSeveralSelectedRowsWaitsAndADragCarriesThePressedRow)
{
    Click(0);
    Click(4, kShift);
    ASSERT_EQ("abde", Selected());
    TakeLedger();

    desktop.Press(list.m_hWnd, IconOf(1));
    EXPECT_EQ("abde", Selected());
    desktop.MoveTo(list.m_hWnd, IconOf(1) + CPoint(3, -3));
    EXPECT_EQ(Ledger({"b? +focused", "e? -focused", "e: -focused", "b: +focused"}), TakeLedger());
    desktop.MoveTo(list.m_hWnd, IconOf(1) + CPoint(3, -4));
    EXPECT_EQ(Ledger({"drag b"}), TakeLedger());
    desktop.MoveTo(list.m_hWnd, IconOf(5));
    desktop.Release(list.m_hWnd, IconOf(5));
    EXPECT_EQ("abde", Selected());
    EXPECT_EQ(Ledger(), TakeLedger());

    desktop.Click(list.m_hWnd, IconOf(1));
    EXPECT_EQ("[a (*b) c d e f]", State());

    Drag(IconOf(2), IconOf(5));
    EXPECT_EQ("[a b (*c) d e f]", State());
    EXPECT_EQ("drag c", TakeLedger().back());
    desktop.Release(list.m_hWnd, IconOf(5));

    Drag(IconOf(0), IconOf(5), kControl); // joins the selection before it leaves
    EXPECT_EQ("[(*a) b *c d e f]", State());
    EXPECT_EQ("drag a", TakeLedger().back());
    desktop.Release(list.m_hWnd, IconOf(5));

    list.refuses = [](const std::string& line) { return line.starts_with("e?"); };
    Drag(IconOf(4), IconOf(5));
    desktop.Release(list.m_hWnd, IconOf(5));
    for (const std::string& line : TakeLedger())
        EXPECT_NE("drag e", line);
    list.refuses = [](const std::string&) { return false; };

    desktop.Press(list.m_hWnd, IconOf(3), MouseButton::Right);
    desktop.MoveTo(list.m_hWnd, IconOf(5));
    EXPECT_EQ("right drag d", TakeLedger().back());
    EXPECT_EQ("[a b c (*d) e f]", State());
    desktop.Release(list.m_hWnd, IconOf(5), MouseButton::Right);
}

TEST_F(ListControlTest, TheRightButtonSelectsAndThenAsksForTheMenu)
{
    desktop.Click(list.m_hWnd, IconOf(2), MouseButton::Right);
    EXPECT_EQ("[a b (*c) d e f]", State());
    EXPECT_EQ(Ledger({"c? +selected +focused", "c: +selected +focused", "right click c", "menu"}), TakeLedger());

    Click(0);
    Click(1, kControl);
    TakeLedger();
    desktop.Click(list.m_hWnd, IconOf(0), MouseButton::Right); // on the selection: for all of it
    EXPECT_EQ("[(*a) *b c d e f]", State());
    desktop.Click(list.m_hWnd, kEmpty, MouseButton::Right);
    EXPECT_EQ("", Selected());
    EXPECT_EQ("menu", TakeLedger().back());
}

TEST_F(ListControlTest, ADoubleClickIsToldAtItsSecondPress)
{
    desktop.DoubleClick(list.m_hWnd, IconOf(1));
    EXPECT_EQ(Ledger({"b? +selected +focused", "b: +selected +focused", "click b", "double click b"}), TakeLedger());
    desktop.Advance(10000);
    desktop.DoubleClick(list.m_hWnd, kEmpty);
    EXPECT_EQ("double click nothing", TakeLedger().at(3));
    EXPECT_EQ("[a (b) c d e f]", State());
}

TEST_F(ListControlTest, AReleaseWithoutAPressDoesNothingAndOneSentEndsAPress)
{
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(IconOf(1).x, IconOf(1).y));
    EXPECT_EQ(Ledger(), TakeLedger());

    desktop.Press(list.m_hWnd, IconOf(1));
    list.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(0, 0));
    desktop.Run();
    EXPECT_EQ("click b", TakeLedger().back());
    desktop.MoveTo(list.m_hWnd, IconOf(5));
    desktop.Release(list.m_hWnd, IconOf(5));
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(ListControlTest, KeysMoveTheFocusAndWithItTheSelection)
{
    EXPECT_EQ("[(*a) b c d e f]", AfterKey(VK_RIGHT)); // the first key comes to the first row
    EXPECT_EQ("[a (*b) c d e f]", AfterKey(VK_RIGHT));
    EXPECT_EQ("[a b c d (*e) f]", AfterKey(VK_DOWN));
    EXPECT_EQ("[a b c d (*e) f]", AfterKey(VK_DOWN));
    EXPECT_EQ("[a b c (*d) e f]", AfterKey(VK_LEFT));
    EXPECT_EQ("[a b (*c) d e f]", AfterKey(VK_LEFT)); // on to the line before
    EXPECT_EQ("[a b *c (d) e f]", AfterKey(VK_RIGHT, kControl));
    EXPECT_EQ("[a b *c (*d) e f]", AfterKey(VK_SPACE, kControl));
    EXPECT_EQ("[a b *c (d) e f]", AfterKey(VK_SPACE, kControl));
    EXPECT_EQ("[a b c (*d) e f]", AfterKey(VK_SPACE));
    EXPECT_EQ("[(*a) b c *d e f]", AfterKey(VK_UP, kShift));
    EXPECT_EQ("[*a (*b) c *d *e f]", AfterKey(VK_RIGHT, kShift));
    EXPECT_EQ("[a b c *d *e (*f)]", AfterKey(VK_END, kShift)); // all rows to the end
    EXPECT_EQ("[(*a) b c d e f]", AfterKey(VK_HOME));
    list.SetItemCount(5);
    Key(VK_RIGHT);
    EXPECT_EQ("[a b (*c) d e]", AfterKey(VK_RIGHT));
    EXPECT_EQ("[a b c d (*e)]", AfterKey(VK_DOWN)); // the last line does not reach so far
}

TEST_F(ListControlTest, PagesKeepTheColumnAndTheFocusComesIntoSight)
{
    Fill(1000);
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    const auto focus = [&] { return list.GetNextItem(-1, LVNI_FOCUSED); };
    const auto isInSight = [&] {
        CRect rect;
        list.GetItemRect(focus(), &rect, LVIR_BOUNDS);
        return rect.top >= 0 && rect.bottom <= 300;
    };
    Key(VK_NEXT);
    EXPECT_EQ(10, focus()); // three lines down
    EXPECT_TRUE(isInSight());
    Key(VK_NEXT);
    EXPECT_EQ(19, focus());
    Key(VK_END);
    EXPECT_EQ(999, focus());
    EXPECT_TRUE(isInSight());
    Key(VK_PRIOR);
    EXPECT_EQ(990, focus());
    Key(VK_HOME);
    EXPECT_EQ(0, focus());
    EXPECT_TRUE(isInSight());
    EXPECT_EQ(0, list.GetTopIndex());
    Key(VK_RETURN);
    EXPECT_EQ("return", TakeLedger().back());
}

TEST_F(ListControlTest, AllRowsChangeAsOneAndAnyFewerOneByOne)
{
    Fill(1000000);
    Key('A', kControl);
    EXPECT_EQ(Ledger({"all? +selected", "all: +selected"}), TakeLedger());
    EXPECT_EQ(1000000, list.GetSelectedCount());
    Key('A', kControl);
    EXPECT_EQ(Ledger(), TakeLedger());
    EXPECT_EQ(999999, list.GetNextItem(999998, LVNI_SELECTED));

    Click(1, kControl);
    TakeLedger();
    desktop.Click(list.m_hWnd, IconOf(2));
    EXPECT_EQ("c", Selected());
    EXPECT_EQ(Ledger({"c? +focused", "b? -focused", "b: -focused", "c: +focused", "all? -selected", "all: -selected",
                      "c? +selected", "c: +selected", "click c"}),
              TakeLedger());

    list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(-1, 0, LVIS_SELECTED);
    list.SetItemState(-1, 0, LVIS_SELECTED | LVIS_DROPHILITED); // nothing changes
    EXPECT_EQ(Ledger({"all? +selected", "all: +selected", "all? -selected", "all: -selected"}), TakeLedger());
    list.refuses = [](const std::string& line) { return line == "all? +selected"; };
    Key('A', kControl);
    EXPECT_EQ(0, list.GetSelectedCount());
    list.SetItemState(-1, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_EQ(2, list.GetNextItem(-1, LVNI_FOCUSED)); // only one can have it

    list.refuses = [](const std::string& line) { return line == "999500? +selected"; };
    list.EnsureVisible(999000, FALSE);
    Click(999000);
    TakeLedger();
    Key(VK_END, kShift); // a thousand of a million
    EXPECT_EQ(999, list.GetSelectedCount());
    EXPECT_EQ(2 * 999u - 1 + 4, TakeLedger().size()); // each row's, and the focus
}

TEST_F(ListControlTest, StatesSetByMessageAreToldOnceEachAndOnlyWhenTheyChange)
{
    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_TRUE(list.SetItemState(3, LVIS_DROPHILITED | LVIS_CUT, LVIS_DROPHILITED | LVIS_CUT));
    EXPECT_FALSE(list.SetItemState(6, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(Ledger({"b? +selected +focused", "b: +selected +focused", "d? +cut +target", "d: +cut +target"}),
              TakeLedger());
    EXPECT_EQ(3, list.GetNextItem(-1, LVNI_DROPHILITED));
    EXPECT_EQ(1, list.GetNextItem(-1, LVNI_FOCUSED | LVNI_SELECTED));
    EXPECT_EQ(-1, list.GetNextItem(-1, LVNI_CUT | LVNI_SELECTED));
    EXPECT_EQ(4, list.GetNextItem(3, LVNI_ALL));
    EXPECT_EQ(-1, list.GetNextItem(5, LVNI_ALL));

    list.SetItemCount(2);
    list.SetItemCount(1); // what lay beyond is gone without a word
    list.SetItemCount(6);
    EXPECT_EQ("[a b c d e f]", State());
    EXPECT_EQ(-1, list.GetNextItem(-1, LVNI_DROPHILITED));
    EXPECT_EQ(Ledger(), TakeLedger());
    EXPECT_FALSE(list.SendMessage(LVM_SORTITEMS, 0, 0));
    EXPECT_EQ(nullptr, list.EditLabel(0)) << "its style does not let labels be edited";
}

TEST_F(ListControlTest, ASingleSelectionListNeverHasTwoSelected)
{
    ModifyStyle(list.m_hWnd, 0, LVS_SINGLESEL);
    Click(0);
    EXPECT_EQ("[a b (*c) d e f]", AfterClick(2, kShift));
    Click(3, kControl);
    EXPECT_EQ("d", Selected());
    Key('A', kControl);
    list.SetItemState(5, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ("[a b c (d) e *f]", State());
    Drag(kEmpty, {300, 200});
    EXPECT_EQ("", Selected());
    desktop.Release(list.m_hWnd, {300, 200});
}

// What a user does in every way, with something else going on at the nth notification of it.
class ListControlUpsetTest : public ListControlTest
{
protected:
    // False when there were fewer than n notifications.
    bool Upset(int n, const std::function<void()>& upset)
    {
        int left = n;
        list.writesPaints = true;
        list.meanwhile = [&](const std::string&) {
            if (--left != 0)
                return;
            upset();
            TakeLedger();
        };
        DoEverything();
        list.meanwhile = [](const std::string&) {};
        desktop.Hold({});
        return left <= 0;
    }

    void DoEverything()
    {
        const HWND hWnd = list.m_hWnd;
        const CPoint a(55, 30), e(165, 126);
        desktop.Click(hWnd, a);
        desktop.Hold(kShift);
        desktop.Click(hWnd, e);
        desktop.Hold(kControl);
        desktop.Click(hWnd, a);
        desktop.Hold({});
        desktop.Press(hWnd, e);
        desktop.MoveTo(hWnd, a);
        desktop.Release(hWnd, a);
        desktop.Press(hWnd, kEmpty);
        desktop.MoveTo(hWnd, {250, 320});
        desktop.Advance(200);
        desktop.MoveTo(hWnd, {0, 0});
        desktop.Release(hWnd, {0, 0});
        desktop.Click(hWnd, e, MouseButton::Right);
        desktop.DoubleClick(hWnd, a);
        Key(VK_DOWN), Key('A', kControl), Key(VK_END, kShift), Key(VK_SPACE);
        list.SetItemState(-1, 0, LVIS_SELECTED);
        other.SetFocus();
    }
};

TEST_F(ListControlUpsetTest, TheOwnerMayDestroyTheListInAnyNotification)
{
    Fill(40);
    int n = 1;
    while (Upset(n, [&] { list.DestroyWindow(); })) {
        EXPECT_EQ(nullptr, list.m_hWnd) << "at notification " << n;
        ShowList(LVS_SHOWSELALWAYS);
        Fill(40);
        list.SetFocus();
        ++n;
    }
    EXPECT_LT(100, n);
}

TEST_F(ListControlUpsetTest, TheOwnerMayEmptyTheListOrTakeTheFocusInAnyNotification)
{
    Fill(40);
    for (int n = 1; Upset(n, [&] { list.SetItemCount(2); }); ++n) {
        EXPECT_GE(2, list.GetSelectedCount()) << "at notification " << n;
        for (const std::string& line : TakeLedger())
            EXPECT_TRUE(line[1] != ':' || line[0] <= 'b') << line; // never of a row that is gone
        Fill(40);
    }
    for (int n = 1; Upset(n, [&] { other.SetFocus(); }); ++n) {
        desktop.Release(list.m_hWnd, {0, 0});
        EXPECT_EQ(nullptr, GetCapture()) << "at notification " << n;
        list.SetFocus();
    }
}

} // namespace
