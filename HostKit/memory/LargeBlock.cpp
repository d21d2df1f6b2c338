#include "HostKit/memory/LargeBlock.h"

#include "Toolkit/base/Apart.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <set>
#include <string>
#include <sys/mman.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace hostkit
{
namespace
{

constexpr std::size_t kStep = 16 << 20; // that a block grows by at least
constexpr std::size_t kMostMore = 256 << 20;

// The files that this program has made of blocks: nobody but the user can have changed them, and no program does.
using File = std::tuple<dev_t, ino_t, off_t>; // device, inode, size
std::set<File> s_made;

File FileOf(const struct stat& status)
{
    return {status.st_dev, status.st_ino, status.st_size};
}

// Another program's transfer file, which it holds as the library holds them (a lock for reading): a program that does
// so writes to it no more. Nobody but the user can.
bool IsHeldByItsOwner(int fd, const struct stat& status)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return S_ISREG(status.st_mode) && status.st_uid == geteuid() && (status.st_mode & 07777) == 0600 &&
           status.st_nlink == 1 && fcntl(fd, F_OFD_GETLK, &lock) == 0 && lock.l_type == F_RDLCK;
}

int NamelessFile()
{
    const char* const pszTemp = std::getenv("TEMP");
    const int fd = pszTemp && *pszTemp ? open(pszTemp, O_TMPFILE | O_RDWR | O_CLOEXEC, 0600) : -1;
    return fd >= 0 ? fd : open("/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
}

} // namespace

LargeBlock::~LargeBlock()
{
    Drop();
}

void LargeBlock::Drop()
{
    if (m_pBytes)
        toolkit::RunApart([p = m_pBytes, bytes = m_nCapacity, fd = m_fd] {
            munmap(p, bytes);
            if (fd >= 0)
                close(fd);
        });
    else if (m_fd >= 0)
        close(m_fd);
    m_pBytes = nullptr;
    m_nCapacity = m_nGiven = 0;
    m_fd = -1;
}

bool LargeBlock::Map(int fd, std::size_t bytes, int nSharing)
{
    void* const p = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, nSharing, fd, 0);
    m_pBytes = p == MAP_FAILED ? nullptr : static_cast<std::byte*>(p);
    m_nCapacity = m_pBytes ? bytes : 0;
    return m_pBytes != nullptr;
}

// Without room on the disk for all of it, writing to it would end the program.
bool LargeBlock::Reserve(std::size_t bytes)
{
    if (m_nGiven > 0 && bytes == 0)
        Drop();
    if (bytes <= m_nCapacity && m_nGiven == 0)
        return true;
    const std::size_t more = m_nCapacity + std::clamp(m_nCapacity, kStep, kMostMore);
    const std::size_t wanted = (std::max(bytes, more) + kStep - 1) / kStep * kStep;
    if (m_fd >= 0 && m_nGiven == 0) {
        if (fallocate(m_fd, 0, 0, static_cast<off_t>(wanted)) != 0)
            return false;
        void* const p = mremap(m_pBytes, m_nCapacity, wanted, MREMAP_MAYMOVE);
        if (p == MAP_FAILED)
            return false;
        m_pBytes = static_cast<std::byte*>(p);
        m_nCapacity = wanted;
        return true;
    }
    LargeBlock larger; // the first, or one whose file has been given away
    larger.m_fd = NamelessFile();
    if (larger.m_fd < 0 || fallocate(larger.m_fd, 0, 0, static_cast<off_t>(wanted)) != 0 ||
        !larger.Map(larger.m_fd, wanted, MAP_SHARED))
        return false;
    std::copy_n(m_pBytes, m_nGiven > 0 ? m_nGiven : m_nCapacity, larger.m_pBytes);
    std::swap(m_fd, larger.m_fd);
    std::swap(m_pBytes, larger.m_pBytes);
    std::swap(m_nCapacity, larger.m_nCapacity);
    m_nGiven = 0;
    return true;
}

bool LargeBlock::MakeFile(const char* pszPath, std::size_t length)
{
    const std::string nameless = "/proc/self/fd/" + std::to_string(m_fd);
    if (m_fd < 0 || m_nGiven > 0 || length == 0 ||
        linkat(AT_FDCWD, nameless.c_str(), AT_FDCWD, pszPath, AT_SYMLINK_FOLLOW) != 0)
        return false;
    struct stat status;
    if (ftruncate(m_fd, static_cast<off_t>(length)) != 0 || fstat(m_fd, &status) != 0) {
        unlink(pszPath);
        return false;
    }
    s_made.insert(FileOf(status));
    m_nGiven = length;
    return true;
}

std::size_t LargeBlock::TakeFile(const char* pszPath)
{
    struct stat status;
    const int fd = open(pszPath, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    const bool bTaken = fd >= 0 && fstat(fd, &status) == 0 &&
                        (s_made.contains(FileOf(status)) ||
                         (status.st_size >= static_cast<off_t>(kStep) && IsHeldByItsOwner(fd, status)));
    if (bTaken) {
        Drop();
        Map(fd, static_cast<std::size_t>(status.st_size), MAP_PRIVATE);
    }
    if (fd >= 0)
        close(fd);
    return bTaken && m_pBytes ? m_nCapacity : 0;
}

} // namespace hostkit
