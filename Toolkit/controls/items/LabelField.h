// The windows of a label that is edited in place: the field, and the wait of the slow second click. They tell the item
// control whose children they are.
//
// The field is an edit control and a child of its owner. It lives until its owner destroys it. Switching to another
// window, or a message box, takes the focus from it, too, but ends nothing: the editing goes on when the user comes
// back.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <string>

namespace toolkit
{

// A hidden field with the text, all of it selected; NULL when it failed. The alignment is an ES_ style.
HWND CreateLabelField(HWND hOwner, const std::string& text, DWORD align);
// What the field wants: its text and room for a letter more, with a border; the height of one line.
CSize LabelFieldSize(HWND hField);
// From the field's left or top edge to the text's.
inline constexpr int kLabelFieldEdge = 4, kLabelFieldTop = 2;

// A hidden child that tells its owner once, after the double-click time, and is then to be destroyed. A timer of the
// owner's own would be in the way of a derived class that keeps timers to itself.
HWND StartLabelClock(HWND hOwner);

} // namespace toolkit
