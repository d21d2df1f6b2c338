// Popup menus of the desktop.
#pragma once

#include "Toolkit/base/Geometry.h"
#include "Toolkit/desktop/MenuItems.h"

class QWidget;

namespace qtdesktop
{

// Waits for the user, and asks the window hOwner about what goes beyond the menu (WM_NEXTMENU); the chosen command, 0
// when nothing was chosen or the owner went meanwhile.
UINT TrackPopup(QWidget* pOwner, HWND hOwner, const std::vector<toolkit::MenuItem>& items, CPoint screen);

} // namespace qtdesktop
