#include "Editor/disk/Fingerprint.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/disk/TempEntry.h"
#include "Toolkit/base/Checksum.h"

#include <climits>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace editor
{
namespace
{

std::string Target(int nFolder, const char* pszName)
{
    char target[PATH_MAX];
    const ssize_t length = readlinkat(nFolder, pszName, target, sizeof target);
    return length < 0 ? std::string() : std::string(target, static_cast<std::size_t>(length));
}

// An entry and, in no particular order, all below it: their sum has none.
std::uint64_t Of(int nFolder, const std::string& name, const std::string& below)
{
    struct stat status;
    if (fstatat(nFolder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    const bool bFolder = S_ISDIR(status.st_mode);
    const std::string target = S_ISLNK(status.st_mode) ? Target(nFolder, name.c_str()) : std::string();
    const std::uint64_t facts[] = {below.size(), std::uint64_t{status.st_mode & S_IFMT},
                                   bFolder ? 0 : static_cast<std::uint64_t>(status.st_size),
                                   bFolder ? 0 : static_cast<std::uint64_t>(status.st_mtim.tv_sec),
                                   bFolder ? 0 : static_cast<std::uint64_t>(status.st_mtim.tv_nsec)};
    const std::string_view bytes(reinterpret_cast<const char*>(facts), sizeof facts);
    std::uint64_t sum = toolkit::Checksum(target, toolkit::Checksum(below, toolkit::Checksum(bytes))) | 1;
    if (!bFolder)
        return sum;
    std::vector<std::string> names;
    const FileDescriptor folder(openat(nFolder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder)
        ReadNames(folder.Get(), names);
    for (const std::string& member : names)
        if (!TempEntry::IsOne(member))
            sum += Of(folder.Get(), member, below + '/' + member);
    return sum;
}

} // namespace

std::uint64_t FingerprintOf(const std::string& path)
{
    return Of(AT_FDCWD, path, {});
}

} // namespace editor
