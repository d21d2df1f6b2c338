// The user's trash: what is removed can be fetched back with the desktop's own means.
#pragma once

#include <string>

namespace editor
{

// Moves a file or folder (a link itself, not what it leads to) to the trash of its file system: the user's own
// ($XDG_DATA_HOME/Trash) when it lies there, else the one at the top of the file system (.Trash/UID or .Trash-UID).
// Nothing is ever copied. Empty when it is there. Else nothing has changed, `reason` tells why, and `isNoTrash`
// whether it is only that this file system has no trash, and none can be on it for this user: a trash that cannot be
// made because the disk is full or broken, or the user's home is protected, is missed.
struct TrashPlace
{
    std::string trash, name; // empty: nowhere
};
struct TrashResult
{
    std::string reason;
    bool isNoTrash = false;
    TrashPlace place; // where it is now
};
TrashResult MoveToTrash(const std::string& path);
// Moves it back, and leaves nothing of it in the trash. The error number; EEXIST when the path is taken.
int TakeFromTrash(const TrashPlace& place, const std::string& path);

// What cannot be moved to a trash is refused, unless the user has agreed to lose it: while one of these lives, such
// things are removed for good. A command that has asked the user about just that makes one; cutting and dragging do
// not.
class PermanentRemoval
{
public:
    PermanentRemoval() { ++s_nAllowed; }
    ~PermanentRemoval() { --s_nAllowed; }
    PermanentRemoval(const PermanentRemoval&) = delete;
    PermanentRemoval& operator=(const PermanentRemoval&) = delete;

    static bool IsAllowed() { return s_nAllowed > 0; }

private:
    static inline int s_nAllowed = 0;
};

// Moves it to the trash or, when that is allowed, removes it for good. Empty when it is gone from its place, also
// when it was not there any more; else the reason. `place` is where it is in the trash, if it is.
std::string RemoveFromDisk(const std::string& path, TrashPlace& place);
// How many removals were refused so far only because there was no trash for what was to go.
int CountMissedTrashes();

} // namespace editor
