#include "Editor/model/Trash.h"

#include "Editor/model/FileNames.h"
#include "Editor/model/FileText.h"
#include "Editor/model/TempEntry.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <vector>

namespace editor
{
namespace
{

namespace fs = std::filesystem;

constexpr std::string_view kInfoEnding = ".trashinfo";
constexpr std::size_t kLongestEnding = 15;                        // of a name, that is kept as an extension
constexpr std::size_t kLongestStem = kLongestName - 15 - 10 - 10; // leaves room for an extension, a number, the above
int g_nAllowed = 0, g_nMissed = 0;

// One trash; what lies on another file system than it cannot be moved there.
struct Trash
{
    std::string path;
    std::string below; // paths are noted from there on; empty: as they are
};

std::string Environment(const char* pszName)
{
    const char* const pszValue = std::getenv(pszName);
    return pszValue && pszValue[0] == '/' ? pszValue : std::string();
}

std::string DataHome()
{
    if (std::string path = Environment("XDG_DATA_HOME"); !path.empty())
        return path;
    std::string home = Environment("HOME");
    if (const passwd* const pUser = home.empty() ? getpwuid(geteuid()) : nullptr)
        home = pUser->pw_dir;
    return home.empty() ? home : home + "/.local/share";
}

bool IsSameDevice(const std::string& a, dev_t device)
{
    struct stat status;
    return lstat(a.c_str(), &status) == 0 && status.st_dev == device;
}

bool IsOwnFolder(const std::string& path)
{
    struct stat status;
    return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

bool MakeFolders(const std::string& path)
{
    std::error_code ignored;
    fs::create_directories(fs::path(path).parent_path(), ignored);
    for (const std::string& folder : {path, path + "/files", path + "/info"})
        if ((mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) || !IsOwnFolder(folder))
            return false;
    return true;
}

std::string TopOf(const std::string& folder, dev_t device)
{
    fs::path top = folder;
    while (top.has_relative_path() && IsSameDevice(top.parent_path().string(), device))
        top = top.parent_path();
    return top.string();
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

// Where a trash for what lies in the folder may be, the best first.
std::vector<Trash> TrashesFor(const std::string& folder, dev_t device)
{
    std::vector<Trash> trashes;
    if (const std::string home = DataHome(); !home.empty())
        trashes.push_back({home + "/Trash", {}});
    const std::string top = TopOf(folder, device);
    if (const std::string shared = SharedTrash(top); !shared.empty())
        trashes.push_back({shared, top});
    trashes.push_back({fs::path(top) / (".Trash-" + std::to_string(geteuid())), top});
    return trashes;
}

std::string PercentEncoded(std::string_view path)
{
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string encoded;
    for (const char c : path) {
        char hex[4];
        std::snprintf(hex, sizeof hex, "%%%02X", static_cast<unsigned char>(c));
        encoded += kPlain.find(c) != kPlain.npos ? std::string(1, c) : std::string(hex);
    }
    return encoded;
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
int PutInto(const Trash& trash, const std::string& path, const std::string& name)
{
    const std::string info = trash.path + "/info/" + name + std::string(kInfoEnding);
    FileHandle handle(open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!handle)
        return errno;
    int error = WriteAll(handle.Get(), InfoFor(trash, path));
    if (error == 0 && !handle.Close())
        error = errno;
    if (error == 0)
        error = RenameWithoutReplacing(AT_FDCWD, path, AT_FDCWD, trash.path + "/files/" + name);
    if (error != 0)
        unlink(info.c_str());
    return error;
}

bool Exists(const std::string& path)
{
    struct stat status;
    return lstat(path.c_str(), &status) == 0;
}

// Names that are in the trash already are counted up. The error number; 0: it is there.
int PutUnderFreeName(const Trash& trash, const std::string& path)
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
        error = PutInto(trash, path, NameForCopy(stem + extension, extension, isTaken));
    return error;
}

} // namespace

// A trash belongs to the file system that the file is on, whatever links lead to its folder.
TrashResult MoveToTrash(const std::string& path)
{
    std::error_code missing;
    const std::string folder = fs::canonical(fs::path(path).parent_path(), missing).string();
    struct stat status;
    if (missing || stat(folder.c_str(), &status) != 0)
        return {SystemErrorText(missing ? missing.value() : errno), false};
    const std::string real = (fs::path(folder) / fs::path(path).filename()).string();
    for (const Trash& trash : TrashesFor(folder, status.st_dev)) {
        if (!MakeFolders(trash.path) || !IsSameDevice(trash.path, status.st_dev))
            continue;
        const int error = PutUnderFreeName(trash, real);
        if (error != EXDEV) // one file system mounted twice counts as two
            return {error == 0 ? std::string() : SystemErrorText(error), false};
    }
    return {"not removed, there is no trash on its file system", true};
}

PermanentRemoval::PermanentRemoval()
{
    ++g_nAllowed;
}

PermanentRemoval::~PermanentRemoval()
{
    --g_nAllowed;
}

bool PermanentRemoval::IsAllowed()
{
    return g_nAllowed > 0;
}

std::string RemoveFromDisk(const std::string& path)
{
    if (!Exists(path) && errno == ENOENT)
        return {};
    const fs::path file(path);
    if (eaccess(file.parent_path().c_str(), W_OK | X_OK) != 0)
        return SystemErrorText(errno);
    const TrashResult result = MoveToTrash(path);
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
