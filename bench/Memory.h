// How much memory is in use.
#pragma once

#include <cstddef>

namespace bench
{
std::size_t AllocatedBytes(); // of the heap, as the C library counts it, large blocks included
long ResidentKilobytes();     // of the process, after what is free has been given back
} // namespace bench
