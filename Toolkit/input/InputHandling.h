// Input that has waited is handled: keys and what the desktop does with windows. The mouse has a file of its own.
#pragma once

#include "Toolkit/message/Messages.h"

namespace toolkit
{
bool RunOneInput();           // false when there is none
void ResetInput();            // nothing waits, no key is down, the mouse is nowhere: another desktop begins
void DispatchPosted(MSG msg); // a posted message; key messages go the way of keys
} // namespace toolkit
