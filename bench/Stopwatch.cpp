#include "bench/Stopwatch.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace
{

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::string Format(const char* format, double value)
{
    char text[48];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

} // namespace

bench::Stopwatch::Stopwatch(std::string peer, std::string workload, unsigned count, int repetitions)
    : m_peer(std::move(peer)), m_workload(std::move(workload)), m_count(count), m_repetitions(repetitions)
{}

bool bench::Stopwatch::Next() const
{
    if (m_times.empty())
        return true;
    return static_cast<int>(m_times.size()) < m_repetitions && Clock::now() - m_born < std::chrono::seconds(20);
}

void bench::Stopwatch::Start()
{
    if (m_times.empty())
        m_residentBefore = ResidentKilobytes();
    m_started = m_lapStarted = Clock::now();
}

void bench::Stopwatch::Lap(const std::string& part)
{
    const auto now = Clock::now();
    m_laps[part].push_back(std::chrono::duration<double, std::milli>(now - m_lapStarted).count());
    m_lapStarted = now;
}

void bench::Stopwatch::Stop(double divisor)
{
    const std::chrono::duration<double, std::milli> taken = Clock::now() - m_started;
    if (m_times.empty())
        m_residentGrown = ResidentKilobytes() - m_residentBefore;
    m_times.push_back(taken.count() / divisor);
}

void bench::Stopwatch::Print(const std::string& notes) const
{
    std::string laps;
    for (const auto& [part, times] : m_laps)
        laps += "; " + part + Format(" %.4g ms", Median(times));
    std::printf("{\"peer\":\"%s\",\"workload\":\"%s\",\"n\":%u,\"ms\":%.5g,\"rss_kb_delta\":%ld,"
                "\"notes\":\"%s%s; reps %zu, min %.4g\"}\n",
                m_peer.c_str(), m_workload.c_str(), m_count, Median(m_times), m_residentGrown, notes.c_str(),
                laps.c_str(), m_times.size(), *std::min_element(m_times.begin(), m_times.end()));
    std::fflush(stdout);
}

int bench::RunWorkload(std::span<const Workload> workloads, const char* peer, std::string_view name, unsigned count)
{
    const auto workload = std::ranges::find(workloads, name, &Workload::name);
    if (workload == workloads.end() || count == 0)
        return std::fprintf(stderr, "no such workload\n"), 2;

    Stopwatch warmUp("", std::string(name), std::min(count, 1000u), 1); // fonts, glyphs, the first allocations
    workload->run(warmUp);
    Stopwatch watch(peer, std::string(name), count, workload->repetitions);
    workload->run(watch);
    watch.Print(workload->notes);
    return 0;
}

std::size_t bench::AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

long bench::ResidentKilobytes()
{
    malloc_trim(0);
    long total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}
