// Transfer files of programs that ended before they could delete them.
#pragma once

namespace editor
{

// Deletes those that lie where this program makes its own ("TEMP"): files of the user's, for nobody else to read, with
// a name such as transfer files have and an archive of this editor in them, at least a minute old, that no process
// holds (Views/clipboard/TransferFileOwner.h) or is reading. Nothing else is touched.
void RemoveLeftTransfers();

} // namespace editor
