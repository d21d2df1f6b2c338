#include "Toolkit/run/Run.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Ticks.h"
#include "Toolkit/focus/ModalInput.h"
#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/input/InputHandling.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/message/Timers.h"
#include "Toolkit/paint/Painting.h"

#include <chrono>

namespace
{
bool RunOnePosted()
{
    const std::optional<toolkit::Posted> posted = toolkit::TakePosted();
    if (!posted)
        return false;
    toolkit::UpdateWake();
    if (posted->task)
        posted->task();
    else
        toolkit::DispatchPosted(posted->msg);
    return true;
}

// What fails on the way to a handler is reported as what fails in one, and the queue goes on.
bool RunNext()
{
    try {
        if (toolkit::QueueHold::IsHeld())
            return toolkit::RunOneInput() || toolkit::RunOnePaint();
        return RunOnePosted() || toolkit::RunOneInput() || toolkit::RunOnePaint() || toolkit::RunOneTimer();
    } catch (CException& exception) {
        exception.ReportError();
        return true;
    }
}

DWORD DesktopTicks()
{
    return toolkit::CurrentDesktop().Ticks();
}
} // namespace

void toolkit::InstallDesktop(Desktop* pDesktop)
{
    AcceptTasks(pDesktop);
    DropTasks();
    ResetInput();
    SetCurrentDesktop(pDesktop);
    SetTickSource(pDesktop ? &DesktopTicks : nullptr);
    InstallTextEngine(pDesktop ? &pDesktop->GetTextEngine() : nullptr);
    SetColorScheme(CurrentDesktop().GetColorScheme());
    SetScreenScale(CurrentDesktop().GetScreenScale());
    UpdateWake();
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

void toolkit::AnswerMeanwhile(HWND hModal)
{
    const QueueHold hold;
    const ModalInput modal(hModal);
    CurrentDesktop().ProcessEvents();
}

toolkit::WindowCounts toolkit::CountWindows()
{
    return {CountRecords(), CountTimers(), CountPosted()};
}
