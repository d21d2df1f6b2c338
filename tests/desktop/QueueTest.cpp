#include "Toolkit/window/MessageBox.h"
#include "Toolkit/window/WaitCursor.h"
#include "tests/desktop/DesktopTest.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <thread>

namespace
{

class QueueTest : public DesktopTest
{
protected:
    int Ask(UINT nType, const std::function<void(QMessageBox&)>& onShown)
    {
        const WhenShown<QMessageBox> watcher(onShown);
        return ::MessageBox(m_probe->GetSafeHwnd(), "Delete <b>all</b>?", "Views", nType);
    }
};

} // namespace

TEST_F(QueueTest, TheWaitCursorLetsNothingHappenInBetween)
{
    bool bHappened = false;
    toolkit::PostTask([&bHappened] { bHappened = true; });
    {
        const CWaitCursor wait;
        EXPECT_EQ(Qt::WaitCursor, Widget().cursor().shape());
        EXPECT_FALSE(bHappened);
    }
    EXPECT_EQ(Qt::ArrowCursor, Widget().cursor().shape());
    EXPECT_TRUE(RunUntil([&bHappened] { return bHappened; }));
}

TEST_F(QueueTest, TimersTickWhileQtsLoopRuns)
{
    int nTicks = 0;
    m_probe->m_after[WM_TIMER] = [&] { ++nTicks; };
    const DWORD before = m_desktop->Ticks();
    m_probe->SetTimer(1, 20);
    EXPECT_TRUE(RunUntil([&] { return nTicks == 3; }));
    EXPECT_GE(m_desktop->Ticks() - before, 60u);
    m_probe->KillTimer(1);
}

TEST_F(QueueTest, TasksFromOtherThreadsRunOnTheUserInterfaceThreadInOrder)
{
    std::vector<int> ran;
    const std::thread::id here = std::this_thread::get_id();
    std::thread worker([&] {
        for (int i = 0; i < 100; ++i)
            toolkit::PostTask([&ran, here, i] { ran.push_back(std::this_thread::get_id() == here ? i : -1); });
    });
    EXPECT_TRUE(RunUntil([&] { return ran.size() == 100; }));
    worker.join();
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
    EXPECT_EQ(0, ran.front());
}

TEST_F(QueueTest, APictureThatNeverRestsDoesNotStarveTheUser)
{
    m_probe->m_after[WM_PAINT] = [&] { m_probe->Invalidate(); };
    m_probe->Invalidate();
    QCoreApplication::processEvents();
    QTest::mousePress(Window(), Qt::LeftButton, {}, {30, 40});
    std::string log;
    EXPECT_TRUE(RunUntil([&] { return (log += m_probe->TakeLog()).ends_with("ldown 30,40"); }));
    m_probe->m_after.clear();
    QTest::mouseRelease(Window(), Qt::LeftButton, {}, {30, 40});
}

TEST_F(QueueTest, AMessageBoxOffersItsButtonsAndGivesTheAnswer)
{
    const auto press = [](QMessageBox::StandardButton button) {
        return [button](QMessageBox& box) { box.button(button)->click(); };
    };
    EXPECT_EQ(IDOK, Ask(MB_OK | MB_ICONHAND, press(QMessageBox::Ok)));
    EXPECT_EQ(IDYES, Ask(MB_YESNO | MB_ICONQUESTION, press(QMessageBox::Yes)));
    EXPECT_EQ(IDNO, Ask(MB_YESNO, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    EXPECT_EQ(IDCANCEL, Ask(MB_YESNOCANCEL, [](QMessageBox& box) { box.close(); }));

    std::string shown;
    EXPECT_EQ(IDOK, Ask(MB_OKCANCEL | MB_ICONEXCLAMATION, [&](QMessageBox& box) {
                  shown = (box.windowTitle() + ": " + box.text()).toStdString();
                  EXPECT_EQ(QMessageBox::Warning, box.icon());
                  EXPECT_EQ(Qt::PlainText, box.textFormat());
                  EXPECT_EQ(QMessageBox::Ok | QMessageBox::Cancel, box.standardButtons());
                  EXPECT_EQ(&Widget(), box.parentWidget());
                  box.button(QMessageBox::Ok)->click();
              }));
    EXPECT_EQ("Views: Delete <b>all</b>?", shown);
}

TEST_F(QueueTest, TheQueueGoesOnWhileAMessageBoxIsOpen)
{
    QPointer<QMessageBox> pOpen;
    m_probe->m_after[WM_APP] = [&] { m_probe->SetTimer(1, 10); };
    m_probe->m_after[WM_TIMER] = [&] {
        m_probe->KillTimer(1);
        pOpen->button(QMessageBox::Yes)->click();
    };
    // Also when the box is opened by the queue itself.
    int nAnswer = 0;
    toolkit::PostTask([&] {
        nAnswer = Ask(MB_YESNO, [&](QMessageBox& box) {
            pOpen = &box;
            m_probe->PostMessage(WM_APP);
        });
    });
    EXPECT_TRUE(RunUntil([&] { return nAnswer != 0; }));
    EXPECT_EQ(IDYES, nAnswer);
    EXPECT_TRUE(pOpen.isNull());
}

TEST_F(QueueTest, AButtonHeldWhenAMessageBoxComesIsLetGo)
{
    QTest::mousePress(Window(), Qt::LeftButton, {}, {30, 40});
    Settle();
    EXPECT_LT(::GetKeyState(VK_LBUTTON), 0);
    Ask(MB_OK, [](QMessageBox& box) {
        Settle();
        EXPECT_GE(::GetKeyState(VK_LBUTTON), 0);
        box.button(QMessageBox::Ok)->click();
    });
}

TEST_F(QueueTest, AMessageBoxEndsWithItsOwner)
{
    EXPECT_EQ(IDNO, Ask(MB_YESNO, [&](QMessageBox&) { m_probe->DestroyWindow(); }));
}
