// The texts and pictures that the views and the editor show, by number.
#pragma once

#include "Toolkit/graphics/Resources.h"

namespace editor
{

// The editor's own texts, beside the library's (Views/host/Resources.h).
inline constexpr UINT IDS_COPY_FAILED = 2001;
inline constexpr UINT IDS_CUT_FAILED = 2002;
inline constexpr UINT IDS_PASTE_FAILED = 2003;
inline constexpr UINT IDS_REMOVE_FAILED = 2004;
inline constexpr UINT IDS_SAVE_FAILED = 2005;
inline constexpr UINT IDS_DRAG_FAILED = 2006;
inline constexpr UINT IDS_MOVE_FAILED = 2007;
inline constexpr UINT IDS_DROP_FAILED = 2008;
inline constexpr UINT IDS_NOTHING_PASTED = 2009;

inline constexpr int kMarkExtent = 16;      // of the mark on a thumbnail
inline constexpr int kIconExtent = 48;      // of a row's picture
inline constexpr int kThumbnailExtent = 80; // of what is drawn of a thumbnail
inline constexpr int kPaneIconExtent = 16;  // of a pane's icon
inline constexpr int kTreeIconExtent = 16;  // of a tree item's

// Fills the module with all of them.
void AddEditorResources(CResourceModule& module);

} // namespace editor
