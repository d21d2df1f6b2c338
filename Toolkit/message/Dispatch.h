// How a message gets to its window at once. PostMessage is the other way.
#pragma once

#include "Toolkit/message/Messages.h"

// A toolkit exception that leaves a handler ends here: it fails a creation, leaves a paint as it is, and is reported
// for any other message, whose answer is then 0. So is that of a message to a NULL or stale handle.
TOOLKIT_API LRESULT SendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

namespace toolkit
{
struct WindowRecord;

// What SendMessage does once it has found the window.
LRESULT CallWindow(WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam);
void SendSize(HWND hWnd); // WM_SIZE with the client area's size
} // namespace toolkit
