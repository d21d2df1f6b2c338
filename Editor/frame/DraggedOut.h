// What another program does with files that were dragged to it.
#pragma once

#include "Editor/model/Container.h"
#include "Editor/services/ActiveMembers.h"

#include <vector>

namespace editor
{

// It was to copy them, but deals with the files itself and in its own time: it may have moved them. So the disk is
// looked at a few times afterwards, less and less often. Nothing is ever removed for it.
class DraggedOut
{
public:
    DraggedOut() = default;
    explicit DraggedOut(const ActiveMembers& members); // the first of very many will do

    unsigned NextCheck(); // milliseconds until it is due; 0: there is nothing more to look for
    // The containers that have lost files since the last look, each once; they have not been read anew.
    std::vector<CStubRef<CContainer>> Check();

private:
    std::vector<CStubRef<CMember>> m_members; // whose files are there, as far as is known
    unsigned m_nPause = 250;
};

} // namespace editor
