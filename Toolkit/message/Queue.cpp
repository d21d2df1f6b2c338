#include "Toolkit/message/Queue.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Fifo.h"
#include "Toolkit/message/InputQueue.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/message/Timers.h"

#include <algorithm>
#include <utility>

namespace
{
using toolkit::Posted;
using toolkit::Task;

toolkit::Fifo<toolkit::Posted> s_posted;
bool s_bPaintRequested = false;

// What the desktop was asked for and has not done yet: to run the queue now, or at that tick.
bool s_bWakeNow = false;
std::optional<DWORD> s_wakeAt;

void TakeTasksIn()
{
    if (toolkit::HasTasks())
        toolkit::TakeTasks([](Task& task) {
            s_posted.MakeRoom();
            s_posted.Put({{}, std::move(task)});
        });
}

bool HasWork()
{
    return !s_posted.IsEmpty() || toolkit::HasTasks() || toolkit::HasInput() || s_bPaintRequested;
}

void AskForWakeAt(std::optional<DWORD> tick)
{
    if (!std::exchange(s_bWakeNow, false) && s_wakeAt == tick)
        return;
    s_wakeAt = tick;
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
    if (s_bWakeNow)
        return;
    s_bWakeNow = true;
    s_wakeAt.reset();
    CurrentDesktop().Wake(0);
}

void toolkit::UpdateWake()
{
    if (HasWork())
        RequestRun();
    else
        AskForWakeAt(NextTimer());
}

void toolkit::BeginRun()
{
    s_bWakeNow = false;
    if (s_wakeAt && static_cast<std::int32_t>(CurrentDesktop().Ticks() - *s_wakeAt) >= 0)
        s_wakeAt.reset();
}

void toolkit::RequestPaint()
{
    s_bPaintRequested = true;
    RequestRun();
}

bool toolkit::IsPaintRequested()
{
    return s_bPaintRequested;
}

void toolkit::EndPaintRequest()
{
    s_bPaintRequested = false;
}

std::optional<toolkit::Posted> toolkit::TakePosted()
{
    TakeTasksIn();
    while (!s_posted.IsEmpty())
        if (Posted posted = s_posted.Take(); !IsDropped(posted))
            return posted;
    return std::nullopt;
}

int toolkit::CountPosted()
{
    TakeTasksIn();
    return static_cast<int>(
        std::count_if(s_posted.begin(), s_posted.end(), [](const Posted& posted) { return !IsDropped(posted); }));
}

void toolkit::DropTasks()
{
    TakeTasksIn();
    s_posted.RemoveIf([](const Posted& posted) { return posted.task != nullptr; });
    s_bWakeNow = false;
    s_wakeAt.reset();
}

BOOL PostMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!IsWindow(hWnd))
        return FALSE;
    TakeTasksIn(); // a task that was posted before this message runs before it
    s_posted.Put({{hWnd, message, wParam, lParam}, nullptr});
    toolkit::RequestRun();
    return TRUE;
}
