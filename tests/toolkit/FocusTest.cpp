#include "Toolkit/message/Input.h"
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
const std::set<UINT> FocusTest::kFocus = {WM_SETFOCUS, WM_KILLFOCUS, WM_DESTROY, WM_SHOWWINDOW, WM_CAPTURECHANGED};

TEST_F(FocusTest, TheLoserIsToldThenTheGainerAndAHandlerThatMovesItAgainWins)
{
    EXPECT_EQ(a.m_hWnd, SetFocus(b.m_hWnd));
    EXPECT_EQ(b.m_hWnd, SetFocus(b.m_hWnd)); // has it already
    EXPECT_EQ(b.m_hWnd, SetFocus(nullptr));
    EXPECT_EQ(nullptr, SetFocus(a.m_hWnd));
    EXPECT_EQ(Ledger({"a KILLFOCUS b (b)", "b SETFOCUS a (b)", "b KILLFOCUS - ()", "a SETFOCUS - (a)"}), TakeLedger());

    a.At(WM_KILLFOCUS, [&] { SetFocus(frame.m_hWnd); });
    SetFocus(b.m_hWnd);
    EXPECT_EQ(Ledger({"a KILLFOCUS b (b)", "b KILLFOCUS frame (frame)", "frame SETFOCUS b (frame)"}), TakeLedger());
}

TEST_F(FocusTest, AWindowThatGoesLeavesTheFocusToItsParentAndTheCaptureToNobody)
{
    SpyWnd inner("inner", *this, kFocus);
    inner.Show(&b, {0, 0, 10, 10});
    SetFocus(inner.m_hWnd);
    inner.SetCapture();
    TakeLedger();
    b.ShowWindow(SW_HIDE);
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(Ledger({"b SHOWWINDOW 0", "inner KILLFOCUS frame (frame)", "frame SETFOCUS inner (frame)",
                      "inner CAPTURECHANGED"}),
              TakeLedger());

    SetFocus(a.m_hWnd);
    a.SetCapture();
    EXPECT_EQ(a.m_hWnd, SetCapture(frame.m_hWnd));
    a.SetCapture();
    TakeLedger();
    a.At(WM_DESTROY, [&] { EXPECT_EQ(nullptr, SetFocus(a.m_hWnd)); }); // a dying window takes no focus
    a.DestroyWindow();
    EXPECT_EQ(Ledger({"a SHOWWINDOW 0", "a KILLFOCUS frame (frame)", "frame SETFOCUS a (frame)", "a CAPTURECHANGED",
                      "a DESTROY"}),
              TakeLedger());
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(FocusTest, ComingBackToATopLevelWindowRestoresItsFocus)
{
    SpyWnd other("other", *this, kFocus);
    other.Show(nullptr, {100, 0, 400, 100}); // lies over the frame
    TakeLedger();
    const auto focusAfter = [&](const CWnd& wnd, bool bActive) {
        toolkit::InputActivate(wnd.m_hWnd, bActive);
        desktop.Run();
        return GetFocus();
    };
    EXPECT_EQ(other.m_hWnd, focusAfter(other, true));
    EXPECT_EQ(other.m_hWnd, focusAfter(frame, false)); // late news
    EXPECT_EQ(Ledger({"a KILLFOCUS other (other)", "other SETFOCUS a (other)"}), TakeLedger());
    EXPECT_EQ(other.m_hWnd, WindowFromPoint({150, 50}));
    EXPECT_EQ(nullptr, focusAfter(other, false));
    EXPECT_EQ(a.m_hWnd, focusAfter(frame, true));
    EXPECT_EQ(frame.m_hWnd, WindowFromPoint({150, 50}));
    focusAfter(frame, false);
    a.DestroyWindow();
    EXPECT_EQ(frame.m_hWnd, focusAfter(frame, true)); // what had it is gone
}

} // namespace
