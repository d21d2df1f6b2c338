// What one movement of a drag costs over a list that would take it: a file of 100 MB in its transfer file, or a small
// one.
#include "Editor/archive/ArchiveWriter.h"
#include "Toolkit/desktop/OfferedData.h"
#include "Toolkit/exchange/ClipboardFormat.h"
#include "Toolkit/exchange/DragTracker.h"
#include "Views/clipboard/clipboard.h"
#include "bench/BenchWindow.h"
#include "bench/EditorServices.h"
#include "tests/support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;

// A file of that size, and an empty library beside it.
struct DragFolder : TempFolder
{
    explicit DragFolder(std::int64_t nBytes) : TempFolder(fs::temp_directory_path())
    {
        fs::create_directory(At("library"));
        std::ofstream(At("walk.png"), std::ios::binary) << std::string(static_cast<std::size_t>(nBytes), 'w');
    }
};

// A drag of another program, by the path of its transfer file.
class DraggedFile : public toolkit::OfferedData
{
public:
    DraggedFile(const std::string& file, CLIPFORMAT format) : m_kind(toolkit::KindsOfFormat(format).front())
    {
        const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
        editor::ArchiveWriter writer(*pArchive.Get());
        if (!writer.AddPath(file, {}).empty() || !writer.Finish().empty())
            throw std::runtime_error("no archive");
        m_transferFile = FileFromArchive(pArchive.Get());
    }

    std::vector<std::string> GetKinds() override { return {m_kind}; }
    std::optional<std::string> Render(std::string_view) override { return m_transferFile + std::string(1, '\0'); }

private:
    const std::string m_kind;
    std::string m_transferFile;
};

void DragOverList(benchmark::State& state)
{
    const DragFolder folder(state.range(0));
    setenv("TEMP", folder.At("").c_str(), 1);
    bench::EditorServices services;
    editor::CAtomEditor& atomEditor = services.atomEditor;
    const auto pLibrary = services.OpenLibrary(folder.At("library"));
    {
        bench::ListWindow window;
        window.view.OnAtomEntered(pLibrary.Get(), nullptr);
        const HWND hTop = ::GetParent(window.view.m_hWnd);
        toolkit::DragTracker drag(std::make_shared<DraggedFile>(folder.At("walk.png"), atomEditor.GetClipboardFormat()),
                                  DROPEFFECT_COPY | DROPEFFECT_MOVE);
        drag.MoveTo(hTop, {500, 400}, MK_LBUTTON);
        int x = 500;
        for (auto _ : state) {
            x = 1001 - x;
            if (drag.MoveTo(hTop, {x, 400}, MK_LBUTTON) != DROPEFFECT_MOVE)
                state.SkipWithError("not taken");
        }
    }
    atomEditor.ForgetAtoms();
    unsetenv("TEMP");
}

BENCHMARK(DragOverList)->ArgName("bytes")->Arg(1000)->Arg(100'000'000)->Unit(benchmark::kMicrosecond);

} // namespace
