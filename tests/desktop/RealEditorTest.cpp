// The program in real windows: used with pointer and keyboard, and two of them side by side.
#include "Editor/EditorApp.h"
#include "Editor/app/QtPictureReader.h"
#include "QtDesktop/QtDesktop.h"
#include "Toolkit/controls/list/ListView.h"
#include "Toolkit/window/WindowApi.h"
#include "tests/desktop/XServerTest.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace
{

constexpr CSize kSize(600, 400); // of each window
const QPoint kLeft(0, 20), kRight(620, 20);
const QPoint kBelowTheRows(450, 300); // in a window

class RealEditorTest : public XServerTest
{
protected:
    void SetUp() override
    {
        XServerTest::SetUp();
        if (IsSkipped())
            return;
        for (const char* pszFolder : {"left/beach", "right", "temp"})
            ASSERT_TRUE(QDir(m_folder.path()).mkpath(pszFolder));
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (const char* pszName : {"left/a.png", "left/b.png"})
            ASSERT_TRUE(picture.save(m_folder.filePath(pszName)));
        m_environment.insert("TEMP", m_folder.filePath("temp"));
        m_environment.insert("XDG_DATA_HOME", m_folder.filePath("data")); // with the trash
        m_leftWindow = StartEditor(m_left, "left", kLeft);
    }

    QString StartEditor(Program& editor, const QString& folder, QPoint at)
    {
        Start(editor, EDITOR_PROGRAM, {"--forget", "--size", "600x400", m_folder.filePath(folder)});
        const QString window = FindWindow(folder);
        EXPECT_NE("", window);
        XDo(QString("windowmove --sync %1 %2 %3").arg(window).arg(at.x()).arg(at.y()));
        return window;
    }

    // Where the left window has the row's picture or label (LVIR_*), from a window like it without a screen.
    QPoint PlaceOfRow(int nRow, int nPart = LVIR_ICON)
    {
        const editor::QtPictureReader reader;
        qtdesktop::QtDesktop desktop;
        editor::EditorApp editor(reader, {.size = kSize, .onClosed = {}});
        EXPECT_EQ("", editor.OpenFolder(m_folder.filePath("left").toStdString()));
        editor.WaitUntilSettled();
        CRect frame, part;
        ::GetWindowRect(editor.GetMainWindow(), &frame);
        const HWND hList = ::WindowFromPoint(frame.CenterPoint());
        part.left = nPart;
        EXPECT_NE(0, ::SendMessage(hList, LVM_GETITEMRECT, static_cast<WPARAM>(nRow), reinterpret_cast<LPARAM>(&part)));
        CPoint at = part.CenterPoint();
        ::ClientToScreen(hList, &at);
        return QPoint(at.x - frame.left, at.y - frame.top) + kLeft;
    }

    void Click(QPoint at) { XDo(QString("mousemove %1 %2 click 1").arg(at.x()).arg(at.y())); }

    std::string Files() const // in both folders
    {
        std::string files;
        for (const char* pszFolder : {"left", "right"}) {
            files += (files.empty() ? "" : " | ") + std::string(pszFolder);
            for (const QString& name : QDir(m_folder.filePath(pszFolder)).entryList(QDir::Files))
                files += ' ' + name.toStdString();
        }
        return files;
    }

    void AwaitFiles(const std::string& expected)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Files() == expected; }, kPatience)) << Files();
    }

    QTemporaryDir m_folder;
    Program m_left, m_right;
    QString m_leftWindow;
};

TEST_F(RealEditorTest, ARenameSurvivesTheWayToAnotherWindowAndBackAndTakesDeadKeys)
{
    const QPoint label = PlaceOfRow(0, LVIR_LABEL);
    XDo("windowfocus --sync " + m_leftWindow);
    Click(label);
    XDo("sleep 1.2"); // a slow second click is one after the double-click time
    Click(label);
    XDo("sleep 1.2");
    XDo("key ctrl+a c a f dead_acute e");
    XDo("search --maxdepth 0 .* windowfocus --sync"); // the root window: no longer the editor
    Press(m_leftWindow, "period p n g Return");
    AwaitFiles("left b.png café.png | right");
}

TEST_F(RealEditorTest, ADragMovesFilesFromOneToTheOtherAndWithControlCopiesThem)
{
    const QPoint first = PlaceOfRow(0), second = PlaceOfRow(1);
    StartEditor(m_right, "right", kRight);
    XDo("keydown Control_L");
    Drag(first, kRight + kBelowTheRows);
    AwaitFiles("left a.png b.png | right a.png");
    XDo("keyup Control_L");
    Drag(second, kRight + kBelowTheRows);
    AwaitFiles("left a.png | right a.png b.png");
    EXPECT_EQ(QImage(m_folder.filePath("left/a.png")), QImage(m_folder.filePath("right/b.png")));
}

TEST_F(RealEditorTest, WhatOneHasCopiedTheOtherPastesAndBackUntilItIsClosed)
{
    const QPoint first = PlaceOfRow(0);
    const QString rightWindow = StartEditor(m_right, "right", kRight);
    XDo("windowfocus --sync " + m_leftWindow);
    Click(first);
    Press(m_leftWindow, "ctrl+c");
    // The transfer file is there before the clipboard is the editor's.
    EXPECT_TRUE(QTest::qWaitFor([this] { return !QDir(m_folder.filePath("temp")).isEmpty(); }, kPatience));
    Press(rightWindow, "ctrl+v");
    AwaitFiles("left a.png b.png | right a.png");

    Press(rightWindow, "ctrl+c");
    Press(m_leftWindow, "ctrl+v"); // has let go of its own
    AwaitFiles("left a (2).png a.png b.png | right a.png");

    m_right.terminate();
    ASSERT_TRUE(m_right.waitForFinished(kPatience));
    EXPECT_TRUE(QDir(m_folder.filePath("temp")).isEmpty());
    Press(m_leftWindow, "ctrl+v");
    EXPECT_NE("", FindWindow("Views"));
    EXPECT_EQ(QProcess::Running, m_left.state());
}

} // namespace
