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

// What tests compare: windows, timers and posted messages alive.
struct WindowCounts
{
    int windows, timers, posted;
};
TOOLKIT_API WindowCounts CountWindows();

} // namespace toolkit
