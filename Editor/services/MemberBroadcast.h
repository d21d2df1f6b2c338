// What has become of a container's members, told to every view.
#pragma once

#include "Editor/model/Container.h"
#include "Editor/services/AtomEditor.h"

namespace editor
{

// One that was renamed is told of as the user's renaming is, one that was written as changed; a few that
// have come one by one; what else has come and gone as a whole, however much it is: the views look which they know.
void TellOf(CAtomEditor& editor, CContainer& container, const MemberNews& news);
// Reads the container anew, as far as anybody knows its members, and tells of what that has brought.
void ReadAgainAndTell(CAtomEditor& editor, CContainer& container);

} // namespace editor
