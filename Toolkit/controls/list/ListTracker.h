// The list control's eyes while a mouse button is down: an invisible child that holds the capture.
//
// It sees movements and timers that a class derived from the list keeps to itself, so that dragging and the
// rubber band work whatever that class does with its own messages. A released button it hands to the list.
#pragma once

#include "Toolkit/window/NativeWindow.h"

namespace toolkit
{

inline constexpr UINT kAutoScrollPeriod = 30; // milliseconds

HWND CreateListTracker(HWND hList); // NULL when it failed; its coordinates are the list's
void SetAutoScroll(HWND hTracker, bool on);

} // namespace toolkit
