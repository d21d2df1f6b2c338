// Inside the library.
#pragma once

namespace views
{

// Shows the editor's menu for what is selected, at the cursor, until the user has chosen; what is chosen goes to the
// editor's main window. Nothing happens without an editor or a menu. The caller's view may be gone afterwards.
void ShowEditorMenu();

} // namespace views
