#include "bench/BenchWindow.h"
#include "bench/Workloads.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <memory>

namespace
{

// Memory is told of the first time.
constexpr bench::Workload kWorkloads[] = {
    {"list_open", &bench::OpenList, "CIconList, announced to the first complete frame"},
    {"list_scroll", &bench::ScrollList, "CIconList, per frame of 200"},
    {"list_selectall", &bench::SelectAllOfList, "CIconList"},
    {"list_append", &bench::AppendToList, "CIconList with the focus, per append, with the whole protocol"},
    {"tree_open", &bench::OpenTree, "CObjectsTree, announced at once"},
    {"tree_flat_insert", &bench::InsertIntoTree, "CObjectsTree, one announcement each, total; one frame at the end"},
    {"tree_more", &bench::AddToTree, "CObjectsTree, per atom announced into a shown container, the frame included"},
    {"memory_list", &bench::OpenList, "CIconList", 1},
    {"memory_tree", &bench::OpenTree, "CObjectsTree", 1},
    {"thumbs", &bench::ShowThumbs, "CThumbList, per thumbnail, composed when first drawn, 5 new rows a page"},
};

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
        const auto pDesktop = bench::MakeDesktop();
        const auto count = static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10));
        return bench::RunWorkload(kWorkloads, "views", argv[1], count);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const auto pDesktop = bench::MakeDesktop();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
