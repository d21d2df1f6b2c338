// What assistive technology is told of: that something in a window is new. What it is then, it asks (Accessible.h).
#pragma once

#include "Toolkit/base/Types.h"

inline constexpr DWORD EVENT_SYSTEM_ALERT = 0x0002; // the user is to hear of it
inline constexpr DWORD EVENT_OBJECT_DESTROY = 0x8001;
inline constexpr DWORD EVENT_OBJECT_SHOW = 0x8002;
inline constexpr DWORD EVENT_OBJECT_HIDE = 0x8003;
inline constexpr DWORD EVENT_OBJECT_REORDER = 0x8004; // items have come, gone or moved
inline constexpr DWORD EVENT_OBJECT_FOCUS = 0x8005;
inline constexpr DWORD EVENT_OBJECT_SELECTIONADD = 0x8007;
inline constexpr DWORD EVENT_OBJECT_SELECTIONREMOVE = 0x8008;
inline constexpr DWORD EVENT_OBJECT_SELECTIONWITHIN = 0x8009; // much of it
inline constexpr DWORD EVENT_OBJECT_STATECHANGE = 0x800A;     // it has opened or closed
inline constexpr DWORD EVENT_OBJECT_NAMECHANGE = 0x800C;
inline constexpr DWORD EVENT_OBJECT_VALUECHANGE = 0x800E;          // of a field: its text
inline constexpr DWORD EVENT_OBJECT_TEXTSELECTIONCHANGED = 0x8014; // or the caret is elsewhere

inline constexpr LONG OBJID_CLIENT = -4;
inline constexpr LPARAM CHILDID_SELF = 0;

// Costs next to nothing while nobody listens. Whoever does hears of it later, from the queue: nobody is called here.
TOOLKIT_API void NotifyWinEvent(DWORD event, HWND hWnd, LONG idObject, LPARAM idChild);
