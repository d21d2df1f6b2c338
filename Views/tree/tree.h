// The tree view: the atoms that the editor announces, each container with its members below it.
//
// A host makes a CObjectsTree and creates it as a child window; the tree then registers with the atom editor
// (Views/host/host.h) and stays empty until the editor announces atoms. From then on items come, go and change as
// the editor tells, and the selection is exchanged with all other views. The tree is not counted: the host deletes
// it when its window is gone. User-interface thread only.
#pragma once

#include "Views/tree/ObjectsTree.h"
