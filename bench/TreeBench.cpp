// What a tree costs: announcing a hierarchy, one atom more, frames with many items expanded.
#include "bench/BenchHost.h"
#include "bench/BenchWindow.h"
#include "bench/Memory.h"

#include <benchmark/benchmark.h>

namespace
{

using namespace bench;

HTREEITEM FirstMember(CObjectsTree& tree)
{
    return tree.GetChildItem(tree.GetRootItem());
}

// The whole hierarchy, from the editor's call to the first complete frame.
void Announce(benchmark::State& state, IAtom& top)
{
    const EditorService service;
    TreeWindow window;
    for (auto _ : state) {
        window.Tree().OnCreateAtom(&top, nullptr);
        window.Settle();

        state.PauseTiming();
        window.Tree().OnDeleteAtom(&top, nullptr);
        window.Settle();
        state.ResumeTiming();
    }
}

void AnnounceAHierarchy(benchmark::State& state)
{
    Library library(static_cast<unsigned>(state.range(0)));
    Announce(state, library);
}

void AnnounceOneContainer(benchmark::State& state)
{
    Container container(static_cast<unsigned>(state.range(0)));
    Announce(state, container);
}

// Somewhere among the others, all of which are shown.
void AnnounceOneAtomMore(benchmark::State& state)
{
    const EditorService service;
    Container container(static_cast<unsigned>(state.range(0)));
    TreeWindow window;
    window.Tree().OnCreateAtom(&container, nullptr);
    window.Tree().Expand(window.Tree().GetRootItem(), TVE_EXPAND);
    window.Settle();
    for (auto _ : state) {
        state.PauseTiming();
        Atom& atom = container.Append(MakeSample(container.GetCount() * 7919u % static_cast<unsigned>(state.range(0))));
        state.ResumeTiming();
        window.Tree().OnCreateAtom(&atom, &container);
    }
}

// Removed as it was announced: all of the hierarchy.
void RemoveAHierarchy(benchmark::State& state)
{
    const EditorService service;
    Library library(static_cast<unsigned>(state.range(0)));
    TreeWindow window;
    for (auto _ : state) {
        state.PauseTiming();
        window.Tree().OnCreateAtom(&library, nullptr);
        window.Settle();
        state.ResumeTiming();
        window.Tree().OnDeleteAtom(&library, nullptr);
        window.Settle();
    }
}

// A page down, with every item in sight new, in a tree with 20 of its containers expanded.
void PageDownAndPaintAFrame(benchmark::State& state)
{
    const EditorService service;
    Library library(static_cast<unsigned>(state.range(0)));
    TreeWindow window;
    CObjectsTree& tree = window.Tree();
    tree.OnCreateAtom(&library, nullptr);
    tree.Expand(tree.GetRootItem(), TVE_EXPAND);
    HTREEITEM hItem = FirstMember(tree);
    for (unsigned i = 0; i < kExpanded; ++i, hItem = tree.GetNextSiblingItem(hItem))
        tree.Expand(hItem, TVE_EXPAND);
    window.Settle();

    WPARAM nWay = SB_PAGEDOWN;
    int nPages = 0;
    for (auto _ : state) {
        tree.SendMessage(WM_VSCROLL, nWay);
        window.Settle();
        if (++nPages % 20 == 0)
            nWay = nWay == SB_PAGEDOWN ? SB_PAGEUP : SB_PAGEDOWN;
    }
    state.counters["rows"] = tree.GetVisibleCount();
}

void ExpandAndCollapse(benchmark::State& state)
{
    const EditorService service;
    Container container(static_cast<unsigned>(state.range(0)));
    TreeWindow window;
    CObjectsTree& tree = window.Tree();
    tree.OnCreateAtom(&container, nullptr);
    window.Settle();
    for (auto _ : state) {
        tree.Expand(tree.GetRootItem(), TVE_TOGGLE);
        window.Settle();
    }
}

// What the heap grows by, the host's objects apart.
void MemoryPerItem(benchmark::State& state)
{
    const EditorService service;
    Library library(static_cast<unsigned>(state.range(0)));
    double nBytes = 0;
    for (auto _ : state) {
        TreeWindow window; // has nothing left of former ones
        const std::size_t before = AllocatedBytes();
        window.Tree().OnCreateAtom(&library, nullptr);
        window.Settle();
        nBytes = static_cast<double>(AllocatedBytes()) - static_cast<double>(before);
        window.Tree().OnDeleteAtom(&library, nullptr);
    }
    state.counters["bytes/item"] = nBytes / static_cast<double>(state.range(0) + kContainers + 1);
}

void Sizes(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(AnnounceAHierarchy)->Apply(Sizes);
BENCHMARK(AnnounceOneContainer)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(AnnounceOneAtomMore)->Arg(100000)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RemoveAHierarchy)->Apply(Sizes);
BENCHMARK(PageDownAndPaintAFrame)->Apply(Sizes);
BENCHMARK(ExpandAndCollapse)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(MemoryPerItem)->Apply(Sizes)->Iterations(3);

} // namespace
