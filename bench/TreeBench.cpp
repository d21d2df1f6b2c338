// What a tree costs: announcing a hierarchy, one atom more, frames with many items expanded.
#include "bench/BenchHost.h"
#include "bench/BenchWindow.h"
#include "bench/Stopwatch.h"

#include <benchmark/benchmark.h>

namespace
{

using namespace bench;

// A tree, and what is announced to it with an editor between.
template <class Top>
struct TreeOf
{
    explicit TreeOf(const benchmark::State& state) : top(static_cast<unsigned>(state.range(0))) {}

    void Announce()
    {
        tree.OnCreateAtom(&top, nullptr);
        window.Settle();
    }
    void Remove()
    {
        tree.OnDeleteAtom(&top, nullptr);
        window.Settle();
    }

    const EditorService service;
    Top top;
    TreeWindow window;
    CObjectsTree& tree = window.view;
};

// The whole hierarchy, from the editor's call to the first complete frame.
template <class Top>
void AnnounceAll(benchmark::State& state)
{
    TreeOf<Top> shown(state);
    for (auto _ : state) {
        shown.Announce();

        state.PauseTiming();
        shown.Remove();
        state.ResumeTiming();
    }
}

// Somewhere among the others, all of which are shown.
void AnnounceOneAtomMore(benchmark::State& state)
{
    TreeOf<Container> shown(state);
    Container& container = shown.top;
    shown.tree.OnCreateAtom(&container, nullptr);
    shown.tree.Expand(shown.tree.GetRootItem(), TVE_EXPAND);
    shown.window.Settle();
    for (auto _ : state) {
        state.PauseTiming();
        Atom& atom = container.Append(MakeSample(container.GetCount() * 7919u % static_cast<unsigned>(state.range(0))));
        state.ResumeTiming();
        shown.tree.OnCreateAtom(&atom, &container);
    }
}

// Removed as it was announced: all of the hierarchy.
void RemoveAHierarchy(benchmark::State& state)
{
    TreeOf<Library> shown(state);
    for (auto _ : state) {
        state.PauseTiming();
        shown.Announce();
        state.ResumeTiming();
        shown.Remove();
    }
}

// A page down, with every item in sight new, in a tree with 20 of its containers expanded.
void PageDownAndPaintAFrame(benchmark::State& state)
{
    TreeOf<Library> shown(state);
    shown.tree.OnCreateAtom(&shown.top, nullptr);
    ExpandContainers(shown.tree);
    shown.window.Settle();

    WPARAM nWay = SB_PAGEDOWN;
    int nPages = 0;
    for (auto _ : state) {
        shown.tree.SendMessage(WM_VSCROLL, nWay);
        shown.window.Settle();
        if (++nPages % 20 == 0)
            nWay = nWay == SB_PAGEDOWN ? SB_PAGEUP : SB_PAGEDOWN;
    }
    state.counters["rows"] = shown.tree.GetVisibleCount();
}

void ExpandAndCollapse(benchmark::State& state)
{
    TreeOf<Container> shown(state);
    shown.Announce();
    for (auto _ : state) {
        shown.tree.Expand(shown.tree.GetRootItem(), TVE_TOGGLE);
        shown.window.Settle();
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
        window.view.OnCreateAtom(&library, nullptr);
        window.Settle();
        nBytes = static_cast<double>(AllocatedBytes()) - static_cast<double>(before);
        window.view.OnDeleteAtom(&library, nullptr);
    }
    state.counters["bytes/item"] = nBytes / static_cast<double>(state.range(0) + kContainers + 1);
}

void Sizes(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(AnnounceAll<Library>)->Name("AnnounceAHierarchy")->Apply(Sizes);
BENCHMARK(AnnounceAll<Container>)->Name("AnnounceOneContainer")->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(AnnounceOneAtomMore)->Arg(100000)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RemoveAHierarchy)->Apply(Sizes);
BENCHMARK(PageDownAndPaintAFrame)->Apply(Sizes);
BENCHMARK(ExpandAndCollapse)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(MemoryPerItem)->Apply(Sizes)->Iterations(3);

} // namespace
