// Archives on their way through transfer files, path handles and media, with all that can befall them there.
#include "Toolkit/base/Files.h"
#include "Toolkit/base/GlobalMemory.h"
#include "Toolkit/exchange/StgMedium.h"
#include "Views/clipboard/TransferFileOwner.h"
#include "Views/clipboard/clipboard.h"
#include "tests/support/AllocationFailures.h"
#include "tests/support/ChildProcess.h"
#include "tests/views/ViewTest.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace
{

class TransferFileTest : public TransferTest
{
protected:
    ~TransferFileTest() override
    {
        fs::remove_all(folder.Path());
        folder.MakeFolder("");
    }

    static void SetTemp(const std::string& strFolder) { setenv("TEMP", strFolder.c_str(), 1); }
    // What an archive of that file holds; "-" without one.
    static std::string Fetched(const std::string& path)
    {
        const auto pArchive = ArchiveRef::Adopt(ArchiveFromFile(path.c_str()));
        return pArchive ? BytesOf(pArchive.Get()) : "-";
    }
    const std::string bytes = std::string("any\0bytes\n\xFF", 11) + std::string(100000, 'x');
};

TEST_F(TransferFileTest, BytesComeBackFromAFileOfTheirOwnThatIsForItsOwnersEyesOnly)
{
    const mode_t former = umask(0);
    const CString strPath = FileFromArchive(Holding(bytes).Get());
    umask(former);
    EXPECT_EQ(bytes, TempFolder::ReadFile(strPath.GetString()));
    EXPECT_EQ(bytes, Fetched(strPath.GetString()));
    struct stat status;
    ASSERT_EQ(0, lstat(strPath, &status));
    EXPECT_EQ(0600u, status.st_mode & 07777);

    const CString strNext = FileFromArchive(Holding("").Get()); // nothing at all: a file, but no archive of it
    EXPECT_NE(strPath, strNext);
    EXPECT_EQ(0u, fs::file_size(strNext.GetString()));
    EXPECT_EQ("-", Fetched(strNext.GetString()));
}

TEST_F(TransferFileTest, TheFileLiesWhereTheEnvironmentSays)
{
    const auto pArchive = Holding("bytes");
    const auto write = [&] { return fs::path(FileFromArchive(pArchive.Get()).GetString()); };
    for (const char* pszEnd : {"", "/"}) {
        SetTemp(folder.Path() + pszEnd);
        const fs::path path = write();
        EXPECT_EQ(folder.Path(), path.parent_path());
        EXPECT_TRUE(path.filename().string().starts_with("AE")) << path;
    }
    EXPECT_EQ(2, CountFiles());

    // The machine's own folder takes the place of one that is not there.
    const TempFolder machines;
    setenv("TMPDIR", machines.Path().c_str(), 1);
    unsetenv("TEMP");
    EXPECT_EQ(machines.Path(), write().parent_path());
    SetTemp(folder.At("missing"));
    EXPECT_EQ(machines.Path(), write().parent_path());
    unsetenv("TMPDIR");

    SetTemp("/proc"); // a folder in which nobody may write, not even root
    EXPECT_EQ("", write());
    EXPECT_EQ(nullptr, HGLOBALFromArchive(pArchive.Get()));
}

TEST_F(TransferFileTest, ADiskThatFillsUpLeavesNoFileBehind)
{
    const auto pArchive = Holding(bytes);
    EXPECT_EQ(0, InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{4096, 4096};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  const bool bNothing = FileFromArchive(pArchive.Get()).IsEmpty();
                  return bNothing && !HGLOBALFromArchive(pArchive.Get()) && CountFiles() == 0 ? 0 : 1;
              }));
}

TEST_F(TransferFileTest, AHandleHoldsThePathAndNothingElse)
{
    void* const hPath = HGLOBALFromArchive(Holding(bytes).Get());
    std::string strPath;
    {
        const toolkit::GlobalLocker<const char> block(hPath);
        strPath = block.Get();
        EXPECT_EQ(strPath.size() + 1, GlobalSize(hPath));
    }
    EXPECT_EQ(bytes, TempFolder::ReadFile(strPath));

    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = hPath;
    EXPECT_EQ(bytes, BytesOf(ArchiveRef::Adopt(ArchiveFromStgMedium(medium)).Get()));
    fs::remove(strPath);
    EXPECT_EQ(nullptr, ArchiveFromHGLOBAL(hPath));
    GlobalFree(hPath);
}

TEST_F(TransferFileTest, WithoutAStreamOrAnArchiveThereIsNothing)
{
    folder.Write("file", "bytes");
    const auto hasNone = [&] { return !ConstructMemoryArchive() && !ArchiveFromFile(folder.At("file").c_str()); };
    archives.refusesStreams = true;
    EXPECT_TRUE(hasNone());
    archives.refusesStreams = false;
    archives.refusesArchives = true;
    EXPECT_TRUE(hasNone());
    archives.refusesArchives = false;
    archives.streams.Uninstall();
    EXPECT_TRUE(hasNone());
    archives.streams.Install();

    archives.streamsHaveNoBlock = true;
    EXPECT_EQ("-", Fetched(folder.At("file")));
    EXPECT_EQ("", FileFromArchive(ArchiveRef::Adopt(ConstructMemoryArchive()).Get()));
    EXPECT_EQ("", FileFromArchive(nullptr));
    EXPECT_EQ(nullptr, HGLOBALFromArchive(nullptr));
    EXPECT_EQ(1, CountFiles());
}

TEST_F(TransferFileTest, WithoutMemoryThereIsNoFileAndTheUserIsToldOnce)
{
    const auto pArchive = Holding(bytes);
    void* hPath = nullptr;
    const auto check = [&] {
        EXPECT_EQ(FailAllocation::HasFailed(), !hPath);
        EXPECT_EQ(hPath ? 1 : 0, CountFiles());
        EXPECT_GE(hPath ? 0u : 1u, desktop.TakeMessageBoxes().size());
        (new CTransferFileOwner(hPath))->Release();
    };
    FailEveryAllocation([&] { hPath = HGLOBALFromArchive(pArchive.Get()); }, check);
}

} // namespace
