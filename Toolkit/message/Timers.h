// Timers of windows, and the toolkit's own.
#pragma once

#include "Toolkit/base/Types.h"

#include <optional>

// The shortest period is 10 ms; a known identifier starts anew. Due timers are never queued twice.
TOOLKIT_API UINT_PTR SetTimer(HWND hWnd, UINT_PTR nID, UINT nElapse); // 0 for a stale handle
TOOLKIT_API BOOL KillTimer(HWND hWnd, UINT_PTR nID);

namespace toolkit
{
bool RunOneTimer();
std::optional<DWORD> NextTimer(); // the tick at which the next one is due
int CountTimers();
void DropTimers(HWND hWnd);

// Calls the function instead of sending WM_TIMER, which NULL stands for.
using TimerProc = void (*)();
void StartTimer(HWND hWnd, TimerProc proc, DWORD nMilliseconds, UINT_PTR nID = 0);
bool StopTimer(HWND hWnd, TimerProc proc, UINT_PTR nID = 0); // false when there is none
} // namespace toolkit
