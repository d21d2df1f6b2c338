// The field in which a name is edited, in a list or a tree.
#pragma once

#include "Toolkit/base/Types.h"

namespace editor
{

// For a view's messages, after it has handled them: when the field has got the focus with all of its text selected,
// only what stands before the extension stays selected. An extension begins with a letter and has up to five of them
// and digits.
void SelectStem(UINT message, WPARAM wParam, LPARAM lParam);

} // namespace editor
