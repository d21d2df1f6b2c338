#include "Toolkit/scroll/ScrollBar.h"

#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

namespace
{

using toolkit::ScrollBar;
using toolkit::ScrollPart;

constexpr int kGreatest = 2147483647;

TEST(ScrollBarTest, TheThumbIsExactOverTheWholeRange)
{
    const CRect box(0, 100, 14, 400);
    for (const SCROLLINFO& info : {SCROLLINFO{0, kGreatest, 1000, 0, 0}, SCROLLINFO{-kGreatest - 1, kGreatest, 1, 0, 0},
                                   SCROLLINFO{0, kGreatest, 0, 0, 0}, SCROLLINFO{5, 5000, 100, 0, 0}}) {
        const ScrollBar bar(box, SB_VERT, info);
        EXPECT_EQ(info.nMin, bar.PositionAt(-7));
        EXPECT_EQ(info.nMin, bar.PositionAt(0));
        EXPECT_EQ(ScrollBar::LastPosition(info), bar.PositionAt(bar.GetFreeLength()));
        for (int nOffset = 0; nOffset <= bar.GetFreeLength(); ++nOffset) {
            SCROLLINFO at = info;
            at.nPos = bar.PositionAt(nOffset);
            ASSERT_EQ(nOffset, ScrollBar(box, SB_VERT, at).GetThumbOffset());
        }
    }
    EXPECT_EQ(kGreatest - 999, ScrollBar::LastPosition({0, kGreatest, 1000, 0, 0}));
}

TEST(ScrollBarTest, PartsLieAlongTheTrackInProportion)
{
    const ScrollBar bar({10, 0, 210, 14}, SB_HORZ, {0, 99, 50, 25, 0});
    EXPECT_EQ(CRect(60, 0, 160, 14), bar.GetThumb());
    EXPECT_EQ(ScrollPart::Before, bar.HitTest({59, 3}));
    EXPECT_EQ(ScrollPart::Thumb, bar.HitTest({60, 3}));
    EXPECT_EQ(ScrollPart::After, bar.HitTest({160, 3}));
    EXPECT_EQ(ScrollPart::None, bar.HitTest({160, 14}));
    EXPECT_FALSE(ScrollBar::IsNeeded({0, 99, 100, 0, 0}));
    EXPECT_TRUE(ScrollBar::IsNeeded({-kGreatest - 1, kGreatest, kGreatest, 0, 0}));
    const ScrollBar tiny({0, 0, 14, 5}, SB_VERT, {0, 99, 1, 99, 0});
    EXPECT_EQ(CRect(0, 0, 14, 5), tiny.GetThumb()); // no room to move
    EXPECT_EQ(0, tiny.PositionAt(3));
}

// A list of rows that scrolls as it is told, the way a control does.
class RowsWnd : public SpyWnd
{
public:
    using SpyWnd::SpyWnd;
    int Pos() const
    {
        SCROLLINFO info{};
        GetScrollInfo(m_hWnd, SB_VERT, &info);
        return info.nPos;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        SCROLLINFO info{};
        if (message == WM_VSCROLL && GetScrollInfo(m_hWnd, SB_VERT, &info)) {
            const UINT code = LOWORD(wParam);
            info.nPos = code == SB_THUMBTRACK ? info.nTrackPos
                        : code == SB_PAGEDOWN ? info.nPos + info.nPage
                        : code == SB_PAGEUP   ? info.nPos - info.nPage
                                              : info.nPos;
            SetScrollInfo(m_hWnd, SB_VERT, info);
        }
        return SpyWnd::WindowProc(message, wParam, lParam);
    }
};

class ScrollingTest : public DesktopTest, public LedgerBook
{
protected:
    ScrollingTest()
    {
        frame.Show(nullptr, {0, 0, 100, 300});
        rows.Show(&frame, {0, 0, 100, 300});
        TakeLedger();
    }
    SpyWnd frame{"frame", *this, {}};
    RowsWnd rows{"rows", *this, {WM_VSCROLL, WM_LBUTTONDOWN, WM_MOUSEMOVE}};
};

TEST_F(ScrollingTest, TheThumbIsDraggedFromEndToEnd)
{
    EXPECT_EQ(kGreatest - 999, SetScrollInfo(rows.m_hWnd, SB_VERT, {0, kGreatest, 1000, kGreatest, 0}));
    SetScrollInfo(rows.m_hWnd, SB_VERT, {0, kGreatest, 1000, 0, 0});
    TakeLedger();
    const auto after = [this](CPoint to) {
        desktop.MoveTo(rows.m_hWnd, to);
        return rows.Pos();
    };
    desktop.Press(rows.m_hWnd, {93, 10});
    EXPECT_EQ(rows.m_hWnd, GetCapture());
    EXPECT_EQ(kGreatest - 999, after({93, 10 + 272}));        // the track less the thumb
    EXPECT_EQ((kGreatest - 999) / 2, after({500, 10 + 136})); // beside the bar, too
    desktop.MoveTo(rows.m_hWnd, {93, 11});
    EXPECT_EQ(0, after({93, 10}));
    desktop.Release(rows.m_hWnd, {93, 10});
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(Ledger({"rows VSCROLL 5", "rows VSCROLL 5", "rows VSCROLL 5", "rows VSCROLL 5", "rows VSCROLL 8"}),
              TakeLedger());
    desktop.Press(rows.m_hWnd, {93, 10});
    rows.DestroyWindow(); // in the middle of it
    desktop.MoveTo(frame.m_hWnd, {93, 60});
    desktop.Release(frame.m_hWnd, {93, 60});
}

TEST_F(ScrollingTest, APressOnTheTrackPagesUntilTheThumbIsUnderTheMouse)
{
    const auto after = [this](DWORD milliseconds) {
        desktop.Advance(milliseconds);
        return rows.Pos();
    };
    SetScrollInfo(rows.m_hWnd, SB_VERT, {0, 999, 100, 0, 0});
    desktop.Press(rows.m_hWnd, {93, 150}); // the thumb is 30 long
    EXPECT_EQ(100, rows.Pos());
    EXPECT_EQ(100, after(399));
    EXPECT_EQ(300, after(1 + 50));
    EXPECT_EQ(500, after(5000)); // it has arrived
    desktop.MoveTo(rows.m_hWnd, {93, 290});
    EXPECT_EQ(900, after(1000));
    desktop.Release(rows.m_hWnd, {93, 290});
    desktop.Press(rows.m_hWnd, {93, 5});
    EXPECT_EQ(800, rows.Pos());
    desktop.Release(rows.m_hWnd, {93, 5});
    EXPECT_EQ(800, after(1000));
}

} // namespace
