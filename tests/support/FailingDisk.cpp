#include "tests/support/FailingDisk.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr FailOperation::Operation kLook{nullptr, false, false, false};
constexpr FailOperation::Operation kChange{nullptr, true, false, false};
constexpr FailOperation::Operation kGrow{nullptr, true, true, false};
constexpr FailOperation::Operation kWrite{nullptr, true, true, true};

std::atomic<bool> g_bCounting = false;
thread_local bool t_bNoting = false;
int g_nFailing = 0; // the operation that fails; 0: none
DiskFault g_fault;
bool g_bFull = false;
std::vector<FailOperation::Operation> g_seen;
std::string g_ownSystem; // empty: none

// The error number that this operation fails with; 0: it does not.
int ErrorOf(const char* pszName, FailOperation::Operation operation)
{
    static std::mutex s_mutex;
    if (!g_bCounting || t_bNoting)
        return 0;
    const std::lock_guard lock(s_mutex);
    t_bNoting = true; // what follows is no operation of the program's
    operation.pszName = pszName;
    g_seen.push_back(operation);
    t_bNoting = false;
    const bool bNow = static_cast<int>(g_seen.size()) == g_nFailing;
    if (bNow && g_fault == DiskFault::Death && !operation.bWrites)
        _exit(kDiskDeath);
    if (bNow && g_fault == DiskFault::Full)
        g_bFull = true;
    if (g_bFull && (bNow || operation.bGrows))
        return ENOSPC;
    if (!bNow)
        return 0;
    return g_fault == DiskFault::Forbidden ? EACCES : g_fault == DiskFault::InputOutput ? EIO : 0;
}

template <std::size_t size>
struct Name
{
    consteval Name(const char (&name)[size]) { std::copy(name, name + size, text); }
    char text[size];
};

template <Name name, class Function>
Function* Real()
{
    static Function* const pReal = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name.text));
    return pReal;
}

template <class Result>
Result Failed(Result failure, int error)
{
    errno = error;
    return failure;
}

template <Name name, class Function, class... Arguments>
auto Do(FailOperation::Operation operation, Arguments... arguments)
{
    using Result = decltype(Real<name, Function>()(arguments...));
    if (const int error = ErrorOf(name.text, operation); error != 0) {
        if constexpr (std::is_pointer_v<Result>)
            return Failed(Result(), error);
        else
            return Failed(static_cast<Result>(-1), error);
    }
    return Real<name, Function>()(arguments...);
}

FailOperation::Operation Opening(int flags)
{
    return flags & O_CREAT ? kGrow : kLook;
}

// Without a block of memory: that there is none may be what is being tested.
bool IsOnOwnSystem(int nFolder, const char* pszPath)
{
    if (g_ownSystem.empty())
        return false;
    char path[2 * PATH_MAX] = "", link[64];
    if (pszPath[0] != '/' && nFolder != AT_FDCWD) {
        std::snprintf(link, sizeof link, "/proc/self/fd/%d", nFolder);
        if (readlink(link, path, PATH_MAX) < 0)
            return false;
        std::strcat(path, "/");
    }
    std::strncat(path, pszPath, PATH_MAX - 1);
    const std::size_t size = g_ownSystem.size();
    return std::strncmp(path, g_ownSystem.c_str(), size) == 0 && (path[size] == '\0' || path[size] == '/');
}

int Placed(int result, int nFolder, const char* pszPath, struct stat* pStatus)
{
    if (result == 0 && IsOnOwnSystem(nFolder, pszPath))
        pStatus->st_dev += 1'000'000;
    return result;
}

} // namespace

FailOperation::FailOperation(int nth, DiskFault fault)
{
    g_nFailing = nth;
    g_fault = fault;
    g_bFull = false;
    g_seen.clear();
    g_bCounting = true;
}

FailOperation::~FailOperation()
{
    g_bCounting = false;
}

const std::vector<FailOperation::Operation>& FailOperation::Seen()
{
    return g_seen;
}

// A disk that is full does not hinder reading, and dying there is like dying before the next change.
bool FailOperation::CanHappen(const Operation& operation, DiskFault fault)
{
    return fault == DiskFault::HalfWritten                         ? operation.bWrites
           : fault == DiskFault::Full || fault == DiskFault::Death ? operation.bChanges
                                                                   : true;
}

OwnFileSystem::OwnFileSystem(std::string path)
{
    g_ownSystem = std::move(path);
}

OwnFileSystem::~OwnFileSystem()
{
    g_ownSystem.clear();
}

#pragma GCC visibility push(default) // for the libraries that the program loads
// clang-format off
extern "C" {

int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Do<"open", int(const char*, int, ...)>(Opening(flags), path, flags, mode);
}
int openat(int folder, const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Do<"openat", int(int, const char*, int, ...)>(Opening(flags), folder, path, flags, mode);
}
ssize_t read(int fd, void* p, size_t size) { return Do<"read", decltype(read)>(kLook, fd, p, size); }
ssize_t write(int fd, const void* p, size_t size)
{
    const bool bCounted = g_bCounting;
    if (const int error = ErrorOf("write", kWrite); error != 0)
        return Failed<ssize_t>(-1, error);
    auto* const pReal = Real<"write", decltype(write)>();
    if (!bCounted || static_cast<int>(g_seen.size()) != g_nFailing || size < 2)
        return pReal(fd, p, size);
    const ssize_t done = pReal(fd, p, size / 2);
    if (g_fault == DiskFault::Death)
        _exit(kDiskDeath);
    g_bFull = true;
    return done;
}
int close(int fd)
{
    auto* const pReal = Real<"close", decltype(close)>();
    const bool bWriting = g_bCounting && (fcntl(fd, F_GETFL) & O_ACCMODE) != O_RDONLY;
    const int error = bWriting ? ErrorOf("close", kChange) : 0;
    const int result = pReal(fd); // in any case: the system does, too
    return error != 0 ? Failed(-1, error) : result;
}
int fsync(int fd) { return Do<"fsync", decltype(fsync)>(kChange, fd); }
int ftruncate(int fd, off_t size) noexcept { return Do<"ftruncate", decltype(ftruncate)>(kChange, fd, size); }
int fchmod(int fd, mode_t mode) noexcept { return Do<"fchmod", decltype(fchmod)>(kChange, fd, mode); }
int futimens(int fd, const timespec* t) noexcept { return Do<"futimens", int(int, const timespec*)>(kChange, fd, t); }
int flock(int fd, int how) noexcept { return Do<"flock", decltype(flock)>(kLook, fd, how); }
int mkdir(const char* path, mode_t mode) noexcept { return Do<"mkdir", decltype(mkdir)>(kGrow, path, mode); }
int mkdirat(int f, const char* path, mode_t mode) noexcept { return Do<"mkdirat", decltype(mkdirat)>(kGrow, f, path, mode); }
int unlink(const char* path) noexcept { return Do<"unlink", int(const char*)>(kChange, path); }
int unlinkat(int f, const char* path, int how) noexcept { return Do<"unlinkat", int(int, const char*, int)>(kChange, f, path, how); }
int symlinkat(const char* to, int f, const char* path) noexcept { return Do<"symlinkat", int(const char*, int, const char*)>(kGrow, to, f, path); }
ssize_t readlinkat(int f, const char* path, char* p, size_t size) noexcept { return Do<"readlinkat", ssize_t(int, const char*, char*, size_t)>(kLook, f, path, p, size); }
int linkat(int f, const char* a, int g, const char* b, int how) noexcept { return Do<"linkat", int(int, const char*, int, const char*, int)>(kGrow, f, a, g, b, how); }
int renameat(int f, const char* a, int g, const char* b) noexcept { return Do<"renameat", int(int, const char*, int, const char*)>(kChange, f, a, g, b); }
int renameat2(int f, const char* a, int g, const char* b, unsigned how) noexcept
{
    if (IsOnOwnSystem(f, a) != IsOnOwnSystem(g, b))
        return Failed(-1, EXDEV);
    return Do<"renameat2", int(int, const char*, int, const char*, unsigned)>(kChange, f, a, g, b, how);
}
int access(const char* path, int how) noexcept { return Do<"access", int(const char*, int)>(kLook, path, how); }
int eaccess(const char* path, int how) noexcept { return Do<"eaccess", int(const char*, int)>(kLook, path, how); }
char* realpath(const char* path, char* p) noexcept { return Do<"realpath", char*(const char*, char*)>(kLook, path, p); }
int stat(const char* path, struct stat* p) noexcept { return Placed(Do<"stat", int(const char*, struct stat*)>(kLook, path, p), AT_FDCWD, path, p); }
int lstat(const char* path, struct stat* p) noexcept { return Placed(Do<"lstat", int(const char*, struct stat*)>(kLook, path, p), AT_FDCWD, path, p); }
int fstat(int fd, struct stat* p) noexcept { return Placed(Do<"fstat", int(int, struct stat*)>(kLook, fd, p), fd, "", p); }
int fstatat(int f, const char* path, struct stat* p, int how) noexcept { return Placed(Do<"fstatat", int(int, const char*, struct stat*, int)>(kLook, f, path, p, how), f, path, p); }
DIR* fdopendir(int fd) { return Do<"fdopendir", DIR*(int)>(kLook, fd); }
dirent* readdir(DIR* p) { return Do<"readdir", dirent*(DIR*)>(kLook, p); }

} // extern "C"
// clang-format on
#pragma GCC visibility pop
