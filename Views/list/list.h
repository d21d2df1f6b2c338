// The list views: the members of one container, as pictures with their names.
//
// A host makes one of the concrete views, creates it as a child window and gives it a container with SetRootAtom.
// From then on the view follows the atom editor (Views/host/host.h): rows come, go and change as the editor
// tells, and selections are exchanged with all other views. User-interface thread only.
//
// The view is not counted. Its window may be destroyed at any time, also from inside a call that the view makes (an
// answer to its question, an editor's broadcast, a drag). The view itself the host deletes when none of its calls and
// messages is under way any more: never from inside one, be the window gone or not.
#pragma once

#include "Views/list/IconList.h"
#include "Views/list/ListDropTarget.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/ThumbList.h"
