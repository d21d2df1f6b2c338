// Measures a workload a few times and prints what came out as one line of JSON.
//
//     Stopwatch watch("views", "list_open", 1000);
//     while (watch.Next()) { set up; watch.Start(); work; watch.Lap("sort"); work; watch.Stop(); tear down; }
//     watch.Print("what was measured");
#pragma once

#include <chrono>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bench
{

class Stopwatch
{
public:
    Stopwatch(std::string peer, std::string workload, unsigned count, int repetitions);

    bool Next() const; // false after the repetitions, and after 20 seconds
    void Start();
    void Lap(const std::string& part); // the median of each part goes into the notes
    void Stop(double divisor = 1);     // what took so long was done so many times
    void Print(const std::string& notes) const;

    unsigned Count() const { return m_count; }

private:
    using Clock = std::chrono::steady_clock;

    const std::string m_peer, m_workload;
    const unsigned m_count;
    const int m_repetitions;
    const Clock::time_point m_born = Clock::now();
    Clock::time_point m_started, m_lapStarted;
    long m_residentBefore = 0, m_residentGrown = 0; // of the first repetition, kilobytes
    std::vector<double> m_times;                    // milliseconds
    std::map<std::string, std::vector<double>> m_laps;
};

struct Workload
{
    std::string_view name;
    void (*run)(Stopwatch& watch);
    const char* notes;
    int repetitions = 5;
};

// Warms up with a few objects, then measures the workload of that name. The program's exit status.
int RunWorkload(std::span<const Workload> workloads, const char* peer, std::string_view name, unsigned count);

std::size_t AllocatedBytes(); // of the heap, as the C library counts it, large blocks included
long ResidentKilobytes();     // of the process, after what is free has been given back

} // namespace bench
