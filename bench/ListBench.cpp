// What an icon list costs: opening a container, frames in the middle of it, selecting, one atom more or changed.
#include "Toolkit/message/Input.h"
#include "bench/BenchHost.h"
#include "bench/BenchWindow.h"
#include "bench/Stopwatch.h"

#include <benchmark/benchmark.h>

namespace
{

using namespace bench;

// A list that shows a container, with an editor between.
struct ShownList
{
    explicit ShownList(benchmark::State& state) : container(static_cast<unsigned>(state.range(0)))
    {
        window.view.SetRootAtom(&container);
        window.Settle();
    }

    void Press(UINT vkey, bool bShift)
    {
        for (const bool bDown : {true, false})
            toolkit::InputKey(vkey, bDown, {bShift});
        window.Settle();
    }
    int Middle() const { return static_cast<int>(container.MemberCount() / 2); }
    void ScrollTo(int nRow)
    {
        window.view.SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(nRow), FALSE);
        window.Settle();
    }

    EditorService service;
    Container container;
    ListWindow window;
};

// From the host's call to the first complete frame on the screen.
void OpenContainer(benchmark::State& state, UINT nOrder)
{
    const EditorService service;
    Container container(static_cast<unsigned>(state.range(0)));
    ListWindow window;
    window.view.SetMemberOrder(nOrder);
    for (auto _ : state) {
        window.view.OnAtomEntered(&container, nullptr);
        window.Settle();

        state.PauseTiming();
        window.view.OnAtomEntered(nullptr, nullptr);
        window.Settle();
        state.ResumeTiming();
    }
    state.counters["rows"] = static_cast<double>(container.GetCount());
}

// Somewhere in the middle, and the other way after so many times.
void Scroll(benchmark::State& state, int nPixels, int nTimes)
{
    ShownList shown(state);
    shown.ScrollTo(shown.Middle());
    int nDone = 0;
    for (auto _ : state) {
        shown.window.view.SendMessage(LVM_SCROLL, 0, nPixels);
        shown.window.Settle();
        if (++nDone % nTimes == 0)
            nPixels = -nPixels;
    }
}

// One notch of the wheel: the rows that came into sight are hinted, read and painted.
void ScrollANotch(benchmark::State& state)
{
    Scroll(state, 96, 100);
}

// A jump by a page and more: everything in sight is new.
void JumpAndPaintAFrame(benchmark::State& state)
{
    Scroll(state, 96 * 10, 50);
}

void SelectAllAndClear(benchmark::State& state)
{
    ShownList shown(state);
    shown.ScrollTo(shown.Middle());
    for (auto _ : state) {
        for (const bool bSelected : {true, false}) {
            SetAllSelected(shown.window.view, bSelected);
            shown.window.Settle();
        }
    }
}

// Shift+End from the second row on: the editor is asked and told of every row but the first. And back to the one row.
void ExtendToTheEndAndBack(benchmark::State& state)
{
    ShownList shown(state);
    CIconList& list = shown.window.view;
    list.SetFocus();
    shown.ScrollTo(0);
    shown.Press(VK_HOME, false);
    for (auto _ : state) {
        shown.Press(VK_RIGHT, false);
        shown.Press(VK_END, true);
        if (list.GetSelectedCount() != list.GetItemCount() - 1)
            state.SkipWithError("not selected");
        shown.Press(VK_HOME, false);
    }
}

// Ten thousand rows before the anchor are selected, and as many after it when the selection is extended to the end.
void MoveASelectionToTheEnd(benchmark::State& state)
{
    constexpr int kMoved = 10'000;
    ShownList shown(state);
    CIconList& list = shown.window.view;
    list.SetFocus();
    const int nAnchor = list.GetItemCount() - kMoved;
    for (auto _ : state) {
        state.PauseTiming();
        list.SetItemState(nAnchor - 1, LVIS_FOCUSED, LVIS_FOCUSED);
        shown.Press(VK_RIGHT, false);
        for (int i = nAnchor - kMoved; i < nAnchor; ++i)
            list.SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
        shown.window.Settle();
        state.ResumeTiming();

        shown.Press(VK_END, true);
        if (list.GetSelectedCount() != kMoved || list.GetItemState(nAnchor - 1, LVIS_SELECTED))
            state.SkipWithError("not moved");
    }
}

// Each is announced as it is added; then none but them is selected, one after the other.
void PasteAndSelect(benchmark::State& state)
{
    const auto nPasted = static_cast<unsigned>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto pShown = std::make_unique<ShownList>(state);
        Container& container = pShown->container;
        pShown->window.view.SetFocus();
        pShown->window.Settle();
        state.ResumeTiming();

        for (unsigned i = 0; i < nPasted; ++i)
            Announce(&IAEStateHandler::OnCreateAtom, &container.Append(), &container);
        Announce(&IAEStateHandler::OnAtomDeselected, nullptr, &container);
        for (unsigned i = nPasted; i < 2 * nPasted; ++i)
            Announce(&IAEStateHandler::OnAtomSelected, &container.Member(i), &container);
        pShown->window.Settle();

        state.PauseTiming();
        if (pShown->window.view.GetSelectedCount() != static_cast<int>(nPasted))
            state.SkipWithError("not selected");
        pShown.reset();
        state.ResumeTiming();
    }
}

// Shift+Page Down and back, with the first column selected from the top to the middle.
void ExtendByAPageAndBack(benchmark::State& state)
{
    ShownList shown(state);
    CIconList& list = shown.window.view;
    list.SetFocus();
    shown.Press(VK_HOME, false);
    shown.Press(VK_DOWN, false);
    const int nColumns = list.GetNextItem(-1, LVNI_FOCUSED);
    shown.Press(VK_HOME, false);
    list.SetItemState(shown.Middle() / nColumns * nColumns, LVIS_FOCUSED, LVIS_FOCUSED);
    shown.Press(VK_PRIOR, true);
    const int nSelected = list.GetSelectedCount();
    for (auto _ : state) {
        shown.Press(VK_NEXT, true);
        shown.Press(VK_PRIOR, true);
    }
    if (list.GetSelectedCount() != nSelected)
        state.SkipWithError("not as before");
}

// The editor tells of an atom that changed and is in sight: one row is read and painted again.
void ChangeAnAtomInSight(benchmark::State& state)
{
    ShownList shown(state);
    Atom& atom = shown.container.Member(shown.container.GetCount() - 1);
    shown.window.view.OnAtomSelected(&atom, &shown.container);
    shown.window.Settle();
    for (auto _ : state) {
        shown.window.view.OnChangeAtom(&atom, &shown.container);
        shown.window.Settle();
    }
}

// Of one that is out of sight: nothing is to be done.
void ChangeAnAtomOutOfSight(benchmark::State& state)
{
    ShownList shown(state);
    unsigned number = 0;
    for (auto _ : state) {
        number = (number + 7919) % shown.container.GetCount();
        shown.window.view.OnChangeAtom(&shown.container.Member(number), &shown.container);
    }
}

// An atom more, appended, selected and scrolled to.
void AppendAnAtom(benchmark::State& state)
{
    ShownList shown(state);
    for (auto _ : state) {
        shown.window.view.OnCreateAtom(&shown.container.Append(), &shown.container);
    }
}

// What the heap grows by when a container is opened and painted, the host's objects apart.
void MemoryPerRow(benchmark::State& state)
{
    const EditorService service;
    Container container(static_cast<unsigned>(state.range(0)));
    double nBytes = 0;
    for (auto _ : state) {
        ListWindow window; // has nothing left of former ones
        const std::size_t before = AllocatedBytes();
        window.view.OnAtomEntered(&container, nullptr);
        window.Settle();
        nBytes = static_cast<double>(AllocatedBytes()) - static_cast<double>(before);
        window.view.OnAtomEntered(nullptr, nullptr);
    }
    state.counters["bytes/row"] = nBytes / static_cast<double>(container.GetCount());
}

void Sizes(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(OpenContainer, by_name, MOF_BYNAME)->Apply(Sizes);
BENCHMARK_CAPTURE(OpenContainer, natural, MOF_NATURAL)->Apply(Sizes);
BENCHMARK(JumpAndPaintAFrame)->Apply(Sizes);
BENCHMARK(ScrollANotch)->Apply(Sizes);
BENCHMARK(SelectAllAndClear)->Apply(Sizes);
BENCHMARK(ExtendToTheEndAndBack)->Apply(Sizes);
BENCHMARK(MoveASelectionToTheEnd)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(PasteAndSelect)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(ExtendByAPageAndBack)->Apply(Sizes);
BENCHMARK(ChangeAnAtomInSight)->Apply(Sizes);
BENCHMARK(ChangeAnAtomOutOfSight)->Apply(Sizes);
BENCHMARK(AppendAnAtom)->Arg(1000)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(MemoryPerRow)->Apply(Sizes)->Iterations(3);

} // namespace
