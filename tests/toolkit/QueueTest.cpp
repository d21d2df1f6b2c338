// In what order messages come, and who has the focus.
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/run/Run.h"
#include "tests/support/AllocationFailures.h"
#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

#include <thread>

namespace
{

const std::set<UINT> kQueued = {WM_USER, WM_APP, WM_LBUTTONDOWN, WM_PAINT, WM_TIMER};

class QueueTest : public DesktopTest, public LedgerBook
{
protected:
    QueueTest()
    {
        frame.Show(nullptr, {0, 0, 100, 100});
        desktop.Run();
        TakeLedger();
    }

    SpyWnd frame{"frame", *this, kQueued};
};

TEST_F(QueueTest, PostedMessagesComeBeforeInputThenPaintsThenTimers)
{
    SetTimer(frame.m_hWnd, 4, 10);
    desktop.SetTicks(desktop.Ticks() + 10);
    frame.Invalidate();
    frame.Invalidate();
    toolkit::InputMouseButton(frame.m_hWnd, {3, 3}, toolkit::MouseButton::Left, true, {});
    frame.PostMessage(WM_USER, 1);
    toolkit::PostTask([this] { Write("task"); });
    frame.PostMessage(WM_USER, 2);
    frame.At(WM_LBUTTONDOWN, [&] { frame.PostMessage(WM_APP, 3); });
    frame.At(WM_TIMER, [&] { KillTimer(frame.m_hWnd, 4); });
    desktop.Run();
    EXPECT_EQ(Ledger({"frame USER 1", "task", "frame USER 2", "frame LBUTTONDOWN 3,3", "frame APP 3", "frame PAINT",
                      "frame TIMER 4"}),
              TakeLedger());
    EXPECT_FALSE(toolkit::RunOneMessage());
}

TEST_F(QueueTest, TimersKeepTheirPeriodAndAreOwedOneMessageAtMost)
{
    const auto after = [this](DWORD milliseconds) {
        desktop.Advance(milliseconds);
        return TakeLedger();
    };
    desktop.SetTicks(0xFFFFFFF0); // the clock wraps around meanwhile
    EXPECT_EQ(7u, SetTimer(frame.m_hWnd, 7, 30));
    SetTimer(frame.m_hWnd, 8, 1); // 10 at least
    EXPECT_EQ(Ledger({"frame TIMER 8", "frame TIMER 8"}), after(29));
    KillTimer(frame.m_hWnd, 8);
    SetTimer(frame.m_hWnd, 7, 30); // anew
    EXPECT_EQ(Ledger(), after(29));
    EXPECT_EQ(Ledger({"frame TIMER 7"}), after(1));
    desktop.SetTicks(desktop.Ticks() + 1000); // the machine was busy
    desktop.Run();
    EXPECT_EQ(Ledger({"frame TIMER 7"}), TakeLedger());
    EXPECT_EQ(Ledger({"frame TIMER 7"}), after(30));
    EXPECT_TRUE(KillTimer(frame.m_hWnd, 7));
    EXPECT_FALSE(KillTimer(frame.m_hWnd, 7));

    frame.At(WM_USER, [&] { frame.PostMessage(WM_USER, 0); });
    frame.PostMessage(WM_USER);
    EXPECT_FALSE(toolkit::RunPendingMessagesFor(2)); // gives up on work without end
    frame.At(WM_USER, [] {});
    EXPECT_TRUE(toolkit::RunPendingMessagesFor(1000));
}

TEST_F(QueueTest, TasksOfOtherThreadsRunHereInTheirOrder)
{
    const std::thread::id ui = std::this_thread::get_id();
    int nNext = 0;
    std::thread worker([&] {
        for (int i = 0; i < 1000; ++i)
            toolkit::PostTask([&, i] { nNext += i == nNext && std::this_thread::get_id() == ui; });
    });
    EXPECT_TRUE(desktop.RunUntil([&] { return nNext == 1000; }));
    worker.join();

    toolkit::PostTask([] { AfxMessageBox("nested"); });
    toolkit::PostTask([] {
        FailAllocation failure(1);
        ::operator delete(::operator new(1)); // which no compiler may leave out
    });
    desktop.Run();
    EXPECT_EQ(std::vector<std::string>({": nested", ": Out of memory."}), desktop.TakeMessageBoxes());
}

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
