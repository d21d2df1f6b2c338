#include "Views/clipboard/inside/HeldFiles.h"

#include "Toolkit/base/Apart.h"

#include <fcntl.h>
#include <map>
#include <unistd.h>

namespace
{

// The descriptors that bear the locks. Stays to the end of the process: what is on the clipboard may go later than any
// object with a destructor.
std::map<HGLOBAL, int>& Held()
{
    static auto& held = *new std::map<HGLOBAL, int>;
    return held;
}

bool LockForReading(int fd)
{
    struct flock lock = {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(fd, F_OFD_SETLK, &lock) == 0;
}

} // namespace

void views::HoldFile(HGLOBAL hPath, const char* pszPath)
{
    const auto place = Held().try_emplace(hPath, -1).first; // raises what it raises before there is a lock
    const int fd = open(pszPath, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (fd >= 0 && LockForReading(fd)) {
        place->second = fd;
        return;
    }
    if (fd >= 0)
        close(fd);
    Held().erase(place);
}

void views::LetGoOfFile(HGLOBAL hPath)
{
    const auto place = Held().find(hPath);
    if (place == Held().end())
        return;
    toolkit::CloseApart(place->second);
    Held().erase(place);
}
