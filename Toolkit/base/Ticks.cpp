#include "Toolkit/base/Ticks.h"

#include <chrono>
#include <utility>

namespace
{
toolkit::TickSource s_source = &toolkit::SystemTicks;
}

DWORD toolkit::SystemTicks()
{
    using namespace std::chrono;
    return static_cast<DWORD>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

toolkit::TickSource toolkit::SetTickSource(TickSource source)
{
    return std::exchange(s_source, source ? source : &SystemTicks);
}

DWORD GetTickCount()
{
    return s_source();
}
