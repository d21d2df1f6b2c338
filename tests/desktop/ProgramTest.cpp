// The program as a whole, as it is started from a shell without a display.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <utility>

namespace
{

constexpr QRgb kRed = qRgb(200, 30, 30);

struct Outcome
{
    int status = 0;
    std::string out, err;

    bool operator==(const Outcome&) const = default;
    friend void PrintTo(const Outcome& outcome, std::ostream* pStream)
    {
        *pStream << outcome.status << ", said: " << outcome.out << ", complained: " << outcome.err;
    }
};

class ProgramTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath("library/empty"));
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(kRed);
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

    QFileInfoList Pictures() const { return QDir(m_folder.path()).entryInfoList({"*.png*"}, QDir::Files); }
    QString Path(const char* pszName) const { return m_folder.filePath(pszName); }
    static std::string Text(const QString& text) { return text.toStdString(); }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace

TEST_F(ProgramTest, WhatCannotBeShownGivesStatusTwoAndOneLine)
{
    const std::string gone = Text(Path("gone"));
    const std::pair<QStringList, std::string> refusals[] = {
        {{"--frobnicate"}, "--frobnicate: unknown option; --help tells the known ones"},
        {{"--screenshot"}, "--screenshot: the name of the picture to write is missing"},
        {{"--screenshot", Path("gone/out.png"), Path("library")}, gone + "/out.png: no such file or directory"},
        {{"--screenshot", Path("out.png"), Path("gone")}, gone + ": no such file or directory"},
        {{"--script", Path("gone"), Path("library")}, gone + ": no such file or directory"},
        {{"--script", "-", "--screenshot", "out.png"},
         "--screenshot: within --script the command screenshot writes pictures"},
        {{"--size", "800x600x", "a"}, "--size 800x600x: not a size like 960x640, from 200 to 8192 pixels each way"},
        {{"--size", "99999999999x600"},
         "--size 99999999999x600: not a size like 960x640, from 200 to 8192 pixels each way"},
        {{"a", "b"}, "b: only one folder can be opened"},
        {{""}, "the folder's name is empty"},
        {{"--", "--size"}, "--size: no such file or directory"},
        {{"two\nlines"}, "two\xEF\xBF\xBDlines: no such file or directory"},
    };
    for (const auto& [arguments, line] : refusals)
        EXPECT_EQ((Outcome{2, "", "editor: " + line + "\n"}), Run(arguments));
    EXPECT_EQ(0, Pictures().size());
}

TEST_F(ProgramTest, WithoutADisplayThePictureIsInAFileOfItsOwn)
{
    const std::pair<const char*, const char*> cases[] = {{"", "neither DISPLAY nor WAYLAND_DISPLAY is set"},
                                                         {":4711", "the display ':4711' does not answer"}};
    for (const auto& [pszDisplay, pszReason] : cases) {
        m_environment.insert("DISPLAY", pszDisplay);
        const Outcome outcome = Run({Path("library")});
        ASSERT_EQ(1, Pictures().size());
        const QFileInfo file = Pictures().front();
        EXPECT_EQ(
            (Outcome{0,
                     std::string("No window, for ") + pszReason + "; its picture is in " + Text(file.filePath()) + "\n",
                     ""}),
            outcome);
        EXPECT_EQ(QFile::ReadOwner | QFile::WriteOwner, file.permissions() & ~(QFile::ReadUser | QFile::WriteUser));
        const QImage picture = QImage(file.filePath()).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(QSize(960, 640), picture.size());
        const auto* const pFirst = reinterpret_cast<const QRgb*>(picture.constBits());
        EXPECT_LT(500, std::count(pFirst, pFirst + 960 * 640, kRed)) << "the settled window";
        QFile::remove(file.filePath());
    }
}

TEST_F(ProgramTest, AScriptRunsWithoutAWindowAndItsStatusTells)
{
    QFile file(Path("script.txt"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("list\nselect red.png\ncopy\nenter empty\npaste\nlist\nscreenshot \"" + Path("out.png").toUtf8() +
               "\"\nfly\n");
    file.close();
    EXPECT_EQ((Outcome{1, "empty\nred.png\nred.png\n", Text(file.fileName()) + ":8: fly: unknown command\n"}),
              Run({"--script", file.fileName(), "--size", "500x400", Path("library")}));
    EXPECT_EQ(QSize(500, 400), QImage(Path("out.png")).size());
    EXPECT_TRUE(QFile::exists(Path("library/empty/red.png")));
    EXPECT_EQ(QStringList(), QDir(m_folder.path()).entryList({"AE*"})) << "no transfer file is left";
    EXPECT_EQ(Outcome(), Run({"--screenshot", Path("other.png"), "--size", "400x500", Path("library")}));
    EXPECT_EQ(QSize(400, 500), QImage(Path("other.png")).size());
}

TEST_F(ProgramTest, AScriptThatIsInterruptedLeavesNoTransferFile)
{
    QProcess program;
    program.setProcessEnvironment(m_environment);
    program.start(EDITOR_PROGRAM, {"--script", "-", Path("library")});
    program.write("select red.png\ncopy\n" + QByteArray("refresh\n").repeated(1'000'000));
    program.closeWriteChannel();
    const auto transferFiles = [&] { return QDir(m_folder.path()).entryList({"AE*"}); };
    while (transferFiles().isEmpty() && !program.waitForFinished(10))
        continue;
    program.terminate();
    EXPECT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(128 + SIGTERM, program.exitCode());
    EXPECT_EQ(QStringList(), transferFiles());
    EXPECT_TRUE(program.readAllStandardError().endsWith(": interrupted\n"));
}
