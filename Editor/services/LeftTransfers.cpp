#include "Editor/services/LeftTransfers.h"

#include "Editor/archive/ArchiveFormat.h"
#include "Toolkit/base/Files.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>

namespace editor
{
namespace
{

constexpr std::string_view kBeginning = "AE";
constexpr std::size_t kSecret = 26;   // random characters
constexpr std::time_t kYoungest = 60; // seconds: one that is younger may be on its way to its owner

// The folder in which a new transfer file would be.
std::string TransferFolder()
{
    const std::unique_ptr<char, void (*)(void*)> pszPath(::_tempnam(std::getenv("TEMP"), "AE"), &std::free);
    const std::string path = pszPath ? pszPath.get() : "";
    return path.substr(0, path.rfind('/') + 1);
}

bool IsNameOfOne(std::string_view name)
{
    return name.size() == kBeginning.size() + kSecret && name.starts_with(kBeginning) &&
           name.find_first_not_of("abcdefghijklmnopqrstuvwxyz234567", kBeginning.size()) == name.npos;
}

bool IsOwnAndOld(const struct stat& status)
{
    return S_ISREG(status.st_mode) && status.st_uid == geteuid() && status.st_nlink == 1 &&
           (status.st_mode & 07777) == (S_IRUSR | S_IWUSR) && std::time(nullptr) - status.st_mtime >= kYoungest;
}

bool HoldsArchive(int fd)
{
    char mark[kArchiveMark.size()];
    return pread(fd, mark, sizeof mark, 0) == static_cast<ssize_t>(sizeof mark) &&
           std::string_view(mark, sizeof mark) == kArchiveMark;
}

// Both locks stay until the file is closed.
bool IsHeldByNobody(int fd)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return flock(fd, LOCK_EX | LOCK_NB) == 0 && fcntl(fd, F_OFD_SETLK, &lock) == 0;
}

void RemoveIfLeft(int nFolder, const std::string& name)
{
    const FileDescriptor handle(openat(nFolder, name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status;
    if (handle && fstat(handle.Get(), &status) == 0 && IsOwnAndOld(status) && HoldsArchive(handle.Get()) &&
        IsHeldByNobody(handle.Get()))
        unlinkat(nFolder, name.c_str(), 0);
}

} // namespace

void RemoveLeftTransfers()
try {
    const std::string path = TransferFolder();
    const FileDescriptor folder(path.empty() ? -1 : open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::vector<std::string> names;
    if (!folder || ReadNames(folder.Get(), names) != 0)
        return;
    std::erase_if(names, [](const std::string& name) { return !IsNameOfOne(name); });
    for (const std::string& name : names)
        RemoveIfLeft(folder.Get(), name);
} catch (const std::bad_alloc&) {
    return; // there will be another start
}

} // namespace editor
