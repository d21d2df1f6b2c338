#include "bench/BenchHost.h"
#include "bench/BenchWindow.h"
#include "bench/Workloads.h"

namespace
{

using namespace bench;

// The samples that a tree of so many atoms would need, so that lists and trees show the same.
std::vector<Sample> SamplesOf(const Stopwatch& watch)
{
    auto samples = MakeSamples(watch.Count() + kContainers + 1);
    samples.resize(watch.Count());
    return samples;
}

template <class View>
void SetCell(View& view, int width, int height)
{
    view.SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(width, height));
}

struct EmptyList
{
    EmptyList()
    {
        SetCell(window.List(), kCellWidth, kCellHeight);
        window.List().SetFocus();
        window.Paint();
    }
    void Enter(Container& container)
    {
        Announce(&IAEStateHandler::OnAtomEntered, &container, nullptr);
        window.Paint();
    }

    const EditorService service;
    ListWindow window;
};

struct ShownList : EmptyList
{
    explicit ShownList(const Stopwatch& watch) : container(SamplesOf(watch)) { Enter(container); }
    ~ShownList() { Announce(&IAEStateHandler::OnAtomEntered, nullptr, nullptr); } // the rows go before the container

    void SelectAll(UINT nState)
    {
        LVITEM select{};
        select.stateMask = LVIS_SELECTED;
        select.state = nState;
        window.List().SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&select));
        window.Paint();
    }

    Container container;
};

int ScrollRange(CWnd& view)
{
    SCROLLINFO info{};
    ::GetScrollInfo(view.m_hWnd, SB_VERT, &info);
    return info.nMax - info.nMin + 1 - static_cast<int>(info.nPage);
}

} // namespace

void bench::OpenList(Stopwatch& watch)
{
    Container container(SamplesOf(watch));
    while (watch.Next()) {
        EmptyList list;
        watch.Start();
        list.Enter(container);
        watch.Stop();
    }
}

void bench::ScrollList(Stopwatch& watch)
{
    constexpr int kFrames = 200;
    ShownList shown(watch);
    CIconList& list = shown.window.List();
    const std::int64_t nRange = ScrollRange(list);
    while (watch.Next()) {
        list.SendMessage(LVM_SCROLL, 0, -nRange);
        shown.window.Paint();
        watch.Start();
        std::int64_t nAt = 0;
        for (int i = 0; i < kFrames; ++i) {
            const std::int64_t nTo = nRange * i / (kFrames - 1);
            list.SendMessage(LVM_SCROLL, 0, nTo - nAt);
            shown.window.Paint();
            nAt = nTo;
        }
        watch.Stop(kFrames);
    }
}

void bench::SelectAllOfList(Stopwatch& watch)
{
    ShownList shown(watch);
    while (watch.Next()) {
        watch.Start();
        shown.SelectAll(LVIS_SELECTED);
        watch.Lap("1 select");
        shown.SelectAll(0);
        watch.Lap("2 deselect");
        watch.Stop();
    }
}

void bench::AppendToList(Stopwatch& watch)
{
    const auto more = MakeSamples(1000);
    ShownList shown(watch);
    while (watch.Next()) {
        Announce(&IAEStateHandler::OnAtomEntered, nullptr, nullptr);
        shown.container.Truncate(watch.Count());
        shown.Enter(shown.container);
        watch.Start();
        for (const Sample& sample : more)
            Announce(&IAEStateHandler::OnCreateAtom, &shown.container.Append(sample), &shown.container);
        watch.Lap("appends");
        shown.window.Paint();
        watch.Lap("final frame");
        watch.Stop(static_cast<double>(more.size()));
    }
}

void bench::ShowThumbs(Stopwatch& watch)
{
    Container container(SamplesOf(watch));
    while (watch.Next()) {
        const EditorService service;
        ThumbWindow window;
        SetCell(window.List(), kThumbCell, kThumbCell);
        window.Paint();

        watch.Start();
        Announce(&IAEStateHandler::OnAtomEntered, &container, nullptr);
        window.Paint();
        for (int nLeft = ScrollRange(window.List()); nLeft > 0; nLeft -= 5 * kThumbCell) {
            window.List().SendMessage(LVM_SCROLL, 0, 5 * kThumbCell);
            window.Paint();
        }
        watch.Stop(watch.Count());
    }
}
