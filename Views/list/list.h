// The list views: the members of one container, as pictures with their names.
//
// A host makes one of the concrete views, creates it as a child window and gives it a container with SetRootAtom.
// From then on the view follows the atom editor (Views/host/host.h): rows come, go and change as the editor
// tells, and selections are exchanged with all other views. The view is not counted: the host deletes it when its
// window is gone. User-interface thread only.
#pragma once

#include "Views/list/IconList.h"
#include "Views/list/ListDropTarget.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/ThumbList.h"
