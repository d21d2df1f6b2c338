#include "bench/BenchHost.h"
#include "bench/BenchWindow.h"
#include "bench/Workloads.h"

namespace
{

using namespace bench;

template <class View>
void SetCell(View& view, int width, int height)
{
    view.SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(width, height));
}

struct EmptyList
{
    EmptyList()
    {
        SetCell(window.view, kCellWidth, kCellHeight);
        window.view.SetFocus();
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
    explicit ShownList(const Stopwatch& watch) : container(MakeMembers(watch.Count())) { Enter(container); }
    ~ShownList() { Announce(&IAEStateHandler::OnAtomEntered, nullptr, nullptr); } // the rows go before the container

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
    Container container(MakeMembers(watch.Count()));
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
    CIconList& list = shown.window.view;
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
        SetAllSelected(shown.window.view, true);
        shown.window.Paint();
        watch.Lap("1 select");
        SetAllSelected(shown.window.view, false);
        shown.window.Paint();
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
    Container container(MakeMembers(watch.Count()));
    while (watch.Next()) {
        const EditorService service;
        ThumbWindow window;
        SetCell(window.view, kThumbCell, kThumbCell);
        window.Paint();

        watch.Start();
        Announce(&IAEStateHandler::OnAtomEntered, &container, nullptr);
        window.Paint();
        for (int nLeft = ScrollRange(window.view); nLeft > 0; nLeft -= 5 * kThumbCell) {
            window.view.SendMessage(LVM_SCROLL, 0, 5 * kThumbCell);
            window.Paint();
        }
        watch.Stop(watch.Count());
    }
}
