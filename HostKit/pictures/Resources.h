// A picture and a text for everything that the views ask a host's resources for, and for what the kit tells itself.
#pragma once

#include "HostKit/base/Api.h"
#include "Toolkit/graphics/Resources.h"

namespace hostkit
{

// The kit's own texts, beside the library's (Views/host/Resources.h): captions of what a command could not do.
inline constexpr UINT IDS_COPY_FAILED = 2001;
inline constexpr UINT IDS_CUT_FAILED = 2002;
inline constexpr UINT IDS_PASTE_FAILED = 2003;
inline constexpr UINT IDS_REMOVE_FAILED = 2004;
inline constexpr UINT IDS_DRAG_FAILED = 2006;
inline constexpr UINT IDS_MOVE_FAILED = 2007;
inline constexpr UINT IDS_NOTHING_PASTED = 2009;

inline constexpr int kMarkExtent = 16;     // of the mark on a thumbnail
inline constexpr int kIconExtent = 48;     // of a row's picture
inline constexpr int kPaneIconExtent = 16; // of a pane's icon
inline constexpr int kTreeIconExtent = 16; // of a tree item's

// Fills the module with all of them. A host replaces what it has itself by adding it afterwards, under the same number.
HOSTKIT_API void AddDefaultResources(CResourceModule& module);

} // namespace hostkit
