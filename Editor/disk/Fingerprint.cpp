#include "Editor/disk/Fingerprint.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/disk/TempEntry.h"

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

class Digest
{
public:
    void Add(std::string_view text)
    {
        for (const char c : text)
            Step(static_cast<unsigned char>(c));
        Step(0x100); // no text goes on into the next
    }
    void Add(std::uint64_t number) { Step(number); }
    std::uint64_t Get() const { return m_state; }

private:
    void Step(std::uint64_t value) { m_state = (m_state ^ value) * 0x100000001B3u; }

    std::uint64_t m_state = 0xCBF29CE484222325u;
};

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
    Digest digest;
    digest.Add(below);
    digest.Add(std::uint64_t{status.st_mode & S_IFMT});
    if (!S_ISDIR(status.st_mode)) {
        digest.Add(static_cast<std::uint64_t>(status.st_size));
        digest.Add(static_cast<std::uint64_t>(status.st_mtim.tv_sec));
        digest.Add(static_cast<std::uint64_t>(status.st_mtim.tv_nsec));
        if (S_ISLNK(status.st_mode))
            digest.Add(Target(nFolder, name.c_str()));
        return digest.Get() | 1;
    }
    std::uint64_t sum = digest.Get() | 1;
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
