// How much of the heap is in use.
#pragma once

#include <cstddef>

namespace bench
{
std::size_t AllocatedBytes(); // as the C library counts it, large blocks included
}
