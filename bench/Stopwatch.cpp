#include "bench/Stopwatch.h"

#include "bench/Memory.h"

#include <algorithm>
#include <cstdio>

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
