#include "Toolkit/message/Queue.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/input/KeyInput.h"
#include "Toolkit/message/Fifo.h"
#include "Toolkit/message/InputQueue.h"
#include "Toolkit/message/TaskInbox.h"
#include "Toolkit/message/Timers.h"
#include "Toolkit/paint/Painting.h"
#include "Toolkit/window/WindowApi.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace
{
using toolkit::Task;

struct Posted
{
    MSG msg;
    Task task; // instead of a message
};

toolkit::Fifo<Posted> s_posted;

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
    return !s_posted.IsEmpty() || toolkit::HasTasks() || toolkit::HasInput() || toolkit::HasPaint();
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

// The desktop has called: what it was asked for by now is done.
void BeginRun()
{
    s_bWakeNow = false;
    if (s_wakeAt && static_cast<std::int32_t>(toolkit::CurrentDesktop().Ticks() - *s_wakeAt) >= 0)
        s_wakeAt.reset();
}

// What fails on the way to a handler is reported as what fails in one, and the queue goes on.
bool RunNext()
{
    try {
        return toolkit::RunOnePosted() || toolkit::RunOneInput() || toolkit::RunOnePaint() || toolkit::RunOneTimer();
    } catch (CException& exception) {
        exception.ReportError();
        return true;
    }
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

bool toolkit::RunOnePosted()
{
    TakeTasksIn();
    while (!s_posted.IsEmpty()) {
        const Posted posted = s_posted.Take();
        if (IsDropped(posted))
            continue;
        UpdateWake();
        if (posted.task)
            posted.task();
        else
            DispatchPosted(posted.msg);
        return true;
    }
    return false;
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

bool toolkit::RunOneMessage()
{
    BeginRun();
    const bool bRan = RunNext();
    UpdateWake();
    return bRan;
}

void toolkit::RunPendingMessages()
{
    BeginRun();
    while (RunNext()) {
    }
    UpdateWake();
}

bool toolkit::RunPendingMessagesFor(DWORD nMilliseconds)
{
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(nMilliseconds);
    BeginRun();
    bool bMore = true;
    while (bMore && std::chrono::steady_clock::now() < until)
        bMore = RunNext();
    UpdateWake();
    return !bMore;
}

toolkit::WindowCounts toolkit::CountWindows()
{
    return {CountRecords(), CountTimers(), CountPosted()};
}
