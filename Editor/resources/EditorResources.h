// The texts and pictures that the views and the editor show, by number.
#pragma once

#include "HostKit/pictures/Resources.h"

namespace editor
{

using hostkit::IDS_COPY_FAILED;
using hostkit::IDS_CUT_FAILED;
using hostkit::IDS_MOVE_FAILED;
using hostkit::IDS_NOTHING_PASTED;
using hostkit::IDS_PASTE_FAILED;
using hostkit::IDS_REMOVE_FAILED;
using hostkit::kIconExtent;
using hostkit::kPaneIconExtent;

// The editor's own texts, beside the kit's.
inline constexpr UINT IDS_SAVE_FAILED = 2005;
inline constexpr UINT IDS_DROP_FAILED = 2008;
inline constexpr UINT IDS_FOLLOW_FAILED = 2010;
inline constexpr UINT IDS_NEW_FAILED = 2012;
inline constexpr UINT IDS_RESTORE_FAILED = 2013;
inline constexpr UINT IDS_NAME_REFUSED = 2011;

// Fills the module with all of them.
void AddEditorResources(CResourceModule& module);

} // namespace editor
