#include "bench/BenchWindow.h"
#include "bench/Workloads.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>

namespace
{

// A program that has shown a picture keeps the memory that it gives back: glibc learns from the first large block how
// much. Without that, a scaled picture's memory goes back to the system and comes again, page by page, each time.
void WarmHeap()
{
    const auto block = std::make_unique_for_overwrite<char[]>(16 << 20);
    benchmark::DoNotOptimize(block.get());
}

} // namespace

// views_bench WORKLOAD N runs one workload of the comparisons, anything else the benchmarks.
int main(int argc, char** argv)
{
    WarmHeap();
    if (argc == 3 && argv[1][0] != '-') {
        const bench::DesktopScope desktop;
        return bench::RunWorkload(argv[1], static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const bench::DesktopScope desktop;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
