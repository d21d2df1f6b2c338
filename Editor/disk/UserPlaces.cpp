#include "Editor/disk/UserPlaces.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace editor
{
namespace
{

std::string Environment(const char* pszName)
{
    const char* const pszValue = std::getenv(pszName);
    return pszValue && pszValue[0] == '/' ? pszValue : std::string();
}

std::string Place(const char* pszName, const char* pszBelowHome)
{
    if (std::string path = Environment(pszName); !path.empty())
        return path;
    std::string home = Environment("HOME");
    if (const passwd* const pUser = home.empty() ? getpwuid(geteuid()) : nullptr)
        home = pUser->pw_dir;
    return home.empty() ? home : home + pszBelowHome;
}

} // namespace

std::string DataHome()
{
    return Place("XDG_DATA_HOME", "/.local/share");
}

std::string ConfigHome()
{
    return Place("XDG_CONFIG_HOME", "/.config");
}

std::string StateHome()
{
    return Place("XDG_STATE_HOME", "/.local/state");
}

} // namespace editor
