#include "bench/Workloads.h"

#include <algorithm>
#include <cstdio>

namespace
{

struct Workload
{
    std::string_view name;
    void (*run)(bench::Stopwatch& watch);
    int repetitions;
    const char* notes;
};

// Memory is told of the first time.
constexpr Workload kWorkloads[] = {
    {"list_open", &bench::OpenList, 5, "CIconList, announced to the first complete frame"},
    {"list_scroll", &bench::ScrollList, 5, "CIconList, per frame of 200"},
    {"list_selectall", &bench::SelectAllOfList, 5, "CIconList"},
    {"list_append", &bench::AppendToList, 5, "CIconList with the focus, per append, with the whole protocol"},
    {"tree_open", &bench::OpenTree, 5, "CObjectsTree, announced at once"},
    {"tree_flat_insert", &bench::InsertIntoTree, 5, "CObjectsTree, one announcement each, total; one frame at the end"},
    {"tree_more", &bench::AddToTree, 5, "CObjectsTree, per atom announced into a shown container, the frame included"},
    {"memory_list", &bench::OpenList, 1, "CIconList"},
    {"memory_tree", &bench::OpenTree, 1, "CObjectsTree"},
    {"thumbs", &bench::ShowThumbs, 5, "CThumbList, per thumbnail, composed when first drawn, 5 new rows a page"},
};

} // namespace

int bench::RunWorkload(std::string_view name, unsigned count)
{
    const auto workload = std::ranges::find(kWorkloads, name, &Workload::name);
    if (workload == std::end(kWorkloads) || count == 0)
        return std::fprintf(stderr, "no such workload\n"), 2;

    Stopwatch warmUp("", std::string(name), std::min(count, 1000u), 1); // fonts, glyphs, the first allocations
    workload->run(warmUp);
    Stopwatch watch("views", std::string(name), count, workload->repetitions);
    workload->run(watch);
    watch.Print(workload->notes);
    return 0;
}
