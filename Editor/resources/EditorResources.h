// The texts and pictures that the views and the editor show, by number.
#pragma once

#include "Toolkit/graphics/Resources.h"

namespace editor
{

// The library's own numbers.
inline constexpr UINT IDS_NAME_FAILED = 0xE00A;
inline constexpr UINT IDS_NOT_INSERTED = 0xE00B; // the tree could not take an atom
inline constexpr UINT IDS_TREE_PANE = 0xE00D;
inline constexpr UINT IDS_RENAME_FAILED = 0xE012;
inline constexpr UINT IDS_CONFIRM_REMOVE = 0xE013;

// The editor's own.
inline constexpr UINT IDS_COPY_FAILED = 2001;
inline constexpr UINT IDS_CUT_FAILED = 2002;
inline constexpr UINT IDS_PASTE_FAILED = 2003;
inline constexpr UINT IDS_REMOVE_FAILED = 2004;
inline constexpr UINT IDS_SAVE_FAILED = 2005;
inline constexpr UINT IDS_DRAG_FAILED = 2006;
inline constexpr UINT IDS_MOVE_FAILED = 2007;
inline constexpr UINT IDS_DROP_FAILED = 2008;
inline constexpr UINT IDS_NOTHING_PASTED = 2009;

// Pictures, the library's own numbers again.
inline constexpr UINT IDB_FOLDER = 1006;         // transparent where it is pure red
inline constexpr UINT IDB_CONTAINER_MARK = 1011; // the same; on a container's thumbnail
inline constexpr UINT IDB_TREE_ITEMS = 1013;     // for atoms without an icon: any, and one that is expanded
inline constexpr UINT IDR_TREE_PANE = 1007;
inline constexpr UINT IDR_ICON_PANE = 1008; // icon and caption, this one and the next
inline constexpr UINT IDR_THUMBNAIL_PANE = 1009;

inline constexpr int kMarkExtent = 16;      // of the mark on a thumbnail
inline constexpr int kIconExtent = 48;      // of a row's picture
inline constexpr int kThumbnailExtent = 80; // of what is drawn of a thumbnail
inline constexpr int kPaneIconExtent = 16;  // of a pane's icon
inline constexpr int kTreeIconExtent = 16;  // of a tree item's

// Fills the module with all of them.
void AddEditorResources(CResourceModule& module);

} // namespace editor
