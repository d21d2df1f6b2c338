// Files on the disk, as the system hands them out.
#pragma once

#include "Editor/disk/Meter.h"

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>
#include <vector>

namespace editor
{

// A file descriptor that is closed at the end; -1: none.
class FileDescriptor
{
public:
    explicit FileDescriptor(int fd = -1) : m_fd(fd) {}
    ~FileDescriptor() { Close(); }
    FileDescriptor(FileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }

    int Get() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }
    bool Close() { return m_fd < 0 || close(std::exchange(m_fd, -1)) == 0; } // false: what was written may be lost

private:
    int m_fd;
};

// Tells files and folders apart, whatever the paths that lead to them.
struct FileIdentity
{
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    friend auto operator<=>(const FileIdentity&, const FileIdentity&) = default;
};
bool IsFile(const std::string& path, const FileIdentity& identity); // does the path lead there?
bool IsFolder(const std::string& path);                             // does it lead to one?

// The names of all that is in an open folder, in no particular order. The error number; 0: none.
int ReadNames(int nFolder, std::vector<std::string>& names);

// Writes all of it; the error number, 0: none.
int WriteAll(int fd, std::string_view bytes, Meter* pMeter = nullptr); // ECANCELED when it is cancelled meanwhile

// Gives a file or folder another name, also in another folder of the same file system. EEXIST when there is
// something of that name already; nothing is ever replaced. The error number; 0: none.
int RenameWithoutReplacing(int nFrom, const std::string& from, int nTo, const std::string& to);
// The same in its folder, where a name may also change to another spelling of itself.
int RenameInFolder(const std::string& folder, const std::string& from, const std::string& to);

} // namespace editor
