// What an input method asks of the toolkit's field with the focus, and what it tells it.
//
// Positions are Qt's here: they count UTF-16 units, those of the toolkit bytes of UTF-8.
#pragma once

#include "Toolkit/input/TextInput.h"

#include <QInputMethodEvent>
#include <QVariant>
#include <optional>

namespace qtdesktop
{

// The field inside a top-level window that takes text now; nullopt when there is none.
std::optional<toolkit::TextInputState> FindTextInput(HWND hTop);

// An invalid answer for what a field says nothing of.
QVariant AnswerInputMethod(HWND hTop, Qt::InputMethodQuery query);

// What is finished is queued as typed text, what is not is shown at the caret. True while something is being composed.
bool TakeInputMethod(HWND hTop, const QInputMethodEvent& event);

} // namespace qtdesktop
