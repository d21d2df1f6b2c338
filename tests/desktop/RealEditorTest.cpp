// The program in real windows: used with pointer and keyboard.
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
const QPoint kLeft(0, 20);

class RealEditorTest : public XServerTest
{
protected:
    void SetUp() override
    {
        XServerTest::SetUp();
        if (IsSkipped())
            return;
        for (const char* pszFolder : {"left/beach", "temp"})
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

    QTemporaryDir m_folder;
    Program m_left;
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
    XDo("windowfocus --sync " + m_leftWindow + " key period p n g Return");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(m_folder.filePath("left/café.png")); }, kPatience));
}

} // namespace
