#include "tests/desktop/XServerTest.h"

#include <QStandardPaths>
#include <QTest>

namespace
{

QString At(QPoint at)
{
    return QString("%1 %2").arg(at.x()).arg(at.y());
}

} // namespace

Program::~Program()
{
    terminate();
    if (state() != NotRunning && !waitForFinished(kPatience))
        kill();
}

void XServerTest::SetUp()
{
    for (const char* pszTool : {"Xvfb", "xdotool"})
        if (QStandardPaths::findExecutable(pszTool).isEmpty())
            GTEST_SKIP() << pszTool << " is missing";
    // It is not to begin anew whenever its only program ends, and says its display's number once it takes connections.
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset"});
    ASSERT_TRUE(m_server.waitForReadyRead(kPatience));
    m_environment.insert("DISPLAY", ":" + m_server.readLine().trimmed());
    m_environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    m_environment.insert("LC_ALL", "C.UTF-8"); // whose table of dead keys is the usual one
    m_environment.remove("WAYLAND_DISPLAY");
    m_environment.remove("QT_QPA_PLATFORM");
}

void XServerTest::Start(Program& program, const QString& path, const QStringList& arguments)
{
    program.setProcessEnvironment(m_environment);
    program.start(path, arguments);
    ASSERT_TRUE(program.waitForStarted(kPatience));
}

QString XServerTest::XDo(const QString& command)
{
    Program tool;
    tool.setProcessEnvironment(m_environment);
    tool.start("xdotool", QProcess::splitCommand(command));
    const bool bDone = tool.waitForFinished(kPatience) && tool.exitCode() == 0;
    return bDone ? QString(tool.readAllStandardOutput().trimmed()) : QString();
}

// The tool gives up early when any window goes while it looks around.
QString XServerTest::FindWindow(const QString& title)
{
    QString window;
    const auto isThere = [&] {
        window = XDo("search --onlyvisible --limit 1 --name \"^" + title + '"');
        return !window.isEmpty();
    };
    return QTest::qWaitFor(isThere, kPatience) ? window : QString();
}

void XServerTest::Press(const QString& window, const QString& keys)
{
    XDo("windowfocus --sync " + window + " key " + keys);
}

void XServerTest::Drag(QPoint from, QPoint to)
{
    QString steps = "mousemove " + At(from) + " mousedown 1";
    for (int i = 1; i <= 4; ++i)
        steps += " sleep 0.1 mousemove " + At(from + QPoint(8 * i, 0));
    for (int i = 1; i <= 5; ++i)
        steps += " sleep 0.1 mousemove " + At(from + (to - from) * i / 5);
    XDo(steps + " sleep 0.1 mousemove_relative 2 0 sleep 0.6 mouseup 1");
}
