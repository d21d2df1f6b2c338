// The numbers under which the views ask the host's resources (CResourceModule) for texts and pictures.
//
// Whatever is missing is done without: a caption is empty, a question stands without its text, an atom without a
// picture of its own has none. The host adds what it has before the first view is created.
#pragma once

#include "Toolkit/base/Types.h"

namespace views
{

// Texts.
inline constexpr UINT IDS_NAME_FAILED = 0xE00A;    // caption: a name could not be read
inline constexpr UINT IDS_NOT_INSERTED = 0xE00B;   // the tree could not take an atom
inline constexpr UINT IDS_TREE_PANE = 0xE00D;      // caption of the tree's pane; "Loaded Libraries" without it
inline constexpr UINT IDS_RENAME_FAILED = 0xE012;  // caption: an atom was not renamed
inline constexpr UINT IDS_CONFIRM_REMOVE = 0xE013; // whether the active atoms are to be removed: yes or no

// Bitmaps; transparent where they are pure red.
inline constexpr UINT IDB_LIST_ITEMS = 1006;     // 48 wide pictures; the first for atoms without an icon of their own,
                                                 // and for containers among thumbnails
inline constexpr UINT IDB_CONTAINER_MARK = 1011; // on the thumbnails of containers
inline constexpr UINT IDB_TREE_ITEMS = 1013;     // 16 wide: for atoms without an icon, and for those that are expanded

// A pane's icon, and for the lists also its caption (a text with the same number).
inline constexpr UINT IDR_TREE_PANE = 1007;
inline constexpr UINT IDR_ICON_PANE = 1008;
inline constexpr UINT IDR_THUMBNAIL_PANE = 1009;

} // namespace views
