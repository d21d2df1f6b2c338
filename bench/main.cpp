#include "bench/BenchWindow.h"
#include "bench/Workloads.h"

#include <benchmark/benchmark.h>
#include <cstdlib>

// views_bench WORKLOAD N runs one workload of the comparisons, anything else the benchmarks.
int main(int argc, char** argv)
{
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
