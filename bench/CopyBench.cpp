// What it costs to copy pictures and to paste them into another folder of the same disk, beside `cp -r` of the same
// files: 1,000 of together 100 MB, and one of 1 GB. Both in the disk's cache, neither waiting for the disk itself.
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/DataObject.h"
#include "Toolkit/exchange/DataSource.h"
#include "Views/clipboard/clipboard.h"
#include "Views/host/StateHandler.h"
#include "bench/EditorServices.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;

struct Load
{
    int nFiles, nBytes; // of each
};
constexpr Load kMany{1000, 100'000};
constexpr Load kLarge{1, 1'000'000'000};

// A library with the pictures in "From"; transfer files come beside it. Goes at the end of a race.
class CopyFolder : public TempFolder
{
public:
    explicit CopyFolder(Load load) : TempFolder(fs::temp_directory_path()), m_load(load)
    {
        fs::create_directories(At("library/From"));
        std::string bytes(static_cast<std::size_t>(load.nBytes), '\0');
        for (int i = 0; i < load.nFiles; ++i) {
            for (std::size_t at = 0; at < bytes.size(); at += 8)
                bytes[at] = static_cast<char>(at * 31 + static_cast<std::size_t>(i));
            std::ofstream(At("library/From/picture " + std::to_string(i) + ".png"), std::ios::binary) << bytes;
        }
    }
    // A new folder in the library.
    std::string NewTarget()
    {
        const std::string name = "To " + std::to_string(++m_nTargets);
        fs::create_directory(At("library/" + name));
        return name;
    }
    bool IsCopied(const std::string& name) const
    {
        const fs::path to = At("library/" + name);
        return std::distance(fs::directory_iterator(to), {}) == m_load.nFiles &&
               fs::file_size(to / "picture 0.png") == static_cast<std::uintmax_t>(m_load.nBytes);
    }

private:
    const Load m_load;
    int m_nTargets = 0;
};

// All members of a container are selected.
class Selection final : public CStateHandler
{
public:
    explicit Selection(IAtomContainer* pContainer) : m_pContainer(pContainer) {}

    BOOL OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount) override
    {
        *pCount = m_pContainer->GetCount();
        for (DWORD i = 0; pairs && i < *pCount; ++i) {
            CStubRef<IAtom> pAtom;
            m_pContainer->GetAtoms(i, 1, pAtom.Receive(), IID_IAtom);
            pairs[i] = {pAtom.Detach(), CStubRef<IAtomContainer>::Share(m_pContainer).Detach()};
        }
        return pairs != nullptr;
    }

private:
    IAtomContainer* const m_pContainer;
};

CStubRef<IAtomContainer> Member(editor::CLibrary& library, const char* pszName)
{
    CStubRef<IAtomContainer> pMember;
    library.FindAtom(pszName, pMember.Receive(), IID_IAtomContainer);
    return pMember;
}

bool PasteInto(editor::CAtomEditor& atomEditor, IAtomContainer* pContainer)
{
    COleDataObject data;
    if (!data.AttachClipboard())
        return false;
    const HGLOBAL hPath = data.GetGlobalData(atomEditor.GetClipboardFormat());
    const auto pArchive = CStubRef<IArchive>::Adopt(ArchiveFromHGLOBAL(hPath));
    GlobalFree(hPath);
    return pArchive && PasteObjects(pArchive.Get(), pContainer, FALSE);
}

// What copying all pictures into a new folder and the same with `cp -r` cost, in milliseconds.
class CopyRace
{
public:
    explicit CopyRace(Load load) : m_folder(load) { setenv("TEMP", m_folder.At("").c_str(), 1); }
    ~CopyRace()
    {
        COleDataSource::FlushClipboard();
        unsetenv("TEMP");
    }
    CopyRace(const CopyRace&) = delete;
    CopyRace& operator=(const CopyRace&) = delete;

    double Views();
    double Cp();
    bool HasFailed() const { return m_bFailed; }

private:
    template <class Work>
    double Time(const std::string& target, Work work)
    {
        sync(); // what the other one has left to be written is not this one's cost
        const auto start = std::chrono::steady_clock::now();
        const bool bDone = work();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        m_bFailed |= !bDone || !m_folder.IsCopied(target);
        return taken.count();
    }

    CopyFolder m_folder;
    bench::EditorServices m_services;
    editor::CAtomEditor& m_atomEditor = m_services.atomEditor;
    bool m_bFailed = false;
};

double CopyRace::Views()
{
    COleDataSource::FlushClipboard(); // what becomes of the former copy is not this one's cost
    const std::string target = m_folder.NewTarget();
    const auto pLibrary = m_services.OpenLibrary(m_folder.At("library"));
    const auto pFrom = Member(*pLibrary.Get(), "From"), pTo = Member(*pLibrary.Get(), target.c_str());
    Selection selection(pFrom.Get());
    const DWORD cookie = m_atomEditor.RegisterHandler(nullptr, &selection);
    m_atomEditor.NotifyHandlers(&selection, &IAEStateHandler::OnAtomSelected, nullptr, nullptr, 0);
    const double taken = Time(target, [&] { return CopyObjects(FALSE) && PasteInto(m_atomEditor, pTo.Get()); });
    m_atomEditor.UnregisterHandler(cookie);
    m_atomEditor.ForgetAtoms();
    return taken;
}

double CopyRace::Cp()
{
    const std::string target = m_folder.NewTarget();
    const std::string command =
        "cp -r '" + m_folder.At("library/From") + "/.' '" + m_folder.At("library/" + target) + '\'';
    return Time(target, [&] { return std::system(command.c_str()) == 0; });
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

// In turn, so that both meet the file system and the memory in the same state; a first pair that finds neither ready
// does not count.
void CopyAndPaste(benchmark::State& state, Load load)
{
    CopyRace race(load);
    race.Cp();
    race.Views();
    std::vector<double> cp, views;
    for (auto _ : state) {
        cp.push_back(race.Cp());
        views.push_back(race.Views());
        state.SetIterationTime(views.back() / 1000);
    }
    if (race.HasFailed())
        state.SkipWithError("not copied");
    state.counters["cp_ms"] = Median(cp);
    state.counters["median_ms"] = Median(views);
    state.counters["times_cp"] = Median(views) / Median(cp);
}

BENCHMARK_CAPTURE(CopyAndPaste, many, kMany)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(9);
BENCHMARK_CAPTURE(CopyAndPaste, large, kLarge)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace
