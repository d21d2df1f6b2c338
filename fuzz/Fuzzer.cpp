// The entry of every target under libFuzzer; see scripts/fuzz.
#include "fuzz/Check.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pBytes, std::size_t size)
{
    const std::string broken = fuzz::Check({reinterpret_cast<const char*>(pBytes), size});
    if (broken.empty())
        return 0;
    std::fprintf(stderr, "%s\n", broken.c_str());
    std::abort();
}
