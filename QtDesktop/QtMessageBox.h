// Message boxes of the desktop.
#pragma once

#include "Toolkit/base/Types.h"

class QWidget;

namespace qtdesktop
{

// Shows the box and waits for the user, in an event loop of its own; the button's identifier. Closing the box,
// or its owner's end, is the answer Cancel, No or OK, whichever the box has first.
int AskMessageBox(QWidget* pOwner, LPCSTR pszText, LPCSTR pszCaption, UINT nType);

} // namespace qtdesktop
