#include "Editor/disk/Meter.h"

#include "Editor/disk/DiskFile.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace editor
{
namespace
{

std::uint64_t Of(int nFolder, const std::string& name, const Meter& meter)
{
    struct stat status;
    if (fstatat(nFolder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    if (!S_ISDIR(status.st_mode))
        return S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0;
    const FileDescriptor folder(openat(nFolder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    std::vector<std::string> names;
    if (!folder || ReadNames(folder.Get(), names) != 0)
        return 0;
    std::uint64_t sum = 0;
    for (auto at = names.begin(); at != names.end() && !meter.IsCancelled(); ++at)
        sum += Of(folder.Get(), *at, meter);
    return sum;
}

} // namespace

std::uint64_t BytesBelow(const std::string& path, const Meter& meter)
{
    return Of(AT_FDCWD, path, meter);
}

} // namespace editor
