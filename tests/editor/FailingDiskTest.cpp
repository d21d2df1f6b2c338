// The editor's commands with each operation on the disk failing once.
#include "tests/support/FailingDisk.h"

#include "Editor/disk/TempEntry.h"
#include "Editor/frame/MainFrame.h"
#include "Editor/script/Script.h"
#include "Toolkit/headless/HeadlessDesktop.h"
#include "tests/editor/BmpReader.h"
#include "tests/support/AllocationFailures.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <sys/mman.h>

namespace
{

namespace fs = std::filesystem;

struct Command
{
    const char* pszName;
    const char* pszBefore; // a script that all goes well with
    const char* pszLine;   // what the disk fails under; NULL: the saving of a phase
};

void PrintTo(const Command& command, std::ostream* pStream)
{
    *pStream << command.pszName;
}

// What a process of its own leaves behind, however it ends.
struct Outcome
{
    int nOperations;
    FailOperation::Operation operations[2000];
    char reason[1000], transferred[20'000];
    bool bOver;

    std::string Transferred() const { return {transferred, sizeof transferred}; }
};

// The files below a folder by their paths; those in the making are left out.
using Files = std::map<std::string, std::string>;

Files FilesIn(const std::string& folder)
{
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().string().find("/.views-new-") == std::string::npos)
            files[entry.path().string().substr(folder.size() + 1)] = TempFolder::ReadFile(entry.path().string());
    return files;
}

std::string AllOf(const Files& files)
{
    std::string all;
    for (const auto& [path, content] : files)
        all += content + '\0';
    return all;
}

class FailingDiskTest : public testing::TestWithParam<Command>
{
protected:
    void SetUp() override
    {
        setenv("XDG_DATA_HOME", folder.At("data").c_str(), 1);
        setenv("TEMP", folder.At("temp").c_str(), 1);
        void* const p = mmap(nullptr, sizeof(Outcome), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        m_pOutcome = static_cast<Outcome*>(p);
        MakeLibrary();
        before = FilesIn(folder.At("library"));
        whole = Run();
        ASSERT_STREQ("", whole.reason);
        ASSERT_GT(whole.nOperations, 0);
        asked = FilesIn(folder.At("library"));
    }
    ~FailingDiskTest() override
    {
        munmap(m_pOutcome, sizeof(Outcome));
        unsetenv("TEMP");
        unsetenv("XDG_DATA_HOME");
    }

    void MakeLibrary() const
    {
        for (const auto& part : fs::directory_iterator(folder.Path()))
            fs::remove_all(part);
        folder.MakeFolder("data");
        folder.MakeFolder("temp");
        for (const char* const pszPicture : {"Ada/a.bmp", "Ada/Poses/one.bmp", "Ada/Poses/two.bmp", "Bo/b.bmp"})
            folder.Write(std::string("library/") + pszPicture,
                         "BMP " + std::string(50, *(pszPicture + 4)) + pszPicture);
        folder.Write("library/Ada/walk.phase", "a.bmp\nPoses/one.bmp\nPoses/two.bmp\n");
    }

    // In a process of its own.
    const Outcome& Run(int nth = 0, DiskFault fault = DiskFault::InputOutput)
    {
        MakeLibrary();
        std::memset(m_pOutcome, 0, sizeof(Outcome));
        const bool bDied = fault == DiskFault::Death && nth > 0;
        EXPECT_EQ(bDied ? kDiskDeath : 0, InChild([&] { return RunHere(nth, fault), HasFailure(); }))
            << "operation " << nth << ", fault " << static_cast<int>(fault);
        if (!m_pOutcome->bOver)
            Note(m_pOutcome->transferred, AllOf(FilesIn(folder.At("temp"))));
        return *m_pOutcome;
    }

    template <std::size_t size>
    static void Note(char (&to)[size], const std::string& text)
    {
        std::memcpy(to, text.data(), std::min(text.size(), size - 1));
    }

    void RunHere(int nth, DiskFault fault) noexcept
    {
        {
            toolkit::HeadlessDesktop desktop;
            BmpReader reader;
            editor::EditorApp app(reader, {.size = {1, 1}, .onClosed = {}});
            EXPECT_EQ("", app.OpenFolder(folder.At("library")));
            editor::Script script(app, {.print = [](const auto&) {}, .takeScreenshot = {}});
            EXPECT_EQ("", script.Run("before", command.pszBefore));
            const auto pPhase = command.pszLine ? CStubRef<editor::CPhase>() : PhaseToSave(*app.GetFrame());
            AwaitIndex(app);
            {
                const FailOperation fail(nth, fault);
                Note(m_pOutcome->reason, pPhase ? pPhase->SaveTiming() : script.Run("test", command.pszLine));
            }
            m_pOutcome->nOperations = static_cast<int>(FailOperation::Seen().size());
            std::copy(FailOperation::Seen().begin(), FailOperation::Seen().end(), m_pOutcome->operations);
            Note(m_pOutcome->transferred, AllOf(FilesIn(folder.At("temp"))));
        }
        EXPECT_TRUE(fs::is_empty(folder.At("temp"))) << "a transfer file stays";
        m_pOutcome->bOver = true;
    }

    // Its first look goes on beside everything else.
    static void AwaitIndex(const editor::EditorApp& app)
    {
        const editor::LibraryContext& library = app.GetFrame()->GetNavigation().Library()->Context();
        library.pFollower->CountBroken({}, library.work);
    }
    static CStubRef<editor::CPhase> PhaseToSave(const editor::CMainFrame& frame)
    {
        CStubRef<IAtom> pAtom;
        frame.ShownContainer()->FindAtom("walk.phase", pAtom.Receive(), IID_IAtom);
        auto pPhase = CStubRef<editor::CPhase>::Share(dynamic_cast<editor::CPhase*>(pAtom.Get()));
        pPhase->SetTiming({7, 3});
        return pPhase;
    }

    // What is wrong with the disk after a command, and with what it said; empty: nothing.
    std::string Trouble(const Outcome& outcome, DiskFault fault) const
    {
        const Files now = FilesIn(folder.At("library"));
        const std::string kept = AllOf(FilesIn(folder.Path())) + outcome.Transferred(); // in the trash, too
        for (const auto& files : {before, asked, now})
            for (const auto& [path, content] : files)
                if (Object(now, path) != Object(before, path) && Object(now, path) != Object(asked, path) &&
                    !IsPhaseOfBoth(now, before, asked, path))
                    return path + " is half there";
        for (const auto& [path, content] : before)
            if (path.ends_with(".bmp") && kept.find(content) == kept.npos)
                return path + " is nowhere";
        if (outcome.bOver && folder.Everything().find("/.views-new-") != std::string::npos)
            return "something is left over";
        if (outcome.bOver)
            return TroubleOfReason(outcome.reason, now == asked, fault);
        return {};
    }

    // Where some objects came and others did not, a phase follows those.
    static bool IsPhaseOfBoth(Files now, Files before, Files asked, const std::string& path)
    {
        std::istringstream n(now[path]), b(before[path]), a(asked[path]);
        std::string is, was, shouldBe;
        while (std::getline(n, is) && std::getline(b, was) && std::getline(a, shouldBe))
            if (is != was && is != shouldBe)
                return false;
        return path.ends_with(".phase") && n.eof() &&
               std::ranges::count(now[path], '\n') == std::ranges::count(before[path], '\n');
    }
    // What belongs together: a file of a container, or all that is in a folder there.
    static Files Object(const Files& files, const std::string& path)
    {
        const std::string object = path.substr(0, path.find('/', path.find('/') + 1));
        Files found;
        for (const auto& file : files)
            if (file.first == object || file.first.starts_with(object + '/'))
                found.insert(file);
        return found;
    }

    static std::string TroubleOfReason(const std::string& reason, bool bDone, DiskFault fault)
    {
        const std::string why = fault == DiskFault::InputOutput ? "input/output error"
                                : fault == DiskFault::Forbidden ? "permission denied"
                                                                : "no space left on device";
        const bool bNames = std::ranges::any_of(
            std::initializer_list<const char*>{
                "a.bmp: ", "Poses: ", "one.bmp: ", "two.bmp: ", "walk.phase: ", "Bo: ", "Ada: ", "Zoe: ", "library: ",
                "no file can be made for it: ", "what was copied cannot be read: "},
            [&](const char* pszName) { return reason.find(pszName) != reason.npos; });
        if (reason.empty())
            return bDone ? "" : "not done, and nothing said";
        return bNames && reason.find(why) != reason.npos ? "" : "says " + reason;
    }

    // What a crash has left over goes when the folders are read the next time, by another process.
    std::string LeftOver() const
    {
        InChild([&] {
            std::string error;
            editor::LongWork work;
            const auto pLibrary = editor::CLibrary::Open(folder.At("library"), {"bmp"}, nullptr, work, error);
            for (const char* const pszFolder : {"Ada", "Bo"}) {
                CStubRef<IAtomContainer> pContainer;
                if (pLibrary->FindAtom(pszFolder, pContainer.Receive(), IID_IAtomContainer))
                    pContainer->GetCount();
            }
            return 0;
        });
        for (const auto& entry : fs::recursive_directory_iterator(folder.Path()))
            if (entry.path().string().find("/.views-new-") != std::string::npos)
                return entry.path().string() + " stays for ever";
        return {};
    }

    TempFolder folder;
    const OwnFileSystem disk{folder.Path()}; // the trashes of the machine's own are left alone

    const Command& command = GetParam();
    Files before, asked; // what is in the library, as it is and when all has gone well
    Outcome whole{};

private:
    Outcome* m_pOutcome = nullptr;
};

TEST_P(FailingDiskTest, LeavesEachObjectAsItWasOrAsAskedAndSaysWhyNot)
{
    int nRuns = 0;
    for (int nth = 1; nth <= whole.nOperations; ++nth) {
        for (const auto fault : {DiskFault::InputOutput, DiskFault::Forbidden, DiskFault::Full, DiskFault::HalfWritten,
                                 DiskFault::Death}) {
            const FailOperation::Operation& operation = whole.operations[nth - 1];
            if (!FailOperation::CanHappen(operation, fault))
                continue;
            ++nRuns;
            const Outcome& outcome = Run(nth, fault);
            std::string trouble = Trouble(outcome, fault);
            if (trouble.empty() && !outcome.bOver)
                trouble = LeftOver();
            EXPECT_EQ("", trouble) << operation.pszName << ", " << nth << " of " << whole.nOperations << ", fault "
                                   << static_cast<int>(fault);
        }
    }
    EXPECT_LT(whole.nOperations, nRuns);
}

// In one process; the library is made anew after each time.
TEST_P(FailingDiskTest, WithoutMemoryEachObjectIsAsItWasOrAsAskedToo)
{
    MakeLibrary();
    toolkit::HeadlessDesktop desktop;
    BmpReader reader;
    editor::EditorApp app(reader, {.size = {1, 1}, .onClosed = {}});
    ASSERT_EQ("", app.OpenFolder(folder.At("library")));
    editor::Script script(app, {.print = [](const auto&) {}, .takeScreenshot = {}});
    for (int nth = 1; nth == 1 || FailAllocation::HasFailed(); ++nth) {
        EXPECT_EQ("", script.Run("before", command.pszBefore));
        const auto pPhase = command.pszLine ? CStubRef<editor::CPhase>() : PhaseToSave(*app.GetFrame());
        AwaitIndex(app);
        {
            const FailAllocation fail(nth);
            try {
                pPhase ? pPhase->SaveTiming() : script.Run("test", command.pszLine);
            } catch (const std::bad_alloc&) {
                desktop.Run(); // the program has told of it, and goes on
            }
        }
        Outcome outcome{};
        Note(outcome.transferred, AllOf(FilesIn(folder.At("temp"))));
        ASSERT_EQ("", Trouble(outcome, DiskFault::Full)) << "allocation " << nth;
        EXPECT_EQ(std::string::npos, folder.Everything().find("/.views-new-")) << "allocation " << nth;
        MakeLibrary();
        ASSERT_EQ("", app.OpenFolder(folder.At("library")));
    }
}

const Command kCommands[] = {
    {"Copy", "enter Ada\nselect a.bmp Poses", "copy"},
    {"Cut", "enter Ada\nselect a.bmp Poses", "cut"},
    {"CutLine", "enter Ada/walk.phase\nselect a.bmp two.bmp", "cut"},
    {"Paste", "enter Ada\nselect a.bmp Poses\ncopy\nenter /Bo", "paste"},
    {"PasteWhatWasCut", "enter Ada\nselect a.bmp Poses\ncut\nenter /Bo", "paste"},
    {"PastePhase", "enter Ada\nselect walk.phase\ncopy\nenter /Bo", "paste"},
    {"PasteIntoPhase", "enter Ada\nselect a.bmp\ncopy\nenter walk.phase", "paste"},
    {"Delete", "enter Ada\nselect a.bmp Poses", "delete"},
    {"RenameFile", "enter Ada", "rename a.bmp z.bmp"},
    {"RenameFolder", "enter Ada", "rename Poses Zoe"},
    {"SavePhase", "enter Ada", nullptr},
};

INSTANTIATE_TEST_SUITE_P(, FailingDiskTest, testing::ValuesIn(kCommands),
                         [](const auto& command) { return command.param.pszName; });

} // namespace
