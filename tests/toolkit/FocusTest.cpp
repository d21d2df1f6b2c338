#include "Toolkit/window/Input.h"
#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

namespace
{

class FocusTest : public DesktopTest, public LedgerBook
{
protected:
    FocusTest()
    {
        frame.Show(nullptr, {0, 0, 200, 200});
        a.Show(&frame, {0, 0, 50, 50});
        b.Show(&frame, {50, 0, 100, 50});
        SetFocus(a.m_hWnd);
        TakeLedger();
    }

    static const std::set<UINT> kFocus;
    SpyWnd frame{"frame", *this, kFocus}, a{"a", *this, kFocus}, b{"b", *this, kFocus};
};
const std::set<UINT> FocusTest::kFocus = {WM_SETFOCUS, WM_KILLFOCUS, WM_DESTROY, WM_SHOWWINDOW};

TEST_F(FocusTest, TheLoserIsToldThenTheGainerAndBothFindItMovedAlready)
{
    EXPECT_EQ(a.m_hWnd, SetFocus(b.m_hWnd));
    EXPECT_EQ(Ledger({"a KILLFOCUS b (b)", "b SETFOCUS a (b)"}), TakeLedger());
    EXPECT_EQ(b.m_hWnd, SetFocus(b.m_hWnd)); // has it already
    EXPECT_EQ(Ledger(), TakeLedger());
    EXPECT_EQ(b.m_hWnd, SetFocus(nullptr));
    EXPECT_EQ(nullptr, SetFocus(a.m_hWnd));
    EXPECT_EQ(Ledger({"b KILLFOCUS - ()", "a SETFOCUS - (a)"}), TakeLedger());
}

TEST_F(FocusTest, AHandlerThatMovesTheFocusAgainWins)
{
    a.At(WM_KILLFOCUS, [&] { SetFocus(frame.m_hWnd); });
    SetFocus(b.m_hWnd);
    EXPECT_EQ(frame.m_hWnd, GetFocus());
    EXPECT_EQ(Ledger({"a KILLFOCUS b (b)", "b KILLFOCUS frame (frame)", "frame SETFOCUS b (frame)"}), TakeLedger());

    a.At(WM_KILLFOCUS, [] {});
    b.At(WM_SETFOCUS, [&] { SetFocus(a.m_hWnd); }); // gives it back at once
    SetFocus(b.m_hWnd);
    EXPECT_EQ(a.m_hWnd, GetFocus());
}

TEST_F(FocusTest, AWindowThatGoesLeavesTheFocusToItsParent)
{
    SpyWnd inner("inner", *this, kFocus);
    inner.Show(&b, {0, 0, 10, 10});
    SetFocus(inner.m_hWnd);
    TakeLedger();
    b.ShowWindow(SW_HIDE);
    EXPECT_EQ(Ledger({"b SHOWWINDOW 0", "inner KILLFOCUS frame (frame)", "frame SETFOCUS inner (frame)"}),
              TakeLedger());

    SetFocus(a.m_hWnd);
    TakeLedger();
    a.At(WM_DESTROY, [&] { EXPECT_EQ(nullptr, SetFocus(a.m_hWnd)); }); // a dying window takes no focus
    a.DestroyWindow();
    EXPECT_EQ(Ledger({"a SHOWWINDOW 0", "a KILLFOCUS frame (frame)", "frame SETFOCUS a (frame)", "a DESTROY"}),
              TakeLedger());
    frame.DestroyWindow();
    EXPECT_EQ(nullptr, GetFocus());
}

TEST_F(FocusTest, ADisabledWindowLetsGoOfTheFocusAndTakesNone)
{
    a.EnableWindow(FALSE);
    EXPECT_EQ(Ledger({"a KILLFOCUS - ()"}), TakeLedger());
    EXPECT_EQ(nullptr, SetFocus(a.m_hWnd));
    EXPECT_TRUE(a.EnableWindow(TRUE)); // it was disabled
    frame.EnableWindow(FALSE);
    SetFocus(a.m_hWnd); // nor does a child of a disabled one
    EXPECT_EQ(nullptr, GetFocus());
}

TEST_F(FocusTest, ComingBackToATopLevelWindowRestoresItsFocus)
{
    SpyWnd other("other", *this, kFocus);
    other.Show(nullptr, {100, 0, 400, 100}); // lies over the frame
    TakeLedger();
    const auto activate = [&](const CWnd& wnd, bool bActive) {
        toolkit::InputActivate(wnd.m_hWnd, bActive);
        desktop.Run();
    };

    activate(other, true);
    activate(frame, false); // late news
    EXPECT_EQ(Ledger({"a KILLFOCUS other (other)", "other SETFOCUS a (other)"}), TakeLedger());
    EXPECT_EQ(other.m_hWnd, WindowFromPoint({150, 50}));
    activate(other, false);
    EXPECT_EQ(nullptr, GetFocus());
    activate(frame, true);
    EXPECT_EQ(a.m_hWnd, GetFocus());
    EXPECT_EQ(frame.m_hWnd, WindowFromPoint({150, 50}));

    activate(frame, false);
    a.DestroyWindow();
    activate(frame, true); // what had it is gone
    EXPECT_EQ(frame.m_hWnd, GetFocus());
}

TEST_F(FocusTest, TheCaptureIsToldWhenItIsTakenAwayAndEndsWithItsWindow)
{
    SpyWnd holder("holder", *this, {WM_CAPTURECHANGED, WM_MOUSEMOVE});
    holder.Show(&frame, {100, 100, 120, 120});
    holder.SetCapture();
    desktop.MoveTo(frame.m_hWnd, {10, 10});
    EXPECT_EQ(holder.m_hWnd, SetCapture(b.m_hWnd));
    holder.SetCapture();
    holder.ShowWindow(SW_HIDE);
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(Ledger({"holder MOUSEMOVE -90,-90", "holder CAPTURECHANGED", "holder CAPTURECHANGED"}), TakeLedger());
    holder.SetCapture();
    holder.DestroyWindow();
    EXPECT_EQ(nullptr, GetCapture());
}

} // namespace
