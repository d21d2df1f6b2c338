// What a key event of Qt means to the toolkit.
#pragma once

#include "Toolkit/message/Input.h"

#include <QKeyEvent>
#include <string>

namespace qtdesktop
{

toolkit::Modifiers ToModifiers(Qt::KeyboardModifiers modifiers);

// The modifiers once the event has happened: a modifier's own key counts at once.
toolkit::Modifiers ModifiersAfter(const QKeyEvent& event);

// The virtual key; VK_UNKNOWN for a key that the toolkit does not know.
UINT ToVirtualKey(const QKeyEvent& event);

// What the key types, in UTF-8: printable text only. Control, Alt and the system's key make a command of it;
// AltGr, which Qt reports apart from them, does not.
std::string TypedText(const QKeyEvent& event);

} // namespace qtdesktop
