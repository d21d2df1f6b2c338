#include "Editor/disk/TextFile.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/disk/TempEntry.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace editor
{

int ReadText(const std::string& path, std::uint64_t nMost, TextState& state)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file || fstat(file.Get(), &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    if (static_cast<std::uint64_t>(status.st_size) > nMost)
        return EFBIG;
    state.changed = status.st_mtim;
    state.text.resize(static_cast<std::size_t>(status.st_size));
    const ssize_t got = read(file.Get(), state.text.data(), state.text.size());
    if (got < 0)
        return errno;
    state.text.resize(static_cast<std::size_t>(got));
    return 0;
}

int WriteText(const std::string& path, const TextState& state)
{
    const int error = ReplaceFile(path, state.text);
    const timespec times[2] = {{0, UTIME_OMIT}, state.changed};
    if (error == 0 && utimensat(AT_FDCWD, path.c_str(), times, 0) != 0)
        return 0; // a file system may not keep times: the file is none the worse
    return error;
}

} // namespace editor
