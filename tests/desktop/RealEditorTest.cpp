// The program in real windows, two of them side by side.
#include "tests/desktop/XServerTest.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace
{

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
        m_leftWindow = StartEditor(m_left, "left");
    }

    QString StartEditor(Program& editor, const QString& folder)
    {
        Start(editor, EDITOR_PROGRAM, {"--forget", "--size", "600x400", m_folder.filePath(folder)});
        const QString window = FindWindow(folder);
        EXPECT_NE("", window);
        return window;
    }

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

TEST_F(RealEditorTest, WhatOneHasCopiedTheOtherPastesAndBackUntilItIsClosed)
{
    const QString rightWindow = StartEditor(m_right, "right");
    Press(m_leftWindow, "Home ctrl+c");
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
