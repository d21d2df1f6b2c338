#include "Editor/disk/DiskFile.h"

#include "Toolkit/base/Text.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>

namespace editor
{
namespace
{

// For file systems that cannot rename without replacing. A second name for a file never replaces one; a folder has
// no second name: there, somebody else's may appear between the look and the renaming, and only an empty one goes.
int RenameWithCare(int nFrom, const char* pszFrom, int nTo, const char* pszTo)
{
    struct stat status;
    if (fstatat(nTo, pszTo, &status, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    if (linkat(nFrom, pszFrom, nTo, pszTo, 0) == 0) {
        if (unlinkat(nFrom, pszFrom, 0) == 0)
            return 0;
        const int error = errno;
        unlinkat(nTo, pszTo, 0); // it keeps the name that it had, and no other
        return error;
    }
    if (errno == EEXIST)
        return EEXIST;
    return renameat(nFrom, pszFrom, nTo, pszTo) == 0 ? 0 : errno;
}

// One file under two spellings, as a file system has it that does not tell upper from lower case.
bool IsOtherSpelling(int nFolder, const std::string& a, const std::string& b)
{
    struct stat first, second;
    return toolkit::CompareNoCase(a, b) == 0 && fstatat(nFolder, a.c_str(), &first, AT_SYMLINK_NOFOLLOW) == 0 &&
           fstatat(nFolder, b.c_str(), &second, AT_SYMLINK_NOFOLLOW) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

} // namespace

bool IsFile(const std::string& path, const FileIdentity& identity)
{
    struct stat status;
    return stat(path.c_str(), &status) == 0 && FileIdentity{status.st_dev, status.st_ino} == identity;
}

bool IsFolder(const std::string& path)
{
    std::error_code failure;
    return std::filesystem::is_directory(path, failure);
}

int ReadNames(int nFolder, std::vector<std::string>& names)
{
    const int fd = openat(nFolder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); // with a position of its own
    const std::unique_ptr<DIR, int (*)(DIR*)> pDir(fd < 0 ? nullptr : fdopendir(fd), &closedir);
    if (!pDir)
        return errno;
    for (errno = 0; const dirent* const pEntry = readdir(pDir.get()); errno = 0) {
        const std::string_view name = pEntry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    return errno;
}

int WriteAll(int fd, std::string_view bytes, Meter* pMeter)
{
    while (!bytes.empty()) {
        if (pMeter && pMeter->IsCancelled())
            return ECANCELED;
        const ssize_t done = write(fd, bytes.data(), std::min(bytes.size(), Meter::kPiece));
        if (done < 0 && errno != EINTR)
            return errno;
        if (done == 0)
            return ENOSPC;
        const std::size_t written = done < 0 ? 0 : static_cast<std::size_t>(done);
        bytes.remove_prefix(written);
        if (pMeter)
            pMeter->Did(written);
    }
    return 0;
}

int RenameWithoutReplacing(int nFrom, const std::string& from, int nTo, const std::string& to)
{
    if (renameat2(nFrom, from.c_str(), nTo, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    return RenameWithCare(nFrom, from.c_str(), nTo, to.c_str());
}

int RenameInFolder(const std::string& folder, const std::string& from, const std::string& to)
{
    const FileDescriptor handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!handle)
        return errno;
    const int error = RenameWithoutReplacing(handle.Get(), from, handle.Get(), to);
    if (error != EEXIST || !IsOtherSpelling(handle.Get(), from, to))
        return error;
    return renameat(handle.Get(), from.c_str(), handle.Get(), to.c_str()) == 0 ? 0 : errno;
}

} // namespace editor
