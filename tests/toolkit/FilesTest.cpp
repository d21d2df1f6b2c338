#include "Toolkit/base/Files.h"

#include "tests/support/AllocationFailures.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>

namespace
{
namespace fs = std::filesystem;

class FilesTest : public testing::Test
{
protected:
    ~FilesTest() override { EXPECT_EQ(0, toolkit::CountOpenFiles()) << "files left open"; }

    std::string At(const std::string& name) const { return m_temp.At(name); }

    static HANDLE Open(const std::string& path, DWORD access, DWORD disposition, DWORD share = 0)
    {
        return CreateFile(path.c_str(), access, share, nullptr, disposition,
                          FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_NORMAL, nullptr);
    }

    static void Write(const std::string& path, const std::string& bytes)
    {
        const HANDLE hFile = Open(path, GENERIC_WRITE, CREATE_ALWAYS);
        DWORD nWritten = 0;
        EXPECT_TRUE(WriteFile(hFile, bytes.data(), static_cast<DWORD>(bytes.size()), &nWritten, nullptr));
        EXPECT_EQ(bytes.size(), nWritten);
        EXPECT_TRUE(CloseHandle(hFile));
    }

    static std::string Read(const std::string& path)
    {
        const HANDLE hFile = Open(path, GENERIC_READ, OPEN_EXISTING);
        std::string bytes(GetFileSize(hFile, nullptr) + 1, '?');
        DWORD nRead = 0;
        EXPECT_TRUE(ReadFile(hFile, bytes.data(), static_cast<DWORD>(bytes.size()), &nRead, nullptr));
        EXPECT_TRUE(CloseHandle(hFile));
        return bytes.substr(0, nRead);
    }

    // Why the file cannot be opened; 0 when it can.
    static DWORD WhyNot(const std::string& path, DWORD access, DWORD disposition, DWORD share = 0)
    {
        const HANDLE hFile = Open(path, access, disposition, share);
        const DWORD error = GetLastError();
        return CloseHandle(hFile) ? ERROR_SUCCESS : error;
    }

    static std::string Name(const char* pszFolder)
    {
        char* pszName = _tempnam(pszFolder, "AE");
        const std::string name = pszName ? pszName : "";
        std::free(pszName);
        return name;
    }

    const TempFolder m_temp;
    const std::string& m_folder = m_temp.Path();
};

TEST_F(FilesTest, AFileComesAndGoesAsTheDispositionSaysAndANewOneIsItsOwnersAlone)
{
    const std::string path = At("a");
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, WhyNot(path, GENERIC_READ, OPEN_EXISTING));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, WhyNot(At("missing/a"), GENERIC_WRITE, CREATE_ALWAYS));
    EXPECT_EQ(ERROR_SUCCESS, WhyNot(path, GENERIC_WRITE, CREATE_NEW));
    EXPECT_EQ(ERROR_FILE_EXISTS, WhyNot(path, GENERIC_WRITE, CREATE_NEW));
    Write(path, "walking");
    EXPECT_EQ(ERROR_SUCCESS, WhyNot(path, GENERIC_WRITE, OPEN_ALWAYS));
    EXPECT_EQ("walking", Read(path));
    Write(path, "run");
    EXPECT_EQ("run", Read(path));
    EXPECT_TRUE(DeleteFile(path.c_str()));
    EXPECT_FALSE(DeleteFile(path.c_str()));
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, GetLastError());

    EXPECT_LT(0, FailEveryAllocation([&] { CloseHandle(Open(path, GENERIC_WRITE, CREATE_ALWAYS)); }));
    const mode_t former = umask(0);
    Write(At("a"), "secret");
    umask(former);
    struct stat status;
    ASSERT_EQ(0, stat(At("a").c_str(), &status));
    EXPECT_EQ(0600u, status.st_mode & 07777);
}

TEST_F(FilesTest, WhatIsNoOrdinaryFileIsRefusedAndNoLinkIsFollowed)
{
    Write(At("prey"), "precious");
    fs::create_symlink(At("prey"), At("link"));
    fs::create_hard_link(At("prey"), At("second name"));
    ASSERT_EQ(0, mkfifo(At("pipe").c_str(), 0600));

    for (const DWORD disposition : {CREATE_ALWAYS, OPEN_EXISTING, OPEN_ALWAYS})
        EXPECT_EQ(ERROR_ACCESS_DENIED, WhyNot(At("link"), GENERIC_WRITE, disposition));
    EXPECT_EQ(ERROR_FILE_EXISTS, WhyNot(At("link"), GENERIC_WRITE, CREATE_NEW));
    EXPECT_EQ(ERROR_ACCESS_DENIED, WhyNot(At("second name"), GENERIC_WRITE, CREATE_ALWAYS));
    EXPECT_EQ("precious", Read(At("prey")));
    EXPECT_EQ(ERROR_ACCESS_DENIED, WhyNot(At("pipe"), GENERIC_READ, OPEN_EXISTING)); // and does not wait
    EXPECT_EQ(ERROR_ACCESS_DENIED, WhyNot(m_folder, GENERIC_READ, OPEN_EXISTING));

    EXPECT_TRUE(DeleteFile(At("link").c_str()));
    EXPECT_TRUE(fs::exists(At("prey")));
}

TEST_F(FilesTest, AnUnsharedFileIsNobodyElses)
{
    const std::string path = At("a");
    Write(path, "mine");
    const HANDLE hFile = Open(path, GENERIC_READ, OPEN_EXISTING);
    const auto whyNot = [&] { return static_cast<int>(WhyNot(path, GENERIC_WRITE, CREATE_ALWAYS, FILE_SHARE_READ)); };
    EXPECT_EQ(static_cast<int>(ERROR_SHARING_VIOLATION), whyNot());
    EXPECT_EQ(static_cast<int>(ERROR_SHARING_VIOLATION), InChild(whyNot));
    EXPECT_TRUE(CloseHandle(hFile));
    EXPECT_EQ("mine", Read(path)); // refused before it was emptied
    char c = 0;
    DWORD nRead = 0;
    EXPECT_FALSE(CloseHandle(hFile)); // a closed file is nobody's
    EXPECT_FALSE(ReadFile(hFile, &c, 1, &nRead, nullptr));
    EXPECT_EQ(INVALID_FILE_SIZE, GetFileSize(hFile, nullptr));
    EXPECT_EQ(ERROR_INVALID_HANDLE, GetLastError());
}

TEST_F(FilesTest, AWriteThatFindsNoMoreRoomSaysHowFarItCame)
{
    const int status = InChild([this] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        const HANDLE hFile = Open(At("a"), GENERIC_WRITE, CREATE_NEW);
        const std::string bytes(1500, 'x');
        DWORD nWritten = 0;
        const BOOL bAll = WriteFile(hFile, bytes.data(), 1500, &nWritten, nullptr);
        return !bAll && nWritten == 1000 && GetLastError() == ERROR_FILE_TOO_LARGE ? 0 : 1;
    });
    EXPECT_EQ(0, status);
}

TEST_F(FilesTest, TemporaryNamesLieInTheFolderOrTheMachinesOwnAndAreNeverTheSame)
{
    const char* const pszTemporary = std::getenv("TMPDIR");
    const std::string former = pszTemporary ? pszTemporary : "";
    const std::string first = Name(m_folder.c_str()), second = Name((m_folder + "/").c_str());
    EXPECT_EQ(m_folder, fs::path(first).parent_path());
    EXPECT_EQ(m_folder, fs::path(second).parent_path());
    EXPECT_TRUE(fs::path(first).filename().string().starts_with("AE"));
    EXPECT_EQ(2u + 26, fs::path(second).filename().string().size());
    EXPECT_NE(first, second);

    setenv("TMPDIR", m_folder.c_str(), 1);
    Write(At("file"), "no folder");
    const std::string file = At("file"), endless = "/" + std::string(5000, 'x');
    for (const char* pszFolder :
         {"", "/no/such/folder", file.c_str(), endless.c_str(), static_cast<const char*>(nullptr)})
        EXPECT_EQ(m_folder, fs::path(Name(pszFolder)).parent_path());
    char buffer[4] = "";
    EXPECT_EQ(m_folder.size() + 1, GetEnvironmentVariableA("TMPDIR", buffer, 4)); // the size that it needs
    unsetenv("TMPDIR");
    EXPECT_EQ("/tmp", fs::path(Name("")).parent_path());
    former.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", former.c_str(), 1);
}

} // namespace
