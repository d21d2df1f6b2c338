// The reference editor's program.
//
// Shows a folder in a window. Without a display, or when a picture is asked for, it renders the same window into a
// PNG file and ends; or it runs a script and ends. Exit status 2, after one line that says why, when nothing could be
// shown; 1 when a command of a script failed; 128 and the signal's number when one asked it to end.
#include "Editor/CommandLine.h"
#include "Editor/EditorApp.h"
#include "Editor/FirstFolder.h"
#include "Editor/app/Display.h"
#include "Editor/app/EndSignals.h"
#include "Editor/app/QtPictureReader.h"
#include "Editor/app/Screenshot.h"
#include "Editor/disk/FileText.h"
#include "Editor/disk/Underway.h"
#include "Editor/disk/UserPlaces.h"
#include "Editor/script/Script.h"
#include "Editor/services/LeftTransfers.h"
#include "HostKit/pictures/Pictograms.h"
#include "QtDesktop/QtDesktop.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/message/TaskInbox.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <QProcess>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace
{

constexpr int kCommandFailed = 1;
constexpr int kNothingShown = 2;
constexpr int kEndedBySignal = 128; // as shells say it

// What it is reading when the program ends, it reads to the end of that, for nobody.
const editor::PictureReader& Reader()
{
    static const editor::QtPictureReader reader;
    return reader;
}

int Refuse(const std::string& reason)
{
    std::fprintf(stderr, "editor: %s\n", editor::ToShown(reason).c_str()); // one line, whatever a name holds
    return kNothingShown;
}

// What stands for the program in title bars and task lists.
QIcon MakeIcon()
{
    QIcon icon;
    for (const int nExtent : {16, 24, 32, 48, 64, 128}) {
        const toolkit::Surface drawn = hostkit::DrawPictogram(hostkit::Pictogram::IconPane, nExtent);
        const QImage picture(reinterpret_cast<const uchar*>(drawn.Row(0)), drawn.Width(), drawn.Height(),
                             QImage::Format_ARGB32_Premultiplied);
        icon.addPixmap(QPixmap::fromImage(picture.copy()));
    }
    return icon;
}

// The file's text; of "-" the standard input's. Empty when it was read, else one line that names the file and the
// reason.
std::string ReadScript(const std::string& path, std::string& text)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pNamed(
        path == "-" ? nullptr : std::fopen(path.c_str(), "rbe"), &std::fclose);
    if (path != "-" && !pNamed)
        return path + ": " + editor::SystemErrorText(errno);
    std::FILE* const pFile = pNamed ? pNamed.get() : stdin;
    char part[4096];
    for (std::size_t got; (got = std::fread(part, 1, sizeof part, pFile)) > 0;)
        text.append(part, got);
    return std::ferror(pFile) ? path + ": " + editor::SystemErrorText(errno) : std::string();
}

// Qt's warnings speak of its own affairs, and of pictures whose trouble the editor tells itself.
void ShowOnlyTrouble(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "editor: %s\n", qPrintable(message));
}

// In a process of its own, which whatever happens to this one does not concern.
std::string OpenWindow(const std::string& path)
{
    const QString program = QCoreApplication::applicationFilePath();
    return QProcess::startDetached(program, {"--", QFile::decodeName(path.c_str())}) ? "" : "no program can be started";
}

std::string MarkFolder()
{
    const std::string home = editor::StateHome();
    return home.empty() ? home : home + "/views";
}

// What was under way when the program, or the machine, was stopped.
void TellInterrupted()
{
    std::string text;
    for (const std::string& line : editor::TakeInterrupted(MarkFolder()))
        text += line + '\n';
    if (!text.empty())
        AfxMessageBox(("The program was stopped in the middle of this:\n" + text +
                       "What was done by then is there, and no object is half. What was removed is in the trash.")
                          .c_str(),
                      MB_OK | MB_ICONINFORMATION);
}

int Show(QApplication& application, const editor::CommandLine& line, const editor::EndSignals& ending)
{
    QSocketNotifier asked(ending.GetHandle(), QSocketNotifier::Read);
    application.setWindowIcon(MakeIcon());
    qtdesktop::QtDesktop desktop;
    editor::EditorApp editor(Reader(), {.size = line.size,
                                        .isSizeNamed = line.isSizeNamed,
                                        .settingsPath = line.isForgetful ? "" : editor::SettingsPath(),
                                        .isReturning = !line.isFolderNamed,
                                        .markFolder = MarkFolder(),
                                        .openWindow = OpenWindow,
                                        .onClosed = [&] { application.quit(); },
                                        .isFollowing = true});
    if (const std::string error = editor.OpenPath(line.folder); !error.empty())
        return Refuse(error);
    toolkit::PostTask(TellInterrupted);
    // As if the user closed the window, who may be asked. A second signal ends the program without a question, and so
    // does one while a question is open.
    QObject::connect(&asked, &QSocketNotifier::activated, &application, [&] {
        asked.setEnabled(false);
        if (QApplication::activeModalWidget() || !editor.GetMainWindow())
            application.exit();
        else
            toolkit::InputClose(editor.GetMainWindow());
    });
    return application.exec();
}

std::string WriteScreenshot(QWidget& window, const std::string& path)
{
    editor::Screenshot screenshot(path);
    if (screenshot.GetError().empty())
        screenshot.Write(window);
    return screenshot.GetError();
}

// Nobody is there to answer a question, and what went wrong the commands tell themselves.
class UnattendedDesktop : public qtdesktop::QtDesktop
{
public:
    int ShowMessageBox(HWND, LPCSTR, LPCSTR, UINT nType) override { return nType & MB_YESNO ? IDNO : IDOK; }
};

int RunScript(const editor::CommandLine& line, const editor::EndSignals& ending)
{
    std::string text;
    if (const std::string reason = ReadScript(line.script, text); !reason.empty())
        return Refuse(reason);
    UnattendedDesktop desktop;
    editor::EditorApp editor(Reader(),
                             {.size = line.size, .isSizeNamed = true, .markFolder = MarkFolder(), .onClosed = {}});
    if (const std::string error = editor.OpenFolder(line.folder); !error.empty())
        return Refuse(error);
    QCoreApplication::processEvents(); // the window takes its place
    editor::Script script(editor, {.print = [](const std::string& name) { std::printf("%s\n", name.c_str()); },
                                   .takeScreenshot =
                                       [&](const std::string& path) {
                                           return WriteScreenshot(*desktop.FindWidget(editor.GetMainWindow()), path);
                                       },
                                   .isToEnd = [&] { return ending.GetLast() != 0; }});
    const std::string failure = script.Run(line.script, text);
    if (!failure.empty())
        std::fprintf(stderr, "%s\n", failure.c_str());
    return failure.empty() ? 0 : kCommandFailed;
}

int TakeScreenshot(const editor::CommandLine& line, const std::string& trouble, const editor::EndSignals& ending)
{
    editor::Screenshot screenshot(line.screenshot);
    if (!screenshot.GetError().empty())
        return Refuse(screenshot.GetError());

    qtdesktop::QtDesktop desktop;
    editor::EditorApp editor(Reader(), {.size = line.size, .isSizeNamed = true, .onClosed = {}});
    if (const std::string error = editor.OpenFolder(line.folder); !error.empty())
        return Refuse(error);
    QCoreApplication::processEvents(); // the window takes its place
    editor.WaitUntilSettled([&] { return ending.GetLast() != 0; });
    if (ending.GetLast() != 0)
        return 0;
    if (!screenshot.Write(*desktop.FindWidget(editor.GetMainWindow())))
        return Refuse(screenshot.GetError());
    if (!trouble.empty())
        std::printf("No window, for %s; its picture is in %s\n", trouble.c_str(), screenshot.GetPath().c_str());
    return 0;
}

// Decoders that are at work use what the application, or the end of the program, takes away.
int EndAtOnce(int nStatus)
{
    if (!editor::QtPictureReader::IsReading())
        return nStatus;
    std::fflush(nullptr);
    std::_Exit(nStatus);
}

} // namespace

int main(int argc, char* argv[])
{
    editor::CommandLine line = editor::ParseCommandLine({argv + 1, argv + argc});
    if (!line.error.empty())
        return Refuse(line.error);
    if (line.help) {
        std::printf("%s", editor::CommandLineHelp().c_str());
        return 0;
    }
    std::signal(SIGXFSZ, SIG_IGN); // a file that would be too large is an error of its writing, not the program's end
    const editor::EndSignals ending;
    editor::RemoveLeftTransfers();

    const bool bWindow = line.screenshot.empty() && line.script.empty();
    const editor::Display display = bWindow ? editor::FindDisplay() : editor::Display();
    const std::string platform = display.usable ? display.platform : "offscreen";
    if (line.folder.empty() && bWindow && display.usable)
        line.folder =
            editor::FirstFolder(line.isForgetful ? editor::Settings() : editor::ReadSettings(editor::SettingsPath()));
    else if (line.folder.empty())
        line.folder = line.script.empty() ? editor::SampleFolder() : editor::FirstFolder(editor::Settings());
    if (!platform.empty())
        qputenv("QT_QPA_PLATFORM", platform.c_str());
    qInstallMessageHandler(ShowOnlyTrouble);
    QApplication application(argc, argv);
    application.setApplicationName("Views");
    application.setDesktopFileName("views-editor");
    application.setQuitOnLastWindowClosed(false); // the editor tells when it is closed
    const int nStatus = !line.script.empty() ? RunScript(line, ending)
                        : display.usable     ? Show(application, line, ending)
                                             : TakeScreenshot(line, display.trouble, ending);
    return EndAtOnce(ending.GetLast() != 0 ? kEndedBySignal + ending.GetLast() : nStatus);
}
