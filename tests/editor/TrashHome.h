// A trash of the test's own, so that nothing gets into the user's.
#pragma once

#include "tests/editor/TempFolder.h"

class TrashHome
{
public:
    TrashHome();
    ~TrashHome();

    TempFolder folder;                         // what lies in the trash is in Trash/files
    void Point(const std::string& path) const; // the trash is below that path from now on

private:
    const std::string m_former;
};
