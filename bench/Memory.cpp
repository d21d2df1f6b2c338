#include "bench/Memory.h"

#include <fstream>
#include <malloc.h>
#include <unistd.h>

std::size_t bench::AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

long bench::ResidentKilobytes()
{
    malloc_trim(0);
    long total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}
