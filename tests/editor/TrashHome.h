// A trash of the test's own, so that nothing gets into the user's.
#pragma once

#include "tests/editor/TempFolder.h"

#include <cstdlib>

class TrashHome
{
public:
    TrashHome() { Point(folder.Path()); }
    ~TrashHome() { unsetenv("XDG_DATA_HOME"); }

    TempFolder folder; // what lies in the trash is in Trash/files
    // The trash is below that path from now on.
    void Point(const std::string& path) const { setenv("XDG_DATA_HOME", path.c_str(), 1); }
};
