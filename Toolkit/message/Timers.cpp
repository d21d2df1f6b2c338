#include "Toolkit/message/Timers.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Queue.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr DWORD kShortest = 10;

struct Timer
{
    HWND hWnd;
    UINT_PTR nID;
    toolkit::TimerProc proc; // NULL: WM_TIMER
    DWORD period, due;
};
std::vector<Timer> s_timers;

std::int32_t UntilDue(const Timer& timer, DWORD now)
{
    return static_cast<std::int32_t>(timer.due - now);
}

auto FindTimer(HWND hWnd, UINT_PTR nID, toolkit::TimerProc proc)
{
    return std::find_if(s_timers.begin(), s_timers.end(), [&](const Timer& timer) {
        return timer.hWnd == hWnd && timer.nID == nID && timer.proc == proc;
    });
}

auto Earliest()
{
    const DWORD now = toolkit::CurrentDesktop().Ticks();
    return std::min_element(s_timers.begin(), s_timers.end(),
                            [now](const Timer& a, const Timer& b) { return UntilDue(a, now) < UntilDue(b, now); });
}

// The next time is a period after the last one, or after now when that has passed, too: a timer is never
// owed more than one message.
void Reschedule(Timer& timer, DWORD now)
{
    timer.due += timer.period;
    if (UntilDue(timer, now) <= 0)
        timer.due = now + timer.period;
}
} // namespace

bool toolkit::RunOneTimer()
{
    if (s_timers.empty())
        return false;
    const DWORD now = CurrentDesktop().Ticks();
    const auto it = Earliest();
    if (UntilDue(*it, now) > 0)
        return false;
    Reschedule(*it, now);
    const Timer timer = *it;
    UpdateWake();
    if (timer.proc)
        timer.proc();
    else
        SendMessage(timer.hWnd, WM_TIMER, timer.nID, 0);
    return true;
}

std::optional<DWORD> toolkit::NextTimer()
{
    return s_timers.empty() ? std::nullopt : std::optional<DWORD>(Earliest()->due);
}

int toolkit::CountTimers()
{
    return static_cast<int>(s_timers.size());
}

void toolkit::DropTimers(HWND hWnd)
{
    std::erase_if(s_timers, [hWnd](const Timer& timer) { return timer.hWnd == hWnd; });
}

void toolkit::StartTimer(HWND hWnd, TimerProc proc, DWORD nMilliseconds, UINT_PTR nID)
{
    const DWORD nPeriod = std::clamp<DWORD>(nMilliseconds, kShortest, 0x7FFFFFFF);
    const Timer timer{hWnd, nID, proc, nPeriod, CurrentDesktop().Ticks() + nPeriod};
    const auto it = FindTimer(hWnd, nID, proc);
    if (it != s_timers.end())
        *it = timer;
    else
        s_timers.push_back(timer);
    UpdateWake();
}

bool toolkit::StopTimer(HWND hWnd, TimerProc proc, UINT_PTR nID)
{
    const auto it = FindTimer(hWnd, nID, proc);
    if (it == s_timers.end())
        return false;
    s_timers.erase(it);
    return true;
}

UINT_PTR SetTimer(HWND hWnd, UINT_PTR nID, UINT nElapse)
{
    if (!IsWindow(hWnd))
        return 0;
    const UINT_PTR nTaken = nID == 0 ? 1 : nID; // 0 is the answer of a refusal
    toolkit::StartTimer(hWnd, nullptr, nElapse, nTaken);
    return nTaken;
}

BOOL KillTimer(HWND hWnd, UINT_PTR nID)
{
    return toolkit::StopTimer(hWnd, nullptr, nID == 0 ? 1 : nID);
}
