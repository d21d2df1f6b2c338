// What it costs to copy 1,000 pictures of together 100 MB and to paste them into another folder of the same disk,
// beside `cp -r` of the same files. Both in the disk's cache, neither waiting for the disk itself.
#include "Editor/model/Library.h"
#include "Editor/services/Services.h"
#include "Editor/services/StateHandler.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/ole/DataObject.h"
#include "Toolkit/ole/DataSource.h"
#include "Views/clipboard/clipboard.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;

constexpr int kFiles = 1000;
constexpr int kBytes = 100'000; // of each

class NoPictures : public editor::PictureReader
{
public:
    std::vector<std::string> Extensions() const override { return {"png"}; }
    editor::DecodedPicture Read(const std::string&, CSize, int) const override { return {{}, {}, "not read here"}; }
};

// A library with the pictures in "From"; transfer files come beside it. Gone at the end of the program, not before: a
// file system that has just deleted many files is slow to make new ones for a while.
class CopyFolder
{
public:
    CopyFolder() : m_path((fs::temp_directory_path() / "views-copy-XXXXXX").string())
    {
        if (!mkdtemp(m_path.data()))
            throw std::runtime_error("no temporary folder");
        fs::create_directories(At("library/From"));
        std::string bytes(kBytes, '\0');
        for (int i = 0; i < kFiles; ++i) {
            for (std::size_t at = 0; at < bytes.size(); at += 8)
                bytes[at] = static_cast<char>(at * 31 + static_cast<std::size_t>(i));
            std::ofstream(At("library/From/picture " + std::to_string(i) + ".png"), std::ios::binary) << bytes;
        }
    }
    ~CopyFolder() { fs::remove_all(m_path); }
    CopyFolder(const CopyFolder&) = delete;
    CopyFolder& operator=(const CopyFolder&) = delete;

    std::string At(const std::string& name) const { return m_path + '/' + name; }
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
        return std::distance(fs::directory_iterator(to), {}) == kFiles && fs::file_size(to / "picture 7.png") == kBytes;
    }

private:
    std::string m_path;
    int m_nTargets = 0;
};

CopyFolder& Folder()
{
    static CopyFolder s_folder;
    return s_folder;
}

// All members of a container are selected.
class Selection final : public editor::CStateHandler
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

void CopyAndPaste(benchmark::State& state)
{
    CopyFolder& folder = Folder();
    setenv("TEMP", folder.At("").c_str(), 1);
    const NoPictures reader;
    const auto pPictures =
        std::make_shared<editor::PictureStore>(reader, editor::PictureStore::Limits(), [](IAtom*) {});
    editor::CAtomEditor atomEditor;
    const editor::Services services(atomEditor);
    for (auto _ : state) {
        state.PauseTiming();
        COleDataSource::FlushClipboard(); // what becomes of the former copy is not this one's cost
        const std::string target = folder.NewTarget();
        std::string error;
        const auto pLibrary = editor::CLibrary::Open(folder.At("library"), reader.Extensions(), pPictures, error);
        const auto pFrom = Member(*pLibrary.Get(), "From"), pTo = Member(*pLibrary.Get(), target.c_str());
        Selection selection(pFrom.Get());
        const DWORD cookie = atomEditor.RegisterHandler(nullptr, &selection);
        atomEditor.NotifyHandlers(&selection, &IAEStateHandler::OnAtomSelected, nullptr, nullptr, 0);
        state.ResumeTiming();

        const bool bCopied = CopyObjects(FALSE) && PasteInto(atomEditor, pTo.Get());

        state.PauseTiming();
        atomEditor.UnregisterHandler(cookie);
        atomEditor.ForgetAtoms();
        if (!bCopied || !folder.IsCopied(target))
            state.SkipWithError("not copied");
        state.ResumeTiming();
    }
    COleDataSource::FlushClipboard();
    unsetenv("TEMP");
}

void CpRecursively(benchmark::State& state)
{
    CopyFolder& folder = Folder();
    for (auto _ : state) {
        state.PauseTiming();
        const std::string target = folder.NewTarget();
        const std::string command =
            "cp -r '" + folder.At("library/From") + "/.' '" + folder.At("library/" + target) + '\'';
        state.ResumeTiming();
        if (std::system(command.c_str()) != 0 || !folder.IsCopied(target))
            state.SkipWithError("not copied");
    }
}

BENCHMARK(CpRecursively)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(CopyAndPaste)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

} // namespace
