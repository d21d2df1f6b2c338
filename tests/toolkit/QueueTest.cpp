#include "Toolkit/menu/MessageBox.h"
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

} // namespace
