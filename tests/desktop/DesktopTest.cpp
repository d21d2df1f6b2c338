#include "tests/desktop/DesktopTest.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/run/Run.h"

void DesktopTest::SetUp()
{
    m_desktop.emplace();
    m_probe.emplace();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Widget()));
    QTest::mouseMove(Window(), {1, 1}); // wherever an earlier test left it
    Settle();
    m_probe->TakeLog();
}

void DesktopTest::TearDown()
{
    m_probe.reset();
    const toolkit::WindowCounts counts = toolkit::CountWindows();
    EXPECT_EQ(0, counts.windows + counts.timers);
    m_desktop.reset();
}

bool DesktopTest::RunUntil(const std::function<bool()>& condition)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(10'000);
    while (!condition() && deadline.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

void DesktopTest::Settle()
{
    bool bDone = false;
    QCoreApplication::processEvents(); // what the window system has sent reaches the toolkit's queue
    toolkit::PostTask([&bDone] { bDone = true; });
    EXPECT_TRUE(RunUntil([&bDone] { return bDone; }));
    QCoreApplication::processEvents();
}

std::string DesktopTest::Heard()
{
    Settle();
    return m_probe->TakeLog();
}
