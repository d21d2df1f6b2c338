// The program as a whole, as it is started from a shell without a display.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <string>

namespace
{

struct Outcome
{
    int status;
    std::string out, err;
};

class ProgramTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath("library/empty"));
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(QColor(200, 30, 30));
        ASSERT_TRUE(picture.save(m_folder.filePath("library/red.png")));
        m_environment.remove("DISPLAY");
        m_environment.remove("WAYLAND_DISPLAY");
        m_environment.remove("QT_QPA_PLATFORM");
        m_environment.insert("TMPDIR", m_folder.path());
        m_environment.insert("TEMP", m_folder.path());
    }

    Outcome Run(const QStringList& arguments)
    {
        QProcess program;
        program.setProcessEnvironment(m_environment);
        program.start(EDITOR_PROGRAM, arguments);
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(QProcess::NormalExit, program.exitStatus());
        return {program.exitCode(), program.readAllStandardOutput().toStdString(),
                program.readAllStandardError().toStdString()};
    }

    void ExpectRefusal(const QStringList& arguments, const std::string& line)
    {
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(2, outcome.status);
        EXPECT_EQ("editor: " + line + "\n", outcome.err);
        EXPECT_EQ("", outcome.out);
    }

    QFileInfoList Pictures() const { return QDir(m_folder.path()).entryInfoList({"*.png*"}, QDir::Files); }
    QString Path(const char* pszName) const { return m_folder.filePath(pszName); }
    static std::string Text(const QString& text) { return text.toStdString(); }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(ProgramTest, WhatCannotBeShownGivesStatusTwoAndOneLine)
{
    ExpectRefusal({"--frobnicate"}, "--frobnicate: unknown option; --help tells the known ones");
    ExpectRefusal({"--screenshot"}, "--screenshot: the name of the picture to write is missing");
    ExpectRefusal({"--screenshot", Path("gone/out.png"), Path("library")},
                  Text(Path("gone/out.png")) + ": no such file or directory");
    ExpectRefusal({"--screenshot", Path("out.png"), Path("gone")}, Text(Path("gone")) + ": no such file or directory");
    ExpectRefusal({Path("gone")}, Text(Path("gone")) + ": no such file or directory");
    ExpectRefusal({"--screenshot", Path("out.png"), "two\nlines"}, "two\xEF\xBF\xBDlines: no such file or directory");
    EXPECT_EQ(0, Pictures().size());
}

TEST_F(ProgramTest, AScreenshotShowsTheSettledWindowInTheSizeAskedFor)
{
    const Outcome outcome = Run({"--screenshot", Path("out.png"), "--size", "500x400", Path("library")});
    EXPECT_EQ("", outcome.err + outcome.out);
    EXPECT_EQ(0, outcome.status);
    const QImage picture(Path("out.png"));
    ASSERT_EQ(QSize(500, 400), picture.size());
    int nRed = 0; // the decoded picture is in it
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 500; ++x)
            nRed += picture.pixelColor(x, y) == QColor(200, 30, 30);
    }
    EXPECT_GT(nRed, 500);
}

TEST_F(ProgramTest, WithoutADisplayThePictureIsInAFileOfItsOwn)
{
    for (const char* pszDisplay : {"", ":4711"}) {
        m_environment.insert("DISPLAY", pszDisplay);
        const Outcome outcome = Run({Path("library")});
        EXPECT_EQ(0, outcome.status);
        EXPECT_EQ("", outcome.err);
        const std::string reason =
            *pszDisplay ? "the display ':4711' does not answer" : "neither DISPLAY nor WAYLAND_DISPLAY is set";
        const QFileInfoList pictures = Pictures();
        ASSERT_EQ(1, pictures.size());
        const QString path = pictures.front().filePath();
        EXPECT_EQ("No window, for " + reason + "; its picture is in " + Text(path) + "\n", outcome.out);
        EXPECT_EQ(QFile::ReadOwner | QFile::WriteOwner,
                  pictures.front().permissions() & ~(QFile::ReadUser | QFile::WriteUser));
        EXPECT_EQ(QSize(960, 640), QImage(path).size());
        QFile::remove(path);
    }
}

TEST_F(ProgramTest, AScriptRunsWithoutAWindowAndItsStatusTells)
{
    QFile file(Path("script.txt"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("list\nselect red.png\ncopy\nenter empty\npaste\nlist\nscreenshot \"" + Path("out.png").toUtf8() +
               "\"\nfly\n");
    file.close();
    const Outcome outcome = Run({"--script", file.fileName(), "--size", "500x400", Path("library")});
    EXPECT_EQ("empty\nred.png\nred.png\n", outcome.out);
    EXPECT_EQ(Text(file.fileName()) + ":8: fly: unknown command\n", outcome.err);
    EXPECT_EQ(1, outcome.status);
    EXPECT_EQ(QSize(500, 400), QImage(Path("out.png")).size());
    EXPECT_TRUE(QFile::exists(Path("library/empty/red.png")));
    EXPECT_EQ(QStringList(), QDir(m_folder.path()).entryList({"AE*"})) << "no transfer file is left";
    ExpectRefusal({"--script", Path("none"), Path("library")}, Text(Path("none")) + ": no such file or directory");
}
