// Clicks, keys and messages: how a list's selection follows them, and what its owner is told.
#include "tests/toolkit/ListControlFixture.h"

using namespace toolkit;

namespace
{

TEST_F(ListControlTest, AReleaseThatAnotherWindowHadOrThatIsSentEndsThePress)
{
    for (const CPoint& from : {IconOf(1), kEmpty}) {
        list.meanwhile = [&, bShown = false](const std::string&) mutable {
            if (std::exchange(bShown, true))
                return;
            InputActivate(top.m_hWnd, false); // whoever is asked shows a message box, which gets the release
            InputActivate(top.m_hWnd, true);
            desktop.Run();
        };
        desktop.Press(list.m_hWnd, from);
        TakeLedger();
        desktop.MoveTo(list.m_hWnd, IconOf(5));
        EXPECT_EQ(Ledger(), TakeLedger());
        EXPECT_EQ(nullptr, GetCapture());
    }
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(IconOf(1).x, IconOf(1).y)); // without a press
    EXPECT_EQ(Ledger(), TakeLedger());
    desktop.Press(list.m_hWnd, IconOf(1));
    list.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(0, 0));
    desktop.Run();
    EXPECT_EQ("click b", TakeLedger().back());
    desktop.MoveTo(list.m_hWnd, IconOf(5));
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(ListControlTest, ADragStartsAfterFourPixelsAndCarriesWhatIsSelected)
{
    Click(0);
    Click(4, kShift);
    desktop.Press(list.m_hWnd, IconOf(1));
    desktop.MoveTo(list.m_hWnd, IconOf(1) + CPoint(3, -3));
    EXPECT_EQ("abde", Selected());
    TakeLedger();
    desktop.MoveTo(list.m_hWnd, IconOf(1) + CPoint(3, -4));
    desktop.Release(list.m_hWnd, IconOf(5));
    EXPECT_EQ(Ledger({"drag b"}), TakeLedger());
    EXPECT_EQ("abde", Selected());

    EXPECT_EQ("drag c", AfterDrag(2));
    EXPECT_EQ("c", Selected());
    EXPECT_EQ("drag a", AfterDrag(0, kControl)); // joins the selection before it leaves
    EXPECT_EQ("ac", Selected());
    EXPECT_EQ("right drag d", AfterDrag(3, {}, MouseButton::Right));
    list.refuses = [](const std::string& line) { return line.starts_with("e?"); };
    EXPECT_NE("drag e", AfterDrag(4));
}

TEST_F(ListControlTest, AllRowsChangeAsOneAndAnyFewerOneByOne)
{
    Fill(1000000);
    Key('A', kControl);
    EXPECT_EQ(Ledger({"all? +selected", "all: +selected"}), TakeLedger());
    EXPECT_EQ(1000000, list.GetSelectedCount());
    Key('A', kControl);
    EXPECT_EQ(Ledger(), TakeLedger());

    Click(1, kControl);
    TakeLedger();
    Click(2);
    EXPECT_EQ(Ledger({"c? +focused", "b? -focused", "b: -focused", "c: +focused", "all? -selected", "all: -selected",
                      "c? +selected", "c: +selected", "click c"}),
              TakeLedger());
    list.SetItemState(-1, 0, LVIS_SELECTED | LVIS_DROPHILITED);
    list.SetItemState(-1, 0, LVIS_SELECTED | LVIS_DROPHILITED); // nothing changes
    EXPECT_EQ(Ledger({"all? -selected", "all: -selected"}), TakeLedger());
    list.refuses = [](const std::string& line) { return line == "all? +selected" || line == "999500? +selected"; };
    Key('A', kControl);
    EXPECT_EQ(0, list.GetSelectedCount());
    list.SetItemState(-1, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_EQ(2, list.GetNextItem(-1, LVNI_FOCUSED)); // only one can have it

    list.EnsureVisible(999000, FALSE);
    Click(999000);
    TakeLedger();
    Key(VK_END, kShift); // a thousand of a million
    EXPECT_EQ(999, list.GetSelectedCount());
    EXPECT_EQ(2 * 999u - 1 + 4, TakeLedger().size()); // each row's, and the focus
    list.SetItemCount(2);                             // what lay beyond is gone without a word
    EXPECT_FALSE(list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(ListControlTest, TheOwnerMayDestroyTheListInAnyNotification)
{
    const CPoint a(55, 30), e(165, 126);
    const auto useInEveryWay = [&] {
        const HWND hWnd = list.m_hWnd;
        for (const auto& [modifiers, at] : {std::pair(Modifiers(), a), {kShift, e}, {kControl, a}}) {
            desktop.Hold(modifiers);
            desktop.Click(hWnd, at);
        }
        desktop.Hold({});
        for (const CPoint& from : {e, kEmpty}) {
            desktop.Press(hWnd, from);
            desktop.MoveTo(hWnd, {250, 320});
            desktop.Advance(200);
            desktop.MoveTo(hWnd, {0, 0});
            desktop.Release(hWnd, {0, 0});
        }
        desktop.Click(hWnd, e, MouseButton::Right);
        desktop.DoubleClick(hWnd, a);
        Key(VK_DOWN), Key('A', kControl), Key(VK_END, kShift), Key(VK_SPACE);
        list.SetItemState(-1, 0, LVIS_SELECTED);
        other.SetFocus();
    };
    list.writesPaints = true;
    int nSteps = 0;
    for (int left = 0; left == 0; ++nSteps) { // until there were fewer notifications than steps
        Fill(40);
        list.SetFocus();
        left = nSteps + 1;
        list.meanwhile = [&](const std::string&) {
            if (--left == 0)
                list.DestroyWindow();
        };
        useInEveryWay();
        list.meanwhile = [](const std::string&) {};
        left = std::max(left, 0);
        EXPECT_EQ(left == 0, list.m_hWnd == nullptr) << "at notification " << nSteps;
        if (!list.m_hWnd)
            ShowList(LVS_SHOWSELALWAYS);
    }
    EXPECT_LT(100, nSteps);
}

} // namespace
