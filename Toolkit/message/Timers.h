// Timers, as the rest of the window layer sees them.
#pragma once

#include "Toolkit/base/Types.h"

#include <optional>

namespace toolkit
{
bool RunOneTimer();
std::optional<DWORD> NextTimer(); // the tick at which the next one is due
int CountTimers();
void DropTimers(HWND hWnd);

// A timer of the toolkit's own: calls the function instead of sending WM_TIMER.
using TimerProc = void (*)();
void StartTimer(HWND hWnd, TimerProc proc, DWORD nMilliseconds);
void StopTimer(HWND hWnd, TimerProc proc);
} // namespace toolkit
