#include "bench/Memory.h"

#include <malloc.h>

std::size_t bench::AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
