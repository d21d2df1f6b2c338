// How long the editor leaves an input unanswered while the user scrolls through a folder of photographs whose
// thumbnails are being read meanwhile; with the argument "work" while it copies, pastes, removes and puts back 1,000
// pictures of together 100 MB and one file of 1 GB, beside 60,000 others; with "large" while it scrolls through the
// largest thumbnails, ten times from the start, and how much memory it holds after each.
//
// A thread turns the wheel in a steady beat, whatever the editor does. An input counts as answered when the list has
// scrolled by it; its wait begins when it was put into Qt's queue. Prints the waits of all inputs.
#include "Editor/EditorApp.h"
#include "Editor/app/QtPictureReader.h"
#include "Editor/frame/MainFrame.h"
#include "QtDesktop/QtDesktop.h"
#include "bench/Stopwatch.h"
#include "tests/support/TempFolder.h"

#include <QApplication>
#include <QImage>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>
#include <vector>

namespace
{

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kPictures = 10'000;
constexpr int kDifferent = 20; // the others are links to these
constexpr int kInputs = 800;
constexpr auto kPatience = std::chrono::milliseconds(500);
constexpr auto kBeat = std::chrono::milliseconds(10);
constexpr int kTurn = -240; // two notches down: 800 of them nearly reach the end

class Photographs : public TempFolder
{
public:
    Photographs() : TempFolder(fs::temp_directory_path())
    {
        for (int i = 0; i < kPictures; ++i) {
            const fs::path path = PathOf(i);
            if (i < kDifferent)
                Photograph(i).save(QString::fromStdString(path.string()), "jpg", 85);
            else
                fs::create_hard_link(PathOf(i % kDifferent), path);
        }
    }

private:
    fs::path PathOf(int i) const { return At(std::to_string(10'000 + i) + ".jpg"); }

    static QImage Photograph(int i)
    {
        QImage image(1024, 768, QImage::Format_RGB32);
        unsigned noise = static_cast<unsigned>(i);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                noise = noise * 1664525u + 1013904223u;
                image.setPixel(x, y, qRgb(x / 4, (y / 3 + 12 * i) & 255, 96 + static_cast<int>(noise >> 27)));
            }
        return image;
    }
};

// Notes when inputs were put into the queue, and, after every event, how far the list has scrolled.
class WatchedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    // Turns once, which tells how far an input scrolls.
    void Watch(HWND hList, QWidget& window)
    {
        Turn(window);
        while (m_nStep == 0) {
            processEvents();
            m_nStep = Position(hList);
        }
        m_hList = hList;
    }
    void Turn(QWidget& window)
    {
        const QPointF at(window.width() - 60, window.height() / 2.0);
        const std::lock_guard lock(m_mutex);
        m_put.push_back(Clock::now());
        postEvent(&window, new QWheelEvent(at, at, {}, QPoint(0, kTurn), Qt::NoButton, Qt::NoModifier,
                                           Qt::NoScrollPhase, false));
    }
    const std::vector<double>& Waits() const { return m_waits; } // milliseconds

    // The waits of the inputs that come while the work goes on, which is done in one call.
    template <class Work>
    std::vector<double> WaitsDuring(QWidget& window, Work work)
    {
        m_put.clear();
        m_waits.clear();
        m_nInputs = 0; // ends no loop
        m_nFrom = Position(m_hList);
        std::atomic<bool> bOver = false;
        std::thread wheel([&] {
            for (; !bOver; std::this_thread::sleep_for(kBeat))
                Turn(window);
        });
        work();
        bOver = true;
        wheel.join();
        // Where the list itself has gone elsewhere at the end, the last inputs cannot be told from that.
        for (const auto until = Clock::now() + kPatience; !AreAllAnswered() && Clock::now() < until;)
            processEvents();
        return m_waits;
    }

    bool notify(QObject* pReceiver, QEvent* pEvent) override
    {
        const bool bResult = QApplication::notify(pReceiver, pEvent);
        if (m_hList)
            NoteAnswers();
        return bResult;
    }

private:
    bool AreAllAnswered()
    {
        const std::lock_guard lock(m_mutex);
        return m_waits.size() >= m_put.size();
    }
    static int Position(HWND hList)
    {
        SCROLLINFO info{};
        ::GetScrollInfo(hList, SB_VERT, &info);
        return info.nPos;
    }

    void NoteAnswers()
    {
        const auto nAnswered = static_cast<std::size_t>((Position(m_hList) - m_nFrom) / m_nStep);
        const std::lock_guard lock(m_mutex);
        while (m_waits.size() < std::min(nAnswered, m_put.size()))
            m_waits.push_back(std::chrono::duration<double, std::milli>(Clock::now() - m_put[m_waits.size()]).count());
        if (m_waits.size() == m_nInputs)
            QMetaObject::invokeMethod(
                this, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    }

    HWND m_hList = nullptr;
    int m_nStep = 0; // pixels for each input
    int m_nFrom = 0; // the list's position before the first
    std::size_t m_nInputs = kInputs;
    std::mutex m_mutex;
    std::vector<Clock::time_point> m_put;
    std::vector<double> m_waits;
};

int RowsPassed(HWND hList)
{
    return static_cast<int>(::SendMessage(hList, LVM_GETTOPINDEX, 0, 0) +
                            ::SendMessage(hList, LVM_GETCOUNTPERPAGE, 0, 0));
}

void PrintWaits(const char* pszWhat, std::vector<double> waits)
{
    std::sort(waits.begin(), waits.end());
    if (waits.empty())
        waits.push_back(0); // it was over before the first
    std::printf("%s: %zu inputs, %d ms apart: wait of half of them %.1f ms, of 99 %% %.1f ms, longest %.1f ms\n",
                pszWhat, waits.size(), static_cast<int>(kBeat.count()), waits[waits.size() / 2],
                waits[waits.size() * 99 / 100], waits.back());
}

int Scroll(WatchedApplication& application, qtdesktop::QtDesktop& desktop, editor::EditorApp& editor)
{
    const Photographs photographs;
    if (const std::string error = editor.OpenFolder(photographs.Path()); !error.empty())
        return std::fprintf(stderr, "%s\n", error.c_str()), 1;
    editor.GetFrame()->GetContent().ShowList(editor::ListKind::Thumbnails);
    QCoreApplication::processEvents();

    QWidget& window = *desktop.FindWidget(editor.GetMainWindow());
    const HWND hList = editor.GetFrame()->GetList().GetSafeHwnd();
    application.Watch(hList, window);
    std::thread wheel([&] {
        for (int i = 1; i < kInputs; ++i, std::this_thread::sleep_for(kBeat))
            application.Turn(window);
    });
    application.exec();
    wheel.join();
    std::printf("through %d of %d photographs\n", RowsPassed(hList), kPictures);
    PrintWaits("scrolling", application.Waits());
    return 0;
}

int ScrollLarge(WatchedApplication& application, qtdesktop::QtDesktop& desktop, editor::EditorApp& editor)
{
    constexpr int kRounds = 10;
    constexpr auto kRound = std::chrono::seconds(4);
    const Photographs photographs;
    if (const std::string error = editor.OpenFolder(photographs.Path()); !error.empty())
        return std::fprintf(stderr, "%s\n", error.c_str()), 1;
    editor.GetFrame()->GetContent().ShowList(editor::ListKind::Thumbnails);
    editor.GetFrame()->GetContent().SetThumbnailExtent(editor::Content::kMostThumbnail);
    QCoreApplication::processEvents();
    QWidget& window = *desktop.FindWidget(editor.GetMainWindow());
    const HWND hList = editor.GetFrame()->GetList().GetSafeHwnd();
    ::SendMessage(hList, LVM_ENSUREVISIBLE, 0, FALSE); // what was in the middle has stayed there
    application.Watch(hList, window);
    for (int i = 0; i < kRounds; ++i) {
        ::SendMessage(hList, LVM_ENSUREVISIBLE, 0, FALSE);
        PrintWaits("largest thumbnails", application.WaitsDuring(window, [&] {
            for (const auto until = Clock::now() + kRound; Clock::now() < until;)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }));
        std::printf("    through %d rows, %ld MB resident\n", RowsPassed(hList), bench::ResidentKilobytes() / 1024);
    }
    return 0;
}

// A library with much that is not touched, so that there is something to scroll through, and with much that is.
struct WorkFolder : TempFolder
{
    WorkFolder() : TempFolder(fs::temp_directory_path())
    {
        MakeFolder("library/A");
        MakeFolder("temp");
        for (int i = 0; i < 60'000; ++i)
            std::ofstream(Library() + '/' + std::to_string(i) + ".bmp");
        const std::string bytes(100'000, 'b');
        for (int i = 0; i < 1000; ++i)
            std::ofstream(At("library/A/" + std::to_string(i) + ".png"), std::ios::binary) << bytes;
        std::ofstream large(At("library/A/large.png"), std::ios::binary);
        for (int i = 0; i < 10'000; ++i)
            large << bytes;
        setenv("TEMP", At("temp").c_str(), 1);
        setenv("XDG_DATA_HOME", At("data").c_str(), 1);
    }
    std::string Library() const { return At("library"); }
};

int LongWork(WatchedApplication& application, qtdesktop::QtDesktop& desktop, editor::EditorApp& editor)
{
    const WorkFolder folder;
    if (const std::string error = editor.OpenFolder(folder.Library()); !error.empty())
        return std::fprintf(stderr, "%s\n", error.c_str()), 1;
    QCoreApplication::processEvents();
    editor::CMainFrame& frame = *editor.GetFrame();
    QWidget& window = *desktop.FindWidget(editor.GetMainWindow());
    application.Watch(frame.GetList().GetSafeHwnd(), window);
    editor::FrameCommands& commands = frame.GetCommands();
    std::vector<CStubRef<IAtom>> atoms(1);
    frame.ShownContainer()->FindAtom("A", atoms.front().Receive(), IID_IAtom);
    commands.SelectJust(atoms);

    int nFailed = 0;
    const auto measure = [&](const char* pszWhat, std::string (editor::FrameCommands::*command)()) {
        ::SendMessage(frame.GetList().GetSafeHwnd(), LVM_ENSUREVISIBLE, 0, FALSE);
        const auto begun = Clock::now();
        std::string reason;
        PrintWaits(pszWhat, application.WaitsDuring(window, [&] { reason = (commands.*command)(); }));
        nFailed += !reason.empty();
        std::printf("    %s, %.1f s in all\n", reason.empty() ? "done" : reason.c_str(),
                    std::chrono::duration<double>(Clock::now() - begun).count());
    };
    measure("copying", &editor::FrameCommands::Copy);
    measure("pasting", &editor::FrameCommands::Paste);
    measure("taking the paste back", &editor::FrameCommands::Undo);
    commands.SelectJust(atoms);
    measure("removing", &editor::FrameCommands::Remove);
    measure("taking the removal back", &editor::FrameCommands::Undo);
    return nFailed;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    WatchedApplication application(argc, argv);
    const editor::QtPictureReader reader;
    qtdesktop::QtDesktop desktop;
    editor::EditorApp editor(reader, {.size = {1280, 800}, .onClosed = {}});
    const std::string_view what = argc > 1 ? argv[1] : "";
    return what == "work"    ? LongWork(application, desktop, editor)
           : what == "large" ? ScrollLarge(application, desktop, editor)
                             : Scroll(application, desktop, editor);
}
