// The message queue: what waits, and when the desktop is to have it run.
#pragma once

#include "Toolkit/message/Messages.h"
#include "Toolkit/message/TaskInbox.h"

#include <optional>

TOOLKIT_API BOOL PostMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam); // FALSE for a stale handle

namespace toolkit
{

struct Posted
{
    MSG msg;
    Task task; // instead of a message
};
std::optional<Posted> TakePosted(); // what was posted to windows that are gone is dropped
int CountPosted();                  // to windows that are alive, and tasks
void DropTasks();                   // the desktop goes

// While one lives, what was posted, tasks and timers wait: the queue has nothing but input and paints.
class QueueHold
{
public:
    QueueHold();
    ~QueueHold();
    QueueHold(const QueueHold&) = delete;
    QueueHold& operator=(const QueueHold&) = delete;

    static bool IsHeld();
};

void RequestPaint(); // something is noted to be painted, or painted and not yet presented
bool IsPaintRequested();
void EndPaintRequest();

void RequestRun(); // something was queued or noted: the desktop is asked, once, to have the queue run
void BeginRun();   // the desktop has called: what it was asked for by now is done
// Asks the desktop for what the queue needs from now on. Before control goes to a loop of the desktop's own.
void UpdateWake();

} // namespace toolkit
