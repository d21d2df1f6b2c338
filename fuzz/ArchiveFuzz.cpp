// The archive reader under libFuzzer: cmake --preset fuzz && cmake --build --preset fuzz, then
//   build/fuzz/bin/archive_fuzz -malloc_limit_mb=2 -max_len=4096 NEW_FINDS fuzz/corpus/archive
#include "fuzz/ArchiveCheck.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t size)
{
    const std::string broken = fuzz::CheckArchive({reinterpret_cast<const char*>(pBytes), size});
    if (broken.empty())
        return 0;
    std::fprintf(stderr, "%s\n", broken.c_str());
    std::abort();
}
