#include "Editor/disk/Trash.h"

#include "Editor/disk/FileNames.h"
#include "Editor/disk/FileText.h"
#include "Editor/disk/TempEntry.h"
#include "Editor/disk/UserPlaces.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace editor
{
namespace
{

namespace fs = std::filesystem;

constexpr std::string_view kInfoEnding = ".trashinfo";
constexpr std::size_t kLongestEnding = 15;                        // of a name, that is kept as an extension
constexpr std::size_t kLongestStem = kLongestName - 15 - 10 - 10; // leaves room for an extension, a number, the above
int g_nMissed = 0;

// One trash; what lies on another file system than it cannot be moved there.
struct Trash
{
    std::string path;
    std::string below; // paths are noted from there on; empty: as they are
};

bool IsSameDevice(const std::string& path, dev_t device)
{
    struct stat status;
    return lstat(path.c_str(), &status) != 0 || status.st_dev == device; // what goes wrong is met again there
}

// The folder, made when it is not there yet. The error number; ENOTDIR where something else than a folder of the
// user's own bears the name.
int MakeFolder(const std::string& path)
{
    if (mkdir(path.c_str(), 0700) == 0)
        return 0;
    if (errno != EEXIST)
        return errno;
    struct stat status;
    if (lstat(path.c_str(), &status) != 0)
        return errno;
    return S_ISDIR(status.st_mode) && status.st_uid == geteuid() ? 0 : ENOTDIR;
}

// Empty, or why the topmost folder of the file system cannot be told.
std::string FindTop(const std::string& folder, dev_t device, std::string& found)
{
    fs::path top = folder;
    for (; top.has_relative_path(); top = top.parent_path()) {
        struct stat status;
        if (lstat(top.parent_path().c_str(), &status) != 0)
            return SystemErrorText(errno);
        if (status.st_dev != device)
            break;
    }
    found = top.string();
    return {};
}

// Is it on that file system, or will it be once it is made?
bool WillBeOn(fs::path path, dev_t device)
{
    struct stat status;
    while (stat(path.c_str(), &status) != 0 && path.has_relative_path())
        path = path.parent_path();
    return status.st_dev == device;
}

// The folder for all users counts only when it is a real one, in which nobody can touch what is another's.
std::string SharedTrash(const std::string& top)
{
    struct stat status;
    const std::string path = fs::path(top) / ".Trash";
    if (lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || !(status.st_mode & S_ISVTX))
        return {};
    return path + '/' + std::to_string(geteuid());
}

// Where a trash for what lies on the device may be, the best first.
std::vector<Trash> TrashesFor(const std::string& top, dev_t device)
{
    std::vector<Trash> trashes;
    if (const std::string home = DataHome(); !home.empty() && WillBeOn(home, device))
        trashes.push_back({home + "/Trash", {}});
    if (const std::string shared = SharedTrash(top); !shared.empty())
        trashes.push_back({shared, top});
    trashes.push_back({fs::path(top) / (".Trash-" + std::to_string(geteuid())), top});
    return trashes;
}

// What may be at the top of a file system need not be: not where users may make nothing there, where no folders can be
// made, and where something else bears the name.
bool CannotHaveTrash(const std::string& top, int error)
{
    const bool bForbidden = error == EACCES || error == EROFS;
    return error == ENOTDIR || error == EPERM || error == EOPNOTSUPP ||
           (bForbidden && eaccess(top.c_str(), W_OK | X_OK) != 0);
}

// The error number; `bNone`: this trash is not there, and none is missed.
int MakeTrash(const Trash& trash, bool& bNone)
{
    std::error_code error;
    if (trash.below.empty())
        fs::create_directories(fs::path(trash.path).parent_path(), error);
    int failure = error ? error.value() : MakeFolder(trash.path);
    bNone = failure != 0 && !trash.below.empty() && CannotHaveTrash(trash.below, failure);
    for (const char* const pszPart : {"/files", "/info"})
        if (failure == 0)
            failure = MakeFolder(trash.path + pszPart);
    return failure;
}

std::string InfoFor(const Trash& trash, const std::string& path)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char date[32];
    std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &local);
    const std::string noted = trash.below.empty() ? path : fs::path(path).lexically_relative(trash.below).string();
    return "[Trash Info]\nPath=" + PercentEncoded(noted) + "\nDeletionDate=" + date + '\n';
}

// In the info folder first, which decides who has the name. EEXIST: somebody was faster.
int PutInto(const Trash& trash, const std::string& path, const std::string& name, TrashPlace& place)
{
    const std::string info = trash.path + "/info/" + name + std::string(kInfoEnding);
    TrashPlace there{trash.path, name};
    FileDescriptor handle(open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!handle)
        return errno;
    int error = WriteAll(handle.Get(), InfoFor(trash, path));
    if (error == 0 && !handle.Close())
        error = errno;
    if (error == 0)
        error = RenameWithoutReplacing(AT_FDCWD, path, AT_FDCWD, trash.path + "/files/" + name);
    if (error != 0)
        unlink(info.c_str());
    else
        place = std::move(there);
    return error;
}

bool Exists(const std::string& path)
{
    struct stat status;
    return lstat(path.c_str(), &status) == 0;
}

// Names that are in the trash already are counted up. The error number; 0: it is there.
int PutUnderFreeName(const Trash& trash, const std::string& path, TrashPlace& place)
{
    const fs::path file(path);
    const std::string ending = file.extension().string();
    const std::string extension = ending.size() <= kLongestEnding ? ending : std::string();
    const std::string name = file.filename().string();
    const std::string stem(Shortened(std::string_view(name).substr(0, name.size() - extension.size()), kLongestStem));
    const auto isTaken = [&](std::string_view candidate) {
        const std::string taken(candidate);
        return Exists(trash.path + "/files/" + taken) ||
               Exists(trash.path + "/info/" + taken + std::string(kInfoEnding));
    };
    int error = EEXIST;
    while (error == EEXIST)
        error = PutInto(trash, path, AnyNameForCopy(stem + extension, extension, isTaken), place);
    return error;
}

} // namespace

// A trash belongs to the file system that the file is on, whatever links lead to its folder. Where one cannot be made,
// the next one serves; but a disk that is full or broken has a trash all the same.
TrashResult MoveToTrash(const std::string& path)
{
    std::error_code missing;
    const std::string folder = fs::canonical(fs::path(path).parent_path(), missing).string();
    struct stat status;
    if (missing || stat(folder.c_str(), &status) != 0)
        return {SystemErrorText(missing ? missing.value() : errno), false, {}};
    const std::string real = (fs::path(folder) / fs::path(path).filename()).string();
    std::string top;
    if (std::string trouble = FindTop(folder, status.st_dev, top); !trouble.empty())
        return {std::move(trouble), false, {}};
    int failure = 0; // of the first that is missed
    TrashPlace place;
    for (const Trash& trash : TrashesFor(top, status.st_dev)) {
        bool bNone = false;
        if (const int error = MakeTrash(trash, bNone); error != 0) {
            failure = failure == 0 && !bNone ? error : failure;
            continue;
        }
        const int error = IsSameDevice(trash.path, status.st_dev) ? PutUnderFreeName(trash, real, place) : EXDEV;
        if (error != EXDEV) // one file system mounted twice counts as two
            return {error == 0 ? std::string() : SystemErrorText(error), false, std::move(place)};
    }
    if (failure != 0)
        return {"not removed, the trash cannot be made: " + SystemErrorText(failure), false, {}};
    return {"not removed, there is no trash on its file system", true, {}};
}

int TakeFromTrash(const TrashPlace& place, const std::string& path)
{
    const std::string info = place.trash + "/info/" + place.name + std::string(kInfoEnding);
    const int error = RenameWithoutReplacing(AT_FDCWD, place.trash + "/files/" + place.name, AT_FDCWD, path);
    if (error == 0)
        unlink(info.c_str());
    return error;
}

std::string RemoveFromDisk(const std::string& path, TrashPlace& place)
{
    if (!Exists(path) && errno == ENOENT)
        return {};
    const fs::path file(path);
    if (eaccess(file.parent_path().c_str(), W_OK | X_OK) != 0)
        return SystemErrorText(errno);
    TrashResult result = MoveToTrash(path);
    place = std::move(result.place);
    if (!result.isNoTrash || !PermanentRemoval::IsAllowed()) {
        g_nMissed += result.isNoTrash;
        return result.reason;
    }
    const int error = RemoveForGood(file.parent_path().string(), file.filename().string());
    return error == 0 ? std::string() : SystemErrorText(error);
}

int CountMissedTrashes()
{
    return g_nMissed;
}

} // namespace editor
