#include "Editor/disk/TempEntry.h"

#include "Toolkit/base/Checksum.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <optional>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/utsname.h>

namespace editor
{
namespace
{

constexpr std::string_view kBeginning = ".views-new-";

std::string Hexadecimal(std::uint64_t number)
{
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(number));
    return hex;
}

// Which machine this is; nothing, and errno tells why, when that cannot be read. Not every system has a number.
std::optional<std::string> Machine()
{
    char number[64];
    const FileDescriptor file(open("/etc/machine-id", O_RDONLY | O_CLOEXEC));
    const ssize_t size = file ? read(file.Get(), number, sizeof number) : 0;
    if (size < 0 || (!file && errno != ENOENT))
        return std::nullopt;
    utsname system{};
    return std::string(number, static_cast<std::size_t>(size)) + (uname(&system) == 0 ? system.nodename : "");
}

// How all names begin that are made on this machine; empty when that cannot be told, and errno says why.
const std::string& Beginning()
{
    static std::string s_beginning;
    if (s_beginning.empty())
        if (const auto machine = Machine())
            s_beginning = std::string(kBeginning) + Hexadecimal(toolkit::Checksum(*machine)) + '-';
    return s_beginning;
}

std::string SecretName()
{
    std::uint64_t random = 0;
    if (Beginning().empty() || getrandom(&random, sizeof random, 0) != static_cast<ssize_t>(sizeof random))
        return {};
    return Beginning() + Hexadecimal(random);
}

// Whoever has an entry in the making there holds a lock on the folder, which ends with the process: there is none.
bool IsNobodyAtWork(int nFolder)
{
    return flock(nFolder, LOCK_EX | LOCK_NB) == 0 && flock(nFolder, LOCK_UN) == 0;
}

bool IsOwn(int nFolder, const std::string& name)
{
    struct stat status;
    return fstatat(nFolder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && status.st_uid == geteuid();
}

} // namespace

// A lock that is refused (somebody has locked the folder for purposes of their own) is done without: should the entry
// be taken for a leftover, putting it into its place fails, and nothing half-done comes of it.
TempEntry::TempEntry(const std::string& folder) : m_folder(folder), m_name(SecretName())
{
    if (!m_name.empty())
        m_fd = FileDescriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_fd)
        m_error = errno;
    else
        flock(m_fd.Get(), LOCK_SH | LOCK_NB);
}

TempEntry::~TempEntry()
try {
    if (m_name.empty() || !m_fd || unlinkat(m_fd.Get(), m_name.c_str(), 0) == 0 || errno == ENOENT)
        return;
    std::error_code ignored;
    std::filesystem::remove_all(m_folder + '/' + m_name, ignored);
} catch (const std::bad_alloc&) {
    return; // it stays, hidden, as after a crash
}

bool TempEntry::IsOne(std::string_view name)
{
    constexpr std::size_t kDigits = 16;
    if (!name.starts_with(kBeginning) || name.size() != kBeginning.size() + 2 * kDigits + 1)
        return false;
    name.remove_prefix(kBeginning.size());
    return name[kDigits] == '-' && name.find_first_not_of("0123456789abcdef-") == name.npos &&
           name.find('-') == name.rfind('-');
}

int TempEntry::PutAt(const std::string& name)
{
    const int error = RenameWithoutReplacing(Folder(), m_name, Folder(), name);
    if (error == 0)
        m_name.clear();
    return error;
}

int TempEntry::Replace(const std::string& name)
{
    if (renameat(Folder(), m_name.c_str(), Folder(), name.c_str()) != 0)
        return errno;
    m_name.clear();
    return 0;
}

int ReplaceFile(const std::string& path, std::string_view bytes)
{
    char real[PATH_MAX];
    struct stat status;
    if (!realpath(path.c_str(), real) || stat(real, &status) != 0)
        return errno;
    if (eaccess(real, W_OK) != 0)
        return errno; // its folder may be written to, yet the file is protected
    const std::filesystem::path file(real);
    TempEntry temp(file.parent_path().string());
    if (temp.GetError() != 0)
        return temp.GetError();
    FileDescriptor handle(openat(temp.Folder(), temp.Name().c_str(),
                                 O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, status.st_mode & 0777));
    if (!handle)
        return errno;
    if (const int error = WriteAll(handle.Get(), bytes); error != 0)
        return error;
    if (fchmod(handle.Get(), status.st_mode & 07777) != 0 || fsync(handle.Get()) != 0 || !handle.Close())
        return errno;
    return temp.Replace(file.filename().string());
}

// Under another name first: where that is not allowed, nothing has been touched.
int RemoveForGood(const std::string& folder, const std::string& name)
{
    TempEntry temp(folder);
    if (temp.GetError() != 0)
        return temp.GetError();
    if (renameat(temp.Folder(), name.c_str(), temp.Folder(), temp.Name().c_str()) != 0)
        return errno;
    std::error_code error;
    std::filesystem::remove_all(folder + '/' + temp.Name(), error);
    if (error)
        temp.PutAt(name);
    return error.value();
}

// They were seen before the lock is tried: what begins later is not among them.
void RemoveLeftOvers(const std::string& folder, const std::vector<std::string>& seen)
{
    const FileDescriptor handle(seen.empty() ? -1 : open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!handle || Beginning().empty() || !IsNobodyAtWork(handle.Get()))
        return;
    for (const std::string& name : seen)
        if (name.starts_with(Beginning()) && IsOwn(handle.Get(), name))
            RemoveForGood(folder, name);
}

} // namespace editor
