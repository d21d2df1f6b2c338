// What the editor adds to reading a directory when it opens a folder of 100,000 pictures.
#include "Editor/EditorApp.h"
#include "Editor/commands/CommandTable.h"
#include "Editor/frame/MainFrame.h"
#include "Toolkit/run/Run.h"
#include "bench/EditorServices.h"
#include "tests/support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;

constexpr int kPictures = 100'000;

// Of empty files.
struct PictureFolder : TempFolder
{
    PictureFolder() : TempFolder(std::filesystem::temp_directory_path())
    {
        for (int i = 0; i < kPictures; ++i)
            std::ofstream(At("picture " + std::to_string(i * 7919 % kPictures) + ".png"));
    }
};

const TempFolder& Folder()
{
    static const PictureFolder s_folder;
    return s_folder;
}

void ReadTheDirectory(benchmark::State& state)
{
    const std::string path = Folder().Path();
    for (auto _ : state) {
        DIR* directory = opendir(path.c_str());
        long nNames = 0;
        while (const dirent* entry = readdir(directory))
            nNames += entry->d_name[0] != '.';
        closedir(directory);
        if (nNames != kPictures)
            state.SkipWithError("the folder does not hold what was put into it");
    }
}

// From the folder's name to the first complete frame, the window's making included: list and tree show all of it.
void OpenTheFolder(benchmark::State& state)
{
    const std::string path = Folder().Path();
    const bench::NoPictures reader;
    for (auto _ : state) {
        auto pApp = std::make_unique<editor::EditorApp>(
            reader, editor::EditorApp::Options{.size = {1024, 768}, .onClosed = {}});
        const std::string error = pApp->OpenFolder(path);
        toolkit::RunPendingMessages();

        state.PauseTiming();
        if (!error.empty())
            state.SkipWithError(error.c_str());
        pApp.reset();
        state.ResumeTiming();
    }
}

// F5, when nothing has changed.
void RefreshTheFolder(benchmark::State& state)
{
    const bench::NoPictures reader;
    editor::EditorApp app(reader, {.size = {1024, 768}, .onClosed = {}});
    if (const std::string error = app.OpenFolder(Folder().Path()); !error.empty())
        state.SkipWithError(error.c_str());
    toolkit::RunPendingMessages();
    for (auto _ : state) {
        app.GetFrame()->SendMessage(WM_COMMAND, editor::ID_REFRESH);
        toolkit::RunPendingMessages();
    }
}

BENCHMARK(ReadTheDirectory)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenTheFolder)->Unit(benchmark::kMillisecond);
BENCHMARK(RefreshTheFolder)->Unit(benchmark::kMillisecond);

} // namespace
