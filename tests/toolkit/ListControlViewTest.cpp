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

    static void ExpectSame(const Surface& a, const Surface& b)
    {
        for (int y = 0; y < a.Height(); ++y)
            ASSERT_TRUE(std::equal(a.Row(y), a.Row(y) + a.Width(), b.Row(y))) << "line " << y;
    }

    COLORREF ColorAt(CPoint client) { return ToColor(desktop.Dump(list.m_hWnd).At(client.x, client.y)); }

    std::string AfterSweep(CPoint to)
    {
        desktop.MoveTo(list.m_hWnd, to);
        return Selected();
    }

    CRect Part(int row, int area) const
    {
        CRect rect;
        list.GetItemRect(row, &rect, area);
        return rect;
    }
};

TEST_F(ListControlViewTest, TheRubberBandSelectsWhatItTouchesAndWithControlTogglesAgainstWhatItBeganWith)
{
    Click(5);
    const CPoint start = kEmpty;
    TakeLedger();
    desktop.Press(list.m_hWnd, start);
    EXPECT_EQ("", Selected());
    EXPECT_EQ("b", AfterSweep({230, 60}));
    EXPECT_EQ("bcef", AfterSweep({260, 130}));
    EXPECT_EQ("ad", AfterSweep({10, 130}));
    EXPECT_EQ("", AfterSweep(start + CPoint(1, 1)));
    desktop.MoveTo(list.m_hWnd, {160, 30});
    TakeLedger();
    desktop.Release(list.m_hWnd, {160, 30});
    EXPECT_EQ("b", Selected());
    EXPECT_EQ(Ledger(), TakeLedger()); // no click
    EXPECT_EQ(5, list.GetNextItem(-1, LVNI_FOCUSED));

    Click(0);
    Click(1, kControl);
    Drag({105, 90}, {160, 10}, kControl); // over b
    EXPECT_EQ("a", Selected());
    EXPECT_EQ("abe", AfterSweep({160, 130})); // over e instead
    desktop.Release(list.m_hWnd, {160, 130});
    Drag({105, 90}, {10, 10}, kShift); // over a, which stays
    EXPECT_EQ("abde", AfterSweep({10, 130}));
    EXPECT_EQ("abe", AfterSweep({10, 10}));
    desktop.Release(list.m_hWnd, {10, 10});
}

TEST_F(ListControlViewTest, TheRubberBandScrollsAtTheEdgeEvenAListThatKeepsMouseMovesAndTimers)
{
    for (const bool keeps : {false, true}) {
        list.keepsMouseMoves = keeps;
        Drag(IconOf(0), IconOf(4));
        EXPECT_EQ("drag a", TakeLedger().back());
        desktop.Release(list.m_hWnd, IconOf(4));

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
        EXPECT_EQ(28, list.GetNextItem(27, LVNI_SELECTED));
        const int scrolled = list.GetTopIndex();
        desktop.MoveTo(list.m_hWnd, {230, 200});
        desktop.Wheel(list.m_hWnd, {230, 200}, 1);
        EXPECT_GT(scrolled, list.GetTopIndex()); // the corner stays under the mouse
        EXPECT_GT(10, list.GetSelectedCount());
        desktop.MoveTo(list.m_hWnd, {230, -50});
        desktop.Advance(3000);
        EXPECT_EQ(0, list.GetTopIndex());
        EXPECT_EQ("b", Selected());
        desktop.Release(list.m_hWnd, {230, -50});
    }
}

TEST_F(ListControlViewTest, TheRubberBandIsDrawnAndLeavesNoTrace)
{
    const Surface before = desktop.Dump(list.m_hWnd);
    Drag({2, 290}, {328, 280});
    EXPECT_NE(RGB(255, 255, 255), ColorAt({5, 285}));
    EXPECT_NE(ColorAt({5, 280}), ColorAt({5, 285})); // edge and inside
    desktop.MoveTo(list.m_hWnd, {40, 150});
    desktop.MoveTo(list.m_hWnd, {300, 250});
    desktop.Wheel(list.m_hWnd, {300, 250}, -1);
    desktop.Wheel(list.m_hWnd, {300, 250}, 1);
    desktop.MoveTo(list.m_hWnd, {296, 254});
    const Surface drawn = desktop.Dump(list.m_hWnd);
    list.Invalidate();
    ExpectSame(drawn, desktop.Dump(list.m_hWnd));
    other.SetFocus(); // ends it
    EXPECT_EQ(nullptr, GetCapture());
    list.SetItemState(-1, 0, LVIS_SELECTED);
    list.SetFocus();

    ExpectSame(before, desktop.Dump(list.m_hWnd));
}

TEST_F(ListControlViewTest, APointHitsExactlyWhatWasPainted)
{
    list.text = [](int row) { return row == 4 ? "a name of two lines" : LedgerList::NameOf(row); };
    list.Invalidate();
    for (const int row : {0, 4}) {
        list.SetItemState(-1, 0, LVIS_SELECTED);
        list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        const Surface picture = desktop.Dump(list.m_hWnd);
        const CRect cell = CRect(Part(row, LVIR_BOUNDS).left - 20, Part(row, LVIR_BOUNDS).top - 3,
                                 Part(row, LVIR_BOUNDS).right + 20, Part(row, LVIR_BOUNDS).bottom + 3);
        CRect painted;
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
    EXPECT_EQ(-1, list.HitTest(kEmpty));
    EXPECT_EQ(-1, list.HitTest({-5, 20}));
    EXPECT_FALSE(Part(30, LVIR_BOUNDS).Width());
}

TEST_F(ListControlViewTest, OnlyRowsInSightAreAskedFor)
{
    EXPECT_EQ(Ledger({"hint d-d", "show d"}), Paints([&] { list.Update(3); }));
    EXPECT_EQ(Ledger({"hint a-e", "show a", "show e"}), Paints([&] {
                  list.Update(0);
                  list.Update(4);
              }));
    EXPECT_EQ(Ledger(), Paints([&] { list.Update(29); }));
    EXPECT_EQ(Ledger({"hint j-l", "show j", "show k", "show l"}),
              Paints([&] { list.SendMessage(LVM_SCROLL, 0, 84); })); // what came into sight

    list.SetItemCount(1000000);
    desktop.Run();
    list.EnsureVisible(999999, FALSE);
    const Ledger shown = Paints([&] { list.Invalidate(); });
    EXPECT_EQ("hint 999990-999999", shown.front());
    EXPECT_EQ(11u, shown.size());
    EXPECT_EQ(999990, list.GetTopIndex());
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

    const auto width = [&] {
        CRect client;
        list.GetClientRect(&client);
        return client.Width();
    };
    EXPECT_GT(330, width());
    list.SetItemCount(9);
    EXPECT_EQ(330, width());
    list.SetItemCount(10);
    EXPECT_GT(330, width());
    list.MoveWindow(CRect(0, 0, 405, 300)); // four columns, if the bar does not take the room
    EXPECT_EQ(405, width());
    list.MoveWindow(CRect(0, 0, 405, 200));
    EXPECT_GT(405, width());
}

TEST_F(ListControlViewTest, SelectedRowsAreGreyWithoutTheFocus)
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
    ModifyStyle(list.m_hWnd, LVS_SHOWSELALWAYS, 0);
    list.Invalidate();
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), ground(0));
}

TEST_F(ListControlViewTest, WithoutPicturesTheNamesStandWhereThePicturesWere)
{
    EXPECT_EQ(CSize(100, 96), list.SetIconSpacing({150, 120}));
    EXPECT_EQ(120, Part(2, LVIR_ICON).top - Part(0, LVIR_ICON).top); // two columns now
    EXPECT_EQ(CSize(150, 120), list.SetIconSpacing({-1, -1}));
    EXPECT_EQ(images.GetSafeHandle(), list.SetImageList(nullptr, LVSIL_NORMAL));

    EXPECT_TRUE(Part(0, LVIR_ICON).IsRectEmpty());
    EXPECT_EQ(48, Part(3, LVIR_LABEL).top - Part(0, LVIR_LABEL).top);
    EXPECT_EQ(0, list.HitTest(Part(0, LVIR_BOUNDS).CenterPoint()));
    list.text = [](int row) { return row ? LedgerList::NameOf(row) : std::string(); };
    EXPECT_TRUE(Part(0, LVIR_BOUNDS).IsRectEmpty());
}

} // namespace
