#include "Toolkit/message/Queue.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Fifo.h"
#include "Toolkit/message/Input.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/message/Timers.h"

#include <algorithm>
#include <utility>

namespace
{
using toolkit::Posted;
using toolkit::Task;

struct
{
    toolkit::Fifo<Posted> posted;
    int nHolds = 0;
    bool bPaintRequested = false;
    // What the desktop was asked for and has not done yet: to run the queue now, or at that tick.
    bool bWakeNow = false;
    std::optional<DWORD> wakeAt;
} s_queue;

void TakeTasksIn()
{
    if (toolkit::HasTasks())
        toolkit::TakeTasks([](Task& task) {
            s_queue.posted.MakeRoom();
            s_queue.posted.Put({{}, std::move(task)});
        });
}

bool HasWork()
{
    const bool bPosted = s_queue.nHolds == 0 && (!s_queue.posted.IsEmpty() || toolkit::HasTasks());
    return bPosted || toolkit::HasInput() || s_queue.bPaintRequested;
}

void AskForWakeAt(std::optional<DWORD> tick)
{
    if (!std::exchange(s_queue.bWakeNow, false) && s_queue.wakeAt == tick)
        return;
    s_queue.wakeAt = tick;
    toolkit::Desktop& desktop = toolkit::CurrentDesktop();
    if (!tick)
        return desktop.Wake(std::nullopt);
    const auto inMilliseconds = static_cast<std::int32_t>(*tick - desktop.Ticks());
    desktop.Wake(static_cast<DWORD>(std::max(inMilliseconds, 0)));
}

bool IsDropped(const Posted& posted)
{
    return !posted.task && !IsWindow(posted.msg.hwnd);
}
} // namespace

void toolkit::RequestRun()
{
    if (s_queue.bWakeNow)
        return;
    s_queue.bWakeNow = true;
    s_queue.wakeAt.reset();
    CurrentDesktop().Wake(0);
}

void toolkit::UpdateWake()
{
    if (HasWork())
        RequestRun();
    else
        AskForWakeAt(s_queue.nHolds == 0 ? NextTimer() : std::nullopt);
}

void toolkit::BeginRun()
{
    s_queue.bWakeNow = false;
    if (s_queue.wakeAt && static_cast<std::int32_t>(CurrentDesktop().Ticks() - *s_queue.wakeAt) >= 0)
        s_queue.wakeAt.reset();
}

toolkit::QueueHold::QueueHold()
{
    ++s_queue.nHolds;
}

toolkit::QueueHold::~QueueHold()
{
    --s_queue.nHolds;
    UpdateWake();
}

bool toolkit::QueueHold::IsHeld()
{
    return s_queue.nHolds > 0;
}

void toolkit::RequestPaint()
{
    s_queue.bPaintRequested = true;
    RequestRun();
}

bool toolkit::IsPaintRequested()
{
    return s_queue.bPaintRequested;
}

void toolkit::EndPaintRequest()
{
    s_queue.bPaintRequested = false;
}

std::optional<toolkit::Posted> toolkit::TakePosted()
{
    TakeTasksIn();
    while (!s_queue.posted.IsEmpty())
        if (Posted posted = s_queue.posted.Take(); !IsDropped(posted))
            return posted;
    return std::nullopt;
}

int toolkit::CountPosted()
{
    TakeTasksIn();
    return static_cast<int>(std::count_if(s_queue.posted.begin(), s_queue.posted.end(),
                                          [](const Posted& posted) { return !IsDropped(posted); }));
}

void toolkit::DropTasks()
{
    TakeTasksIn();
    s_queue.posted.RemoveIf([](const Posted& posted) { return posted.task != nullptr; });
    s_queue.bWakeNow = false;
    s_queue.wakeAt.reset();
}

BOOL PostMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!IsWindow(hWnd))
        return FALSE;
    TakeTasksIn(); // a task that was posted before this message runs before it
    s_queue.posted.Put({{hWnd, message, wParam, lParam}, nullptr});
    toolkit::RequestRun();
    return TRUE;
}
