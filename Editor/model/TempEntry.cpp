#include "Editor/model/TempEntry.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sys/random.h>
#include <sys/stat.h>

namespace editor
{
namespace
{

constexpr std::string_view kBeginning = ".views-new-";

std::string SecretName()
{
    std::array<unsigned char, 8> random{};
    if (getrandom(random.data(), random.size(), 0) != static_cast<ssize_t>(random.size()))
        return {};
    std::string name(kBeginning);
    for (const unsigned char byte : random) {
        char hex[3];
        std::snprintf(hex, sizeof hex, "%02x", byte);
        name += hex;
    }
    return name;
}

} // namespace

TempEntry::TempEntry(const std::string& folder)
    : m_folder(folder), m_fd(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), m_name(SecretName())
{
    if (!m_fd || m_name.empty())
        m_error = errno;
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

bool TempEntry::IsLeftOver(std::string_view name)
{
    return name.starts_with(kBeginning);
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
    FileHandle handle(openat(temp.Folder(), temp.Name().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                             status.st_mode & 0777));
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

} // namespace editor
