// What becomes of the members of folders, told by the system.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace editor
{

// What has happened in one folder since it was last told of. Whether something of a name has come, has gone or was
// written the disk tells.
struct FolderNews
{
    std::string folder;
    std::set<std::string> names;
    std::vector<std::pair<std::string, std::string>> renamed; // from, to; both are among the names, too
    bool isUnknown = false;                                   // more than could be told: all has to be looked at
};

// Tells of folders for as long as they are watched, also of what this program does itself. News of the last moment come
// together, a tenth of a second after the last and a quarter after the first: many changes at once are few news.
class FolderWatch
{
public:
    using Tell = std::function<void(std::vector<FolderNews>)>; // on the window's thread

    explicit FolderWatch(Tell tell); // as long as it lives a desktop is installed
    ~FolderWatch();                  // nothing is told any more
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    // A folder is watched as long as this lives, under the path it had. May outlive the watch. Empty: it is not
    // watched.
    using Place = std::shared_ptr<void>;
    // The system has only so many to give, and not on every file system others' doings can be seen.
    Place Watch(const std::string& path);

private:
    struct Shared;

    static void Work(const std::shared_ptr<Shared>& pShared);

    std::shared_ptr<Shared> m_pShared; // empty: nothing can be watched at all
};

} // namespace editor
