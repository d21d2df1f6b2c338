#include "Toolkit/base/Files.h"

#include "Toolkit/base/HandleTable.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <mutex>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
class FileDescriptor
{
public:
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    ~FileDescriptor()
    {
        if (m_fd >= 0)
            close(m_fd);
    }
    FileDescriptor(FileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }

    explicit operator bool() const { return m_fd >= 0; }
    int Get() const { return m_fd; }

private:
    int m_fd;
};

std::mutex s_mutex; // of s_files
toolkit::HandleTable<HANDLE, FileDescriptor> s_files;

// The descriptor behind a handle, -1 for a stale one. Whoever closes a handle while another thread uses it gets what
// they asked for.
int FindFile(HANDLE hFile)
{
    const std::lock_guard lock(s_mutex);
    const FileDescriptor* pFile = s_files.Find(hFile);
    return pFile ? pFile->Get() : -1;
}

int Fail(int error)
{
    toolkit::SetLastErrorFromErrno(error);
    return -1;
}

int AccessFlags(DWORD dwAccess)
{
    const bool bRead = dwAccess & GENERIC_READ;
    const bool bWrite = dwAccess & GENERIC_WRITE;
    return bRead && bWrite ? O_RDWR : bWrite ? O_WRONLY : O_RDONLY;
}

int CreationFlags(DWORD dwDisposition)
{
    switch (dwDisposition) {
    case CREATE_NEW:
        return O_CREAT | O_EXCL;
    case CREATE_ALWAYS: // not O_TRUNC: whoever else has the file open must agree first
    case OPEN_ALWAYS:
        return O_CREAT;
    default:
        return 0;
    }
}

bool IsKnownDisposition(DWORD dwDisposition)
{
    return dwDisposition >= CREATE_NEW && dwDisposition <= OPEN_ALWAYS;
}

bool Lock(const FileDescriptor& file, bool bShared)
{
    int result;
    do
        result = flock(file.Get(), (bShared ? LOCK_SH : LOCK_EX) | LOCK_NB);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

// A file that somebody else may have prepared is not written to.
bool IsOwnersAlone(const struct stat& status)
{
    return status.st_uid == geteuid() && status.st_nlink == 1;
}

// errno, 0 when the file may be used and has been emptied where that was asked for.
int Prepare(const FileDescriptor& file, DWORD dwShareMode, DWORD dwDisposition)
{
    struct stat status;
    if (fstat(file.Get(), &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return EACCES;
    if (!Lock(file, dwShareMode != 0))
        return errno;
    if (dwDisposition != CREATE_ALWAYS || status.st_size == 0)
        return dwDisposition == CREATE_ALWAYS && !IsOwnersAlone(status) ? EACCES : 0;
    if (!IsOwnersAlone(status))
        return EACCES;
    return ftruncate(file.Get(), 0) == 0 ? 0 : errno;
}

FileDescriptor OpenRegularFile(LPCSTR pszName, DWORD dwAccess, DWORD dwShareMode, DWORD dwDisposition)
{
    // Without O_NONBLOCK opening a pipe would wait for its other end.
    const int flags = O_CLOEXEC | O_NOCTTY | O_NOFOLLOW | O_NONBLOCK;
    FileDescriptor file(open(pszName, flags | AccessFlags(dwAccess) | CreationFlags(dwDisposition), 0600));
    if (!file)
        return FileDescriptor(Fail(errno));
    const int error = Prepare(file, dwShareMode, dwDisposition);
    return error == 0 ? std::move(file) : FileDescriptor(Fail(error));
}

// A handle for a file that is yet to come.
HANDLE ReserveHandle()
try {
    auto entry = std::make_unique<FileDescriptor>(-1);
    const std::lock_guard lock(s_mutex);
    const HANDLE hFile = s_files.Add(std::move(entry));
    if (!hFile)
        SetLastError(ERROR_TOO_MANY_OPEN_FILES);
    return hFile;
} catch (const std::bad_alloc&) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

void PutFile(HANDLE hFile, FileDescriptor file)
{
    const std::lock_guard lock(s_mutex);
    *s_files.Find(hFile) = std::move(file);
}

std::unique_ptr<FileDescriptor> TakeFile(HANDLE hFile)
{
    const std::lock_guard lock(s_mutex);
    return s_files.Remove(hFile);
}

// Calls read or write until all is done, nothing more comes, or it fails (-1).
template <class Transfer>
BOOL TransferAll(DWORD nBytes, DWORD* pnDone, Transfer transfer)
{
    DWORD nDone = 0;
    ssize_t n = 0;
    while (nDone < nBytes) {
        n = transfer(nDone, std::min<std::size_t>(nBytes - nDone, std::numeric_limits<int>::max()));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        nDone += static_cast<DWORD>(n);
    }
    if (pnDone)
        *pnDone = nDone;
    if (n < 0)
        toolkit::SetLastErrorFromErrno(errno);
    return n >= 0;
}

bool CanTransfer(int fd, const OVERLAPPED* pOverlapped, DWORD* pnDone)
{
    if (pnDone)
        *pnDone = 0;
    if (fd < 0)
        SetLastError(ERROR_INVALID_HANDLE);
    else if (pOverlapped)
        SetLastError(ERROR_INVALID_PARAMETER);
    return fd >= 0 && !pOverlapped;
}

DWORD SplitPosition(std::int64_t position, DWORD* pdwHigh)
{
    if (pdwHigh)
        *pdwHigh = static_cast<DWORD>(static_cast<std::uint64_t>(position) >> 32);
    SetLastError(ERROR_SUCCESS);
    return static_cast<DWORD>(position);
}
} // namespace

HANDLE CreateFile(LPCSTR pszName, DWORD dwAccess, DWORD dwShareMode, SECURITY_ATTRIBUTES* pSecurity,
                  DWORD dwDisposition, DWORD, HANDLE hTemplate)
{
    if (!pszName || pSecurity || hTemplate || !IsKnownDisposition(dwDisposition)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    // The handle comes first: no file is made, or emptied, for which there is none.
    const HANDLE hFile = ReserveHandle();
    if (!hFile)
        return INVALID_HANDLE_VALUE;
    FileDescriptor file = OpenRegularFile(pszName, dwAccess, dwShareMode, dwDisposition);
    if (!file) {
        TakeFile(hFile);
        return INVALID_HANDLE_VALUE;
    }
    PutFile(hFile, std::move(file));
    return hFile;
}

BOOL ReadFile(HANDLE hFile, void* pBuffer, DWORD nBytes, DWORD* pnRead, OVERLAPPED* pOverlapped)
{
    const int fd = FindFile(hFile);
    return CanTransfer(fd, pOverlapped, pnRead) &&
           TransferAll(nBytes, pnRead, [fd, pBuffer](DWORD nDone, std::size_t nMore) {
               return read(fd, static_cast<BYTE*>(pBuffer) + nDone, nMore);
           });
}

BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pnWritten, OVERLAPPED* pOverlapped)
{
    const int fd = FindFile(hFile);
    return CanTransfer(fd, pOverlapped, pnWritten) &&
           TransferAll(nBytes, pnWritten, [fd, pBuffer](DWORD nDone, std::size_t nMore) {
               return write(fd, static_cast<const BYTE*>(pBuffer) + nDone, nMore);
           });
}

DWORD GetFileSize(HANDLE hFile, DWORD* pdwHigh)
{
    struct stat status;
    const int fd = FindFile(hFile);
    if (fd < 0 || fstat(fd, &status) != 0) {
        toolkit::SetLastErrorFromErrno(fd < 0 ? EBADF : errno);
        return INVALID_FILE_SIZE;
    }
    return SplitPosition(status.st_size, pdwHigh);
}

BOOL CloseHandle(HANDLE hFile)
{
    const bool bClosed = TakeFile(hFile) != nullptr;
    if (!bClosed)
        SetLastError(ERROR_INVALID_HANDLE);
    return bClosed;
}

BOOL DeleteFile(LPCSTR pszName)
{
    if (pszName && unlink(pszName) == 0)
        return TRUE;
    toolkit::SetLastErrorFromErrno(pszName ? errno : EINVAL);
    return FALSE;
}

int toolkit::CountOpenFiles()
{
    const std::lock_guard lock(s_mutex);
    return s_files.GetCount();
}
