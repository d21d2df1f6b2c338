// What a list shows: rubber band, hit tests, painting, scrolling.
#include "Toolkit/graphics/SysColors.h"
#include "tests/toolkit/ListControlFixture.h"

using namespace toolkit;

namespace
{

class ListControlViewTest : public ListControlTest
{
protected:
    void SetUp() override
    {
        ListControlTest::SetUp();
        Fill(30);
    }

    // The rows asked for while the call, and what it makes to be painted, is done.
    Ledger Paints(const std::function<void()>& call)
    {
        desktop.Run();
        TakeLedger();
        list.writesPaints = true;
        call();
        desktop.Run();
        list.writesPaints = false;
        return TakeLedger();
    }

    COLORREF ColorAt(CPoint client) { return ToColor(desktop.Dump(list.m_hWnd).At(client.x, client.y)); }

    std::string AfterSweep(CPoint to)
    {
        desktop.MoveTo(list.m_hWnd, to);
        return Selected();
    }
};

TEST_F(ListControlViewTest, TheRubberBandSelectsWhatItTouchesAndWithControlTogglesAgainstWhatItBeganWith)
{
    Click(5);
    desktop.Press(list.m_hWnd, kEmpty);
    EXPECT_EQ("", Selected());
    EXPECT_EQ("b", AfterSweep({230, 60}));
    EXPECT_EQ("bcef", AfterSweep({260, 130}));
    EXPECT_EQ("ad", AfterSweep({10, 130}));
    EXPECT_NE(RGB(255, 255, 255), ColorAt({20, 90}));
    EXPECT_NE(ColorAt({10, 90}), ColorAt({20, 90})); // edge and inside
    EXPECT_EQ("", AfterSweep(kEmpty + CPoint(1, 1)));
    desktop.MoveTo(list.m_hWnd, {160, 30});
    TakeLedger();
    desktop.Release(list.m_hWnd, {160, 30});
    EXPECT_EQ("b", Selected());
    EXPECT_EQ(Ledger(), TakeLedger()); // no click

    Click(0);
    Click(1, kControl);
    Drag({105, 90}, {160, 10}, kControl); // over b
    EXPECT_EQ("a", Selected());
    EXPECT_EQ("abe", AfterSweep({160, 130})); // over e instead
    desktop.Release(list.m_hWnd, {160, 130});
    Drag({105, 90}, {10, 10}, kShift); // over a, which stays
    EXPECT_EQ("abde", AfterSweep({10, 130}));
    EXPECT_EQ("abe", AfterSweep({10, 10}));
    other.SetFocus(); // ends it
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(ListControlViewTest, TheRubberBandScrollsAtTheEdgeEvenAListThatKeepsMouseMovesAndTimers)
{
    for (const bool keeps : {false, true}) {
        list.keepsMouseMoves = keeps;
        EXPECT_EQ("drag a", AfterDrag(0));
        Drag(kEmpty, {230, 330});
        EXPECT_EQ("behk", Selected());
        desktop.Advance(150);
        const CRect before = Part(0, LVIR_ICON);
        EXPECT_GT(0, before.top);
        desktop.MoveTo(list.m_hWnd, {230, 200});
        desktop.Advance(2000);
        EXPECT_EQ(before, Part(0, LVIR_ICON)); // inside again, it stays
        desktop.MoveTo(list.m_hWnd, {230, 330});
        desktop.Advance(2000);
        EXPECT_EQ(10, list.GetSelectedCount()); // down to the last line
        desktop.MoveTo(list.m_hWnd, {230, 200});
        desktop.Wheel(list.m_hWnd, {230, 200}, 1);
        EXPECT_GT(10, list.GetSelectedCount()); // the corner stays under the mouse
        desktop.MoveTo(list.m_hWnd, {230, -50});
        desktop.Advance(3000);
        EXPECT_EQ(0, list.GetTopIndex());
        EXPECT_EQ("b", Selected());
        desktop.Release(list.m_hWnd, {230, -50});
    }
}

TEST_F(ListControlViewTest, APointHitsExactlyWhatWasPainted)
{
    list.text = [](int row) { return row == 4 ? "a name of two lines" : LedgerList::NameOf(row); };
    list.Invalidate();
    for (const int row : {0, 4}) {
        list.SetItemState(-1, 0, LVIS_SELECTED);
        list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        const Surface picture = desktop.Dump(list.m_hWnd);
        CRect cell = Part(row, LVIR_BOUNDS), painted;
        cell.InflateRect(20, 3);
        for (int y = cell.top; y < cell.bottom; ++y)
            for (int x = cell.left; x < cell.right; ++x) {
                UINT flags = 0;
                const int hit = list.HitTest({x, y}, &flags);
                const bool drawn = ToColor(picture.At(x, y)) != GetSysColor(COLOR_WINDOW);
                if (drawn)
                    painted = painted | CRect(x, y, x + 1, y + 1);
                ASSERT_TRUE(!drawn || hit == row) << x << "," << y;
                ASSERT_EQ(Part(row, LVIR_ICON).PtInRect({x, y}), (flags & LVHT_ONITEMICON) != 0);
                ASSERT_EQ(Part(row, LVIR_LABEL).PtInRect({x, y}), (flags & LVHT_ONITEMLABEL) != 0);
                ASSERT_EQ(hit == -1, (flags & LVHT_NOWHERE) != 0);
            }
        EXPECT_EQ(Part(row, LVIR_BOUNDS), painted);
    }
}

TEST_F(ListControlViewTest, AMarkStandsInTheGapNearestToThePoint)
{
    const auto gapAt = [&](CPoint point) {
        LVINSERTMARK mark;
        const int behind = list.InsertMarkHitTest(point, &mark);
        return std::to_string(behind) + (mark.dwFlags & LVIM_AFTER ? " after " : " before ") + list.NameOf(mark.iItem);
    };
    const CRect icon = Part(4, LVIR_ICON);
    EXPECT_EQ("4 before e", gapAt({icon.left, icon.top}));
    EXPECT_EQ("5 before f", gapAt({icon.right, icon.top}));
    EXPECT_EQ("6 after f", gapAt({325, icon.top}));
    EXPECT_EQ("0 before a", gapAt({-50, -50}));
    Fill(5);
    EXPECT_EQ("5 after e", gapAt({300, icon.top}));
    EXPECT_EQ("5 after e", gapAt({0, 5000}));

    const CPoint gap(110, icon.CenterPoint().y);
    LVINSERTMARK mark{sizeof mark, 0, 4, 0};
    const Ledger drawn = Paints([&] { EXPECT_TRUE(list.SetInsertMark(&mark)); });
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), ColorAt(gap));
    EXPECT_EQ(Paints([&] { list.Update(3), list.Update(4); }), drawn) << "the rows beside it, and no others";
    list.SetItemCount(4);
    list.SetItemCount(5);
    desktop.Run();
    EXPECT_EQ(RGB(255, 255, 255), ColorAt(gap)) << "rows that are new have no mark";
    mark.iItem = 5;
    EXPECT_FALSE(list.SetInsertMark(&mark));
}

TEST_F(ListControlViewTest, OnlyRowsInSightAreAskedFor)
{
    EXPECT_EQ(Ledger({"hint b-b", "show b"}), Paints([&] { list.Update(1); }));
    EXPECT_EQ(Ledger({"hint a-e", "show a", "show e"}), Paints([&] {
                  list.Update(0);
                  list.Update(4);
                  list.Update(29);
              }));
    EXPECT_EQ(Ledger({"hint j-l", "show j", "show k", "show l"}),
              Paints([&] { list.SendMessage(LVM_SCROLL, 0, 84); })); // what came into sight
    list.SetItemCount(1000000);
    desktop.Run();
    list.EnsureVisible(999999, FALSE);
    const Ledger shown = Paints([&] { list.Invalidate(); });
    EXPECT_EQ("hint 999990-999999", shown.front());
    EXPECT_EQ(11u, shown.size());
}

TEST_F(ListControlViewTest, TheWheelTurnsAboutACellANotchAndTheScrollBarIsThereOnlyWhenItIsNeeded)
{
    const auto topOfA = [&] { return Part(0, LVIR_ICON).top; };
    const int start = topOfA();
    desktop.Wheel(list.m_hWnd, {10, 10}, -2);
    EXPECT_EQ(start - 2 * 96, topOfA());
    for (int i = 0; i < 120; ++i)
        list.SendMessage(WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, 1)), 0);
    EXPECT_EQ(start - 96, topOfA());
    list.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    list.SendMessage(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(start - 96 - 300 + 2 * 32, topOfA());

    const auto hasBar = [&] { return (list.GetStyle() & WS_VSCROLL) != 0; };
    list.SetItemCount(9);
    EXPECT_FALSE(hasBar());
    list.SetItemCount(10);
    EXPECT_TRUE(hasBar());
    list.MoveWindow(CRect(0, 0, 405, 300)); // four columns, if the bar does not take the room
    EXPECT_FALSE(hasBar());
}

TEST_F(ListControlViewTest, SelectedRowsAreGreyWithoutTheFocusAndPicturesTintedWithIt)
{
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetItemState(2, LVIS_DROPHILITED, LVIS_DROPHILITED);
    const auto ground = [&](int row) { return ColorAt(Part(row, LVIR_LABEL).TopLeft() + CPoint(3, 1)); };
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), ground(0));
    EXPECT_NE(RGB(255, 0, 0), ColorAt(IconOf(0)));
    other.SetFocus();
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), ground(0));
    EXPECT_EQ(RGB(255, 0, 0), ColorAt(IconOf(0)));
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), ground(1));
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), ground(2));
}

} // namespace
