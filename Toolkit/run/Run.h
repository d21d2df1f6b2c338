// The toolkit on its desktop: installing one, and running the queue for it.
#pragma once

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/message/TaskInbox.h"

namespace toolkit
{

TOOLKIT_API void InstallDesktop(Desktop* pDesktop); // borrowed; NULL takes it away, after the last window

// One message: posted, else input, else a paint, else a due timer. FALSE when there was none.
TOOLKIT_API bool RunOneMessage();
TOOLKIT_API void RunPendingMessages(); // until there is none; timers that come due meanwhile included
// As above, but gives up after about so many milliseconds, so that real input is never starved.
TOOLKIT_API bool RunPendingMessagesFor(DWORD nMilliseconds); // true when nothing is left

// For work that goes on for a while without returning to the desktop: handles what has come meanwhile. Windows are
// painted and placed, the mouse moves and turns its wheel. Keys and presses of buttons go to the modal window and
// those inside it only (NULL: to none). A window that is to be closed is so afterwards; the modal window gets its
// WM_CLOSE at once. What was posted, tasks and timers wait, and no drag is taken: nobody hears of what is half done.
TOOLKIT_API void AnswerMeanwhile(HWND hModal);

// What tests compare: windows, timers and posted messages alive.
struct WindowCounts
{
    int windows, timers, posted;
};
TOOLKIT_API WindowCounts CountWindows();

} // namespace toolkit
