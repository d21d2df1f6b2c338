// The millisecond clock.
#pragma once

#include "Toolkit/base/Types.h"

// Milliseconds of the desktop's clock; wraps around after 49.7 days, so only differences mean something.
TOOLKIT_API DWORD GetTickCount();

namespace toolkit
{
// The desktop's clock. NULL brings back the system's monotonic one. Returns the former source.
using TickSource = DWORD (*)();
TOOLKIT_API TickSource SetTickSource(TickSource source);
TOOLKIT_API DWORD SystemTicks();
} // namespace toolkit
