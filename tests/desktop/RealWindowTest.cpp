// The program in a real window of an X server, driven by a real pointer and a real keyboard.
#include "Editor/EditorApp.h"
#include "Editor/app/QtPictureReader.h"
#include "QtDesktop/QtDesktop.h"
#include "Toolkit/controls/ListView.h"
#include "Toolkit/window/WindowApi.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace
{

constexpr int kPatience = 20'000; // milliseconds for what takes well under one second

bool AreToolsThere()
{
    return !QStandardPaths::findExecutable("Xvfb").isEmpty() && !QStandardPaths::findExecutable("xdotool").isEmpty();
}

class RealWindowTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!AreToolsThere())
            GTEST_SKIP() << "Xvfb or xdotool is missing";
        ASSERT_TRUE(QDir(m_folder.path()).mkpath("holidays/beach"));
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(m_folder.filePath("holidays/red.png")));
        StartServer();
    }

    void TearDown() override
    {
        for (QProcess* pProcess : {&m_editor, &m_server}) {
            pProcess->terminate();
            if (pProcess->state() != QProcess::NotRunning && !pProcess->waitForFinished(kPatience))
                pProcess->kill();
        }
    }

    // The server says its display's number once it takes connections.
    void StartServer()
    {
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        ASSERT_TRUE(m_server.waitForReadyRead(kPatience));
        m_environment.insert("DISPLAY", ":" + m_server.readLine().trimmed());
        m_environment.remove("WAYLAND_DISPLAY");
        m_environment.remove("QT_QPA_PLATFORM");
        m_environment.insert("LC_ALL", "C.UTF-8"); // whose table of dead keys is the usual one
    }

    void StartEditor()
    {
        m_editor.setProcessEnvironment(m_environment);
        m_editor.start(EDITOR_PROGRAM, {m_folder.filePath("holidays")});
        ASSERT_TRUE(m_editor.waitForStarted(kPatience));
    }

    // Empty when it failed or waited in vain.
    QString XDo(const QStringList& arguments)
    {
        QProcess tool;
        tool.setProcessEnvironment(m_environment);
        tool.start("xdotool", arguments);
        if (!tool.waitForFinished(kPatience)) {
            tool.kill();
            tool.waitForFinished();
            return {};
        }
        return tool.exitCode() == 0 ? QString(tool.readAllStandardOutput().trimmed()) : QString();
    }

    // Waits for a window whose title begins so. The tool gives up early when any window goes while it looks around.
    QString FindWindow(const QString& title)
    {
        const QDeadlineTimer patience(kPatience);
        QString window;
        while (window.isEmpty() && !patience.hasExpired())
            window = XDo({"search", "--sync", "--onlyvisible", "--limit", "1", "--name", "^" + title});
        return window;
    }

    // Where the same window has the row's picture or label (LVIR_*) when it is shown without a screen.
    CPoint PlaceOfRow(int nRow, int nPart = LVIR_ICON)
    {
        const editor::QtPictureReader reader;
        qtdesktop::QtDesktop desktop;
        editor::EditorApp editor(reader);
        EXPECT_EQ("", editor.OpenFolder(m_folder.filePath("holidays").toStdString()));
        editor.WaitUntilSettled();
        const HWND hFrame = editor.GetMainWindow();
        CRect frame;
        ::GetWindowRect(hFrame, &frame);
        const HWND hList = ::WindowFromPoint(frame.CenterPoint());
        CRect part;
        part.left = nPart;
        EXPECT_NE(0, ::SendMessage(hList, LVM_GETITEMRECT, static_cast<WPARAM>(nRow), reinterpret_cast<LPARAM>(&part)));
        CPoint at = part.CenterPoint();
        ::ClientToScreen(hList, &at);
        return at - frame.TopLeft();
    }

    void Click(const QString& window, CPoint at, int nTimes)
    {
        XDo({"mousemove", "--window", window, QString::number(at.x), QString::number(at.y), "click", "--repeat",
             QString::number(nTimes), "--delay", "50", "1"});
    }

    bool WaitForFile(const QString& name) const
    {
        const QDeadlineTimer patience(kPatience);
        while (!QFile::exists(m_folder.filePath(name)) && !patience.hasExpired())
            QThread::msleep(10);
        return QFile::exists(m_folder.filePath(name));
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_server, m_editor;
};

} // namespace

TEST_F(RealWindowTest, ADoubleClickOpensAFolderAndAClickSelectsAPictureForTheKeyboard)
{
    const CPoint folder = PlaceOfRow(0), picture = PlaceOfRow(1);
    StartEditor();
    const QString window = FindWindow("holidays");
    ASSERT_NE("", window);
    XDo({"windowfocus", "--sync", window});

    Click(window, folder, 2);
    EXPECT_EQ(window, FindWindow("beach"));
    XDo({"key", "BackSpace"});
    EXPECT_EQ(window, FindWindow("holidays"));
    Click(window, picture, 1);
    XDo({"key", "Return"});
    EXPECT_EQ(window, FindWindow("red.png"));
}

TEST_F(RealWindowTest, ARenameSurvivesTheWayToAnotherWindowAndBackAndTakesDeadKeys)
{
    const CPoint label = PlaceOfRow(1, LVIR_LABEL);
    StartEditor();
    const QString window = FindWindow("holidays");
    ASSERT_NE("", window);
    XDo({"windowfocus", "--sync", window});
    Click(window, label, 1);
    XDo({"sleep", "1.2"}); // a slow second click is one after the double-click time
    Click(window, label, 1);
    XDo({"sleep", "1.2"});
    XDo({"key", "ctrl+a", "c", "a", "f", "dead_acute", "e"});

    XDo({"search", "--maxdepth", "0", ".*", "windowfocus", "--sync"}); // the root window: no longer the editor
    XDo({"windowfocus", "--sync", window});
    XDo({"key", "period", "p", "n", "g", "Return"});
    EXPECT_TRUE(WaitForFile("holidays/café.png"));
    EXPECT_FALSE(QFile::exists(m_folder.filePath("holidays/red.png")));
}
