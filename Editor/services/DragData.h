// What a drag of the editor's carries.
#pragma once

#include "Editor/services/ActiveMembers.h"
#include "Toolkit/exchange/DataSource.h"

#include <memory>

namespace editor
{

// The active atoms as they are now: under the editor's format the path handle of a new transfer file, which goes with
// the data; and for other programs the URIs of the members, whose files they deal with themselves: such a drag removes
// nothing, and proposes a copy. NULL when no transfer file can be made; the editor's archive error may say why.
std::unique_ptr<COleDataSource> MakeDragData(IAtomEditor& editor, const ActiveMembers& members);

} // namespace editor
