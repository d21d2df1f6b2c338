// The tree view: the atoms that the editor announces, each container with its members below it.
//
// A host makes a CObjectsTree and creates it as a child window; the tree then registers with the atom editor
// (Views/host/host.h) and stays empty until the editor announces atoms. From then on items come, go and change as
// the editor tells, and the selection is exchanged with all other views. User-interface thread only.
//
// The tree is not counted. Its window may be destroyed at any time, also from inside a call that the tree makes (an
// answer to its question, an editor's broadcast, a drag). The tree itself the host deletes when none of its calls and
// messages is under way any more: never from inside one, be the window gone or not.
#pragma once

#include "Views/tree/ObjectsTree.h"
