// Drags and the clipboard between two programs on an X server, with a real pointer and a real keyboard.
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace
{

constexpr int kPatience = 20'000; // milliseconds for what takes well under one second

bool AreToolsThere()
{
    return !QStandardPaths::findExecutable("Xvfb").isEmpty() && !QStandardPaths::findExecutable("xdotool").isEmpty();
}

class RealDragTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!AreToolsThere())
            GTEST_SKIP() << "Xvfb or xdotool is missing";
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        ASSERT_TRUE(m_server.waitForReadyRead(kPatience)); // it says its display's number once it takes connections
        m_environment.insert("DISPLAY", ":" + m_server.readLine().trimmed());
        m_environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
        m_environment.remove("WAYLAND_DISPLAY");
        m_environment.remove("QT_QPA_PLATFORM");
        Start(m_left, {"left", "50"});
    }

    void TearDown() override
    {
        for (QProcess* pProcess : {&m_left, &m_right, &m_server}) {
            pProcess->terminate();
            if (pProcess->state() != QProcess::NotRunning && !pProcess->waitForFinished(kPatience))
                pProcess->kill();
        }
    }

    void Start(QProcess& peer, const QStringList& arguments)
    {
        peer.setProcessEnvironment(m_environment);
        peer.setReadChannel(QProcess::StandardOutput);
        peer.start(PEER_PROGRAM, arguments);
        ASSERT_EQ("ready", Line(peer));
        XDo({"search", "--sync", "--onlyvisible", "--limit", "1", "--name", "^" + arguments.front()});
    }

    // The next thing that the program says; empty when it waits in vain.
    static std::string Line(QProcess& peer)
    {
        while (!peer.canReadLine())
            if (!peer.waitForReadyRead(kPatience))
                return "";
        return peer.readLine().trimmed().toStdString();
    }

    QString XDo(const QStringList& arguments)
    {
        QProcess tool;
        tool.setProcessEnvironment(m_environment);
        tool.start("xdotool", arguments);
        return tool.waitForFinished(kPatience) ? QString(tool.readAllStandardOutput().trimmed()) : QString();
    }

    // From the left window to another place of the screen, as a hand does: one jump would drop nothing.
    void DragTo(int x, int y)
    {
        QStringList steps{"mousemove", "120", "150", "mousedown", "1"};
        for (int i = 1; i <= 4; ++i)
            steps << "sleep"
                  << "0.05"
                  << "mousemove" << QString::number(120 + 8 * i) << "150";
        for (int i = 1; i <= 5; ++i)
            steps << "sleep"
                  << "0.08"
                  << "mousemove" << QString::number(152 + (x - 152) * i / 5)
                  << QString::number(150 + (y - 150) * i / 5);
        steps << "sleep"
              << "0.08"
              << "mousemove_relative"
              << "2"
              << "0"
              << "sleep"
              << "0.2"
              << "mouseup"
              << "1";
        XDo(steps);
    }

    void Type(const QString& title, const QString& key)
    {
        const QString window = XDo({"search", "--onlyvisible", "--limit", "1", "--name", "^" + title});
        XDo({"windowfocus", "--sync", window, "key", key});
    }

    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_server, m_left, m_right;
};

TEST_F(RealDragTest, AMoveCountsWhenTheOtherProgramHasConfirmedIt)
{
    Start(m_right, {"right", "600"});
    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(m_right));
    EXPECT_EQ("dragged move", Line(m_left));

    XDo({"keydown", "Control_L"});
    DragTo(700, 150);
    XDo({"keyup", "Control_L"});
    EXPECT_EQ("drop copy from left", Line(m_right));
    EXPECT_EQ("dragged copy", Line(m_left));
}

TEST_F(RealDragTest, ATargetThatRefusesAtTheDropTakesNothing)
{
    Start(m_right, {"right", "600", "refuse"});
    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(m_right));
    EXPECT_EQ("dragged none", Line(m_left));
}

TEST_F(RealDragTest, ATargetThatTakesLongOrDiesLeavesACopy)
{
    Start(m_right, {"right", "600", "hold"});
    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(m_right));
    EXPECT_EQ("dragged copy", Line(m_left)); // it has waited long enough
    m_right.write("go on\n");
    EXPECT_TRUE(m_right.waitForBytesWritten(kPatience));

    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(m_right));
    m_right.kill();
    EXPECT_EQ("dragged copy", Line(m_left));
}

TEST_F(RealDragTest, ADropOnItselfAndOneOnNothingNeedNobodysWord)
{
    DragTo(220, 100);
    EXPECT_EQ("drop move from left", Line(m_left));
    EXPECT_EQ("dragged move", Line(m_left));
    DragTo(700, 600);
    EXPECT_EQ("dragged none", Line(m_left));
}

TEST_F(RealDragTest, WhateverGoesUnderWayTheProgramsGoOn)
{
    Start(m_right, {"right", "600", "vanish"});
    DragTo(700, 150);
    EXPECT_EQ("drop move from left", Line(m_right));
    EXPECT_EQ("without a window", Line(m_right));
    EXPECT_EQ("dragged move", Line(m_left));

    m_left.kill();
    EXPECT_TRUE(m_left.waitForFinished(kPatience));
    Start(m_left, {"left", "50", "forget"});
    DragTo(220, 100);
    EXPECT_EQ("dragged none", Line(m_left));
}

TEST_F(RealDragTest, WhatOneProgramCopiedAnotherPastesAsLongAsTheFirstIsThere)
{
    Start(m_right, {"right", "600"});
    Type("left", "c");
    EXPECT_EQ("copied", Line(m_left));
    Type("left", "v");
    EXPECT_EQ("pasted from left (own)", Line(m_left));
    Type("right", "v");
    EXPECT_EQ("pasted from left", Line(m_right));

    Type("right", "c");
    EXPECT_EQ("copied", Line(m_right));
    Type("left", "v"); // has let go of its own
    EXPECT_EQ("pasted from right", Line(m_left));
    Type("right", "q");
    EXPECT_TRUE(m_right.waitForFinished(kPatience));
    Type("left", "v");
    EXPECT_EQ("pasted nothing", Line(m_left));
}

} // namespace
