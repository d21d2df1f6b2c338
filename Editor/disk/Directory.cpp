#include "Editor/disk/Directory.h"

#include "Editor/disk/TempEntry.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace editor
{

Directory::Directory(const std::string& path)
{
    const int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    struct stat status;
    if (fd >= 0 && fstat(fd, &status) == 0) {
        m_identity = {status.st_dev, status.st_ino};
        m_pDir = fdopendir(fd);
    }
    if (m_pDir)
        return;
    m_error = errno;
    if (fd >= 0)
        close(fd);
}

Directory::~Directory()
{
    if (m_pDir)
        closedir(m_pDir);
}

void Directory::ForEach(const std::function<bool(const char* pszName, bool isDirectory)>& entry)
{
    if (!m_pDir)
        return;
    for (;;) {
        errno = 0;
        const dirent* const next = readdir(m_pDir);
        if (!next)
            break;
        if (next->d_name[0] == '.') {
            if (TempEntry::IsOne(next->d_name))
                m_tempNames.emplace_back(next->d_name);
            continue;
        }
        const Kind kind = KindOf(*next);
        if (kind != Kind::Other && !entry(next->d_name, kind == Kind::Directory))
            return;
    }
    m_error = errno;
}

Directory::Kind Directory::KindOf(const dirent& entry) const
{
    switch (entry.d_type) {
    case DT_DIR:
        return Kind::Directory;
    case DT_REG:
        return Kind::File;
    case DT_LNK:
    case DT_UNKNOWN:
        break;
    default:
        return Kind::Other;
    }
    return KindBehind(entry.d_name);
}

bool Directory::Find(const char* pszName, bool& isDirectory) const
{
    struct stat status;
    if (!m_pDir || pszName[0] == '.' || fstatat(dirfd(m_pDir), pszName, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    const Kind kind = KindBehind(pszName);
    isDirectory = kind == Kind::Directory;
    return kind != Kind::Other;
}

Directory::Kind Directory::KindBehind(const char* pszName) const
{
    struct stat status;
    if (fstatat(dirfd(m_pDir), pszName, &status, 0) != 0)
        return Kind::File;
    return S_ISDIR(status.st_mode) ? Kind::Directory : S_ISREG(status.st_mode) ? Kind::File : Kind::Other;
}

} // namespace editor
