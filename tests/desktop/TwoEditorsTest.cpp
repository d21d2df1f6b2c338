// Two editors on an X server, and a hand that drags, copies and pastes from one to the other.
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
#include <QTest>
#include <functional>
#include <gtest/gtest.h>

namespace
{

constexpr int kPatience = 20'000; // milliseconds for what takes well under one second
constexpr CSize kSize(600, 400);
const QPoint kRight(620, 20); // where the right window is
const CPoint kEmpty(450, 300);

class TwoEditorsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable("Xvfb").isEmpty() || QStandardPaths::findExecutable("xdotool").isEmpty())
            GTEST_SKIP() << "Xvfb or xdotool is missing";
        for (const char* pszFolder : {"left", "right", "temp"})
            ASSERT_TRUE(QDir(m_folder.path()).mkpath(pszFolder));
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (const char* pszName : {"left/a.png", "left/b.png"})
            ASSERT_TRUE(picture.save(m_folder.filePath(pszName)));
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        ASSERT_TRUE(m_server.waitForReadyRead(kPatience)); // it says its display's number once it takes connections
        m_environment.insert("DISPLAY", ":" + m_server.readLine().trimmed());
        m_environment.insert("DBUS_SESSION_BUS_ADDRESS", "disabled:");
        m_environment.insert("TEMP", m_folder.filePath("temp"));
        m_environment.insert("XDG_DATA_HOME", m_folder.filePath("data")); // with the trash
        m_environment.remove("WAYLAND_DISPLAY");
        m_environment.remove("QT_QPA_PLATFORM");
        m_a = PlaceOfRow(0);
        m_b = PlaceOfRow(1);
        m_leftWindow = Start(m_left, "left", {0, 20});
        m_rightWindow = Start(m_right, "right", kRight);
        ASSERT_NE("", m_leftWindow);
        ASSERT_NE("", m_rightWindow);
    }

    void TearDown() override
    {
        for (QProcess* pProcess : {&m_left, &m_right, &m_server}) {
            pProcess->terminate();
            if (pProcess->state() != QProcess::NotRunning && !pProcess->waitForFinished(kPatience))
                pProcess->kill();
        }
    }

    QString Start(QProcess& editor, const QString& name, QPoint at)
    {
        editor.setProcessEnvironment(m_environment);
        editor.start(EDITOR_PROGRAM, {"--size", "600x400", m_folder.filePath(name)});
        EXPECT_TRUE(editor.waitForStarted(kPatience));
        const QString window = FindWindow(name);
        XDo({"windowmove", "--sync", window, QString::number(at.x()), QString::number(at.y())});
        return window;
    }

    QString XDo(const QStringList& arguments)
    {
        QProcess tool;
        tool.setProcessEnvironment(m_environment);
        tool.start("xdotool", arguments);
        return tool.waitForFinished(kPatience) ? QString(tool.readAllStandardOutput().trimmed()) : QString();
    }

    QString FindWindow(const QString& title)
    {
        const QDeadlineTimer patience(kPatience);
        QString window;
        while (window.isEmpty() && !patience.hasExpired())
            window = XDo({"search", "--sync", "--onlyvisible", "--limit", "1", "--name", "^" + title});
        return window;
    }

    // Where the left window has the row, from a window like it without a screen.
    CPoint PlaceOfRow(int nRow)
    {
        const editor::QtPictureReader reader;
        qtdesktop::QtDesktop desktop;
        editor::EditorApp editor(reader, {.size = kSize, .onClosed = {}});
        EXPECT_EQ("", editor.OpenFolder(m_folder.filePath("left").toStdString()));
        editor.WaitUntilSettled();
        CRect frame, icon;
        ::GetWindowRect(editor.GetMainWindow(), &frame);
        const HWND hList = ::WindowFromPoint(frame.CenterPoint());
        icon.left = LVIR_ICON;
        EXPECT_NE(0, ::SendMessage(hList, LVM_GETITEMRECT, static_cast<WPARAM>(nRow), reinterpret_cast<LPARAM>(&icon)));
        CPoint at = icon.CenterPoint();
        ::ClientToScreen(hList, &at);
        return at - frame.TopLeft();
    }

    // From a place in the left window to one in the right window, as a hand does: one jump would drop nothing.
    void DragAcross(CPoint from, CPoint to)
    {
        const QPoint start(from.x, from.y + 20), end(kRight.x() + to.x, kRight.y() + to.y);
        QStringList steps{"mousemove", QString::number(start.x()), QString::number(start.y()), "mousedown", "1"};
        const auto move = [&steps](const char* pszPause, QPoint at) {
            steps << "sleep" << pszPause << "mousemove" << QString::number(at.x()) << QString::number(at.y());
        };
        for (int i = 1; i <= 4; ++i)
            move("0.05", start + QPoint(8 * i, 0));
        for (int i = 1; i <= 5; ++i)
            move("0.08", start + (end - start) * i / 5);
        move("0.08", end + QPoint(2, 0));
        XDo(steps << "sleep"
                  << "0.2"
                  << "mouseup"
                  << "1");
    }

    void Press(const QString& window, const QString& key) { XDo({"windowfocus", "--sync", window, "key", key}); }

    // What lies in both folders, as soon as it is that, or when it is not after a while.
    std::string Files(const std::string& expected)
    {
        const QDeadlineTimer patience(kPatience);
        std::string files;
        do {
            files.clear();
            for (const char* pszFolder : {"left", "right"}) {
                files += (files.empty() ? "" : " | ") + std::string(pszFolder);
                for (const QString& name : QDir(m_folder.filePath(pszFolder)).entryList(QDir::Files))
                    files += ' ' + name.toStdString();
            }
        } while (files != expected && !patience.hasExpired() && (QTest::qWait(20), true));
        return files;
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_server, m_left, m_right;
    QString m_leftWindow, m_rightWindow;
    CPoint m_a, m_b; // the pictures in the left window
};

TEST_F(TwoEditorsTest, ADragMovesFilesFromOneToTheOtherAndWithControlCopiesThem)
{
    XDo({"keydown", "Control_L"});
    DragAcross(m_a, kEmpty);
    EXPECT_EQ("left a.png b.png | right a.png", Files("left a.png b.png | right a.png"));
    XDo({"keyup", "Control_L"});
    DragAcross(m_b, kEmpty);
    EXPECT_EQ("left a.png | right a.png b.png", Files("left a.png | right a.png b.png"));
    EXPECT_EQ(QImage(m_folder.filePath("left/a.png")), QImage(m_folder.filePath("right/b.png")));
}

TEST_F(TwoEditorsTest, WhatOneHasCopiedTheOtherPastesUntilTheFirstIsClosed)
{
    XDo({"windowfocus", "--sync", m_leftWindow, "mousemove", "--window", m_leftWindow, QString::number(m_a.x),
         QString::number(m_a.y), "click", "1"});
    Press(m_leftWindow, "ctrl+c");
    // The transfer file is there before the clipboard is the editor's.
    const QDeadlineTimer patience(kPatience);
    while (QDir(m_folder.filePath("temp")).isEmpty() && !patience.hasExpired())
        QTest::qWait(20);
    Press(m_rightWindow, "ctrl+v");
    EXPECT_EQ("left a.png b.png | right a.png", Files("left a.png b.png | right a.png"));

    m_left.kill();
    ASSERT_TRUE(m_left.waitForFinished(kPatience));
    Press(m_rightWindow, "ctrl+v");
    EXPECT_NE("", FindWindow("Not everything was pasted"));
    EXPECT_EQ("left a.png b.png | right a.png", Files("left a.png b.png | right a.png"));
    EXPECT_EQ(QProcess::Running, m_right.state());
}

} // namespace
