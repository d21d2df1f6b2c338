#include "tests/walk/Shrink.h"

#include "tests/support/TempFolder.h"
#include "tests/walk/Steps.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sys/mman.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" int __lsan_do_recoverable_leak_check() __attribute__((weak));

namespace
{

constexpr int kPatience = 4; // seconds of processor time for a step
constexpr std::chrono::seconds kShrinkTime(90);

// What a child says of itself, in memory that its parent reads.
struct Report
{
    int nAt;
    char fault[16384];
};

// After a fault at once, with everything as it was left. Otherwise as every program ends, so that coverage is written.
[[noreturn]] void End(Report& report, const std::string& fault)
{
    std::strncpy(report.fault, fault.c_str(), sizeof report.fault - 1);
    std::fflush(stdout);
    if (fault.empty())
        std::exit(0);
    _exit(1);
}

void Watch(int nSeconds)
{
    const itimerval time{{0, 0}, {nSeconds, 0}};
    setitimer(ITIMER_PROF, &time, nullptr);
}

void Walk(std::uint64_t seed, const std::vector<int>& steps, Report& report, bool bTells)
{
    Walker walker(seed, bTells);
    for (const int step : steps) {
        report.nAt = step;
        Watch(kPatience);
        if (bTells)
            std::printf("%6d", step);
        const std::string fault = walker.Do(MakeStep(seed, step));
        if (bTells)
            std::printf("\n");
        if (!fault.empty())
            End(report, fault);
    }
    Watch(2 * kPatience);
    if (const std::string left = walker.scene.Close(); !left.empty())
        End(report, left);
}

[[noreturn]] void BeChild(std::uint64_t seed, const std::vector<int>& steps, Report& report, bool bTells,
                          const std::string& folder)
{
    setenv("TEMP", folder.c_str(), 1);
    if (!bTells)
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    MakeThumbList(); // leaves a brush that the program keeps
    Walk(seed, steps, report, bTells);
    if (!std::filesystem::is_empty(folder))
        End(report, "left over: transfer files");
    if (__lsan_do_recoverable_leak_check && __lsan_do_recoverable_leak_check())
        End(report, "leak: memory");
    End(report, "");
}

std::string NameOfEnd(int nStatus)
{
    if (WIFSIGNALED(nStatus) && WTERMSIG(nStatus) == SIGPROF)
        return "endless: the step does not end";
    return "crash: " + std::string(WIFSIGNALED(nStatus) ? strsignal(WTERMSIG(nStatus)) : "the program ended");
}

} // namespace

Outcome RunWalk(std::uint64_t seed, const std::vector<int>& steps, bool bTells)
{
    void* const pShared = mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    Report& report = *new (pShared) Report{};
    const TempFolder transferFiles;
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0)
        BeChild(seed, steps, report, bTells, transferFiles.Path());
    int nStatus = 0;
    waitpid(child, &nStatus, 0);
    Outcome outcome{report.fault, report.nAt};
    if (outcome.fault.empty() && nStatus != 0)
        outcome.fault = NameOfEnd(nStatus);
    munmap(pShared, sizeof(Report));
    return outcome;
}

// Delta debugging: ever smaller pieces are left out, as long as the rest fails.
std::vector<int> Shrink(std::uint64_t seed, std::vector<int> steps, const std::string& kind)
{
    const auto end = std::chrono::steady_clock::now() + kShrinkTime;
    for (std::size_t nPiece = std::max<std::size_t>(steps.size() / 2, 1);;) {
        bool bSmaller = false;
        for (std::size_t nFrom = 0; nFrom < steps.size() && steps.size() > 1;) {
            if (std::chrono::steady_clock::now() > end)
                return steps;
            const std::size_t nTo = std::min(nFrom + nPiece, steps.size());
            std::vector<int> rest(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(nFrom));
            rest.insert(rest.end(), steps.begin() + static_cast<std::ptrdiff_t>(nTo), steps.end());
            if (RunWalk(seed, rest, false).Kind() == kind) {
                steps = std::move(rest);
                bSmaller = true;
            } else {
                nFrom = nTo;
            }
        }
        if (nPiece == 1 && !bSmaller)
            return steps;
        nPiece = bSmaller ? std::min(nPiece, std::max<std::size_t>(steps.size() / 2, 1))
                          : std::max<std::size_t>(nPiece / 2, 1);
    }
}
