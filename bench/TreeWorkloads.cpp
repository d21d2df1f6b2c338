#include "bench/BenchHost.h"
#include "bench/BenchWindow.h"
#include "bench/Workloads.h"

void bench::OpenTree(Stopwatch& watch)
{
    Library library(watch.Count());
    while (watch.Next()) {
        const EditorService service;
        TreeWindow window;
        watch.Start();
        Announce(&IAEStateHandler::OnCreateAtom, &library, nullptr);
        watch.Lap("1 announce");
        ExpandContainers(window.view);
        watch.Lap("2 expand");
        window.Paint();
        watch.Lap("3 frame");
        watch.Stop();
    }
}

void bench::InsertIntoTree(Stopwatch& watch)
{
    auto samples = MakeSamples(watch.Count() + kContainers + 1);
    const Sample self = samples.front();
    samples.erase(samples.begin());
    samples.resize(watch.Count());
    while (watch.Next()) {
        const EditorService service;
        Container container(std::span<const Sample>(samples.data(), 1), self);
        TreeWindow window;
        Announce(&IAEStateHandler::OnCreateAtom, &container, nullptr);
        window.view.Expand(window.view.GetRootItem(), TVE_EXPAND);
        window.Paint();

        watch.Start();
        for (const Sample& sample : std::span(samples).subspan(1))
            Announce(&IAEStateHandler::OnCreateAtom, &container.Append(sample), &container);
        watch.Lap("1 announce");
        window.Paint();
        watch.Lap("2 frame");
        watch.Stop();
        Announce(&IAEStateHandler::OnDeleteAtom, &container, nullptr);
    }
}

void bench::AddToTree(Stopwatch& watch)
{
    constexpr unsigned kMore = 1000;
    const auto samples = MakeSamples(watch.Count());
    while (watch.Next()) {
        const EditorService service;
        Container container(samples, MakeSample(0));
        TreeWindow window;
        Announce(&IAEStateHandler::OnCreateAtom, &container, nullptr);
        window.view.Expand(window.view.GetRootItem(), TVE_EXPAND);
        window.Paint();

        watch.Start();
        for (unsigned i = 0; i < kMore; ++i) {
            Atom& atom = container.Append(MakeSample(i * 7919 % watch.Count()));
            Announce(&IAEStateHandler::OnCreateAtom, &atom, &container);
        }
        watch.Lap("1 announce");
        window.Paint();
        watch.Lap("2 frame");
        watch.Stop(kMore);
        Announce(&IAEStateHandler::OnDeleteAtom, &container, nullptr);
    }
}
