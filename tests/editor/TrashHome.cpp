#include "tests/editor/TrashHome.h"

#include <cstdlib>

namespace
{

constexpr const char* kDataHome = "XDG_DATA_HOME";

std::string DataHome()
{
    const char* const pszValue = std::getenv(kDataHome);
    return pszValue ? pszValue : "";
}

} // namespace

TrashHome::TrashHome() : m_former(DataHome())
{
    Point(folder.Path());
}

TrashHome::~TrashHome()
{
    Point(m_former);
}

void TrashHome::Point(const std::string& path) const
{
    if (path.empty())
        unsetenv(kDataHome);
    else
        setenv(kDataHome, path.c_str(), 1);
}
