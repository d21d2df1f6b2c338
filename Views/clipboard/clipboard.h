// What the user does to atoms as a whole: copying, cutting, pasting, removing, renaming.
//
// The commands act on the atoms that are active in the atom editor (Views/host/host.h), which also writes them into
// archives and reads them back. On the clipboard and in drags atoms travel as a path handle: the path, in global
// memory, of a transfer file that holds an archive's bytes. Every view hears of a change through the editor. Plain
// functions without a state of their own; user-interface thread only.
#pragma once

#include "Views/clipboard/Archives.h"
#include "Views/clipboard/Commands.h"
#include "Views/clipboard/Naming.h"
#include "Views/clipboard/TransferFileOwner.h"
