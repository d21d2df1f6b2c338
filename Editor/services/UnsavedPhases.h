// What the user has set of phases and not saved yet travels with them.
#pragma once

#include "Editor/model/Phase.h"

#include <string>
#include <vector>

namespace editor
{

// The archive was written from the disk, where their timing is not yet. Those of the phases that are in it, at any
// depth, get their timing there; the disk stays as it is. Costs nothing without such a phase, else the time to copy the
// archive. Empty when done, else one line with the reason.
std::string PutUnsaved(IArchive& archive, const std::vector<const CPhase*>& unsaved);

} // namespace editor
