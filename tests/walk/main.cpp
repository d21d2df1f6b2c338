// Walks at random over the views, compares them with a plain model, and shrinks what fails.
//
//   walk [--seed S] [--steps N] [--walks W]   W walks of N steps each, with the seeds S, S + 1, ...
//   walk --minutes M                          new seeds until the time is over
//   walk --seed S --only 3,17,20              just these steps of a walk, told one by one
#include "tests/walk/Shrink.h"

#include <chrono>
#include <cstdio>
#include <map>
#include <numeric>
#include <sstream>

namespace
{

using Options = std::map<std::string, std::string>;

// FALSE when one of the words is unknown or lacks its value.
bool Read(int nArguments, char** arguments, Options& options)
{
    for (int i = 1; i + 1 < nArguments; i += 2) {
        if (!options.contains(arguments[i]))
            return false;
        options[arguments[i]] = arguments[i + 1];
    }
    return nArguments % 2 == 1;
}

std::vector<int> Numbers(const std::string& text)
{
    std::vector<int> numbers;
    std::istringstream in(text);
    for (std::string number; std::getline(in, number, ',');)
        numbers.push_back(std::stoi(number));
    return numbers;
}

std::string Join(const std::vector<int>& numbers)
{
    std::string text;
    for (const int number : numbers)
        text += (text.empty() ? "" : ",") + std::to_string(number);
    return text;
}

void Tell(std::uint64_t seed, const std::vector<int>& steps)
{
    const Outcome outcome = RunWalk(seed, steps, true);
    std::printf("\n%s\n", outcome.fault.empty() ? "all is well" : outcome.fault.c_str());
}

bool IsClean(std::uint64_t seed, int nSteps)
{
    std::vector<int> steps(static_cast<std::size_t>(nSteps));
    std::iota(steps.begin(), steps.end(), 0);
    const Outcome outcome = RunWalk(seed, steps, false);
    if (outcome.fault.empty())
        return true;
    std::printf("seed %llu, step %d: %s\n", static_cast<unsigned long long>(seed), outcome.nAt, outcome.fault.c_str());
    std::fflush(stdout);
    steps.resize(static_cast<std::size_t>(outcome.nAt) + 1);
    steps = Shrink(seed, std::move(steps), outcome.Kind());
    std::printf("shrunk to %zu steps; again: walk --seed %llu --only %s\n", steps.size(),
                static_cast<unsigned long long>(seed), Join(steps).c_str());
    Tell(seed, steps);
    return false;
}

} // namespace

int main(int nArguments, char** arguments)
{
    Options options{{"--seed", "0"}, {"--steps", "1000"}, {"--walks", "1"}, {"--minutes", "0"}, {"--only", ""}};
    if (!Read(nArguments, arguments, options)) {
        std::fprintf(stderr, "usage: walk [--seed S] [--steps N] [--walks W] [--minutes M] [--only N,N,...]\n");
        return 2;
    }
    using Clock = std::chrono::system_clock;
    const auto now = Clock::now();
    const int nSteps = std::stoi(options["--steps"]), nWalks = std::stoi(options["--walks"]);
    const std::chrono::minutes time(std::stoi(options["--minutes"]));
    std::uint64_t seed = std::stoull(options["--seed"]);
    if (!options["--only"].empty()) {
        Tell(seed, Numbers(options["--only"]));
        return 0;
    }
    if (time.count() > 0 && seed == 0) {
        seed = static_cast<std::uint64_t>(now.time_since_epoch().count());
        std::printf("seeds from %llu on\n", static_cast<unsigned long long>(seed));
    }
    long nClean = 0;
    int nFailed = 0;
    for (int i = 0; time.count() > 0 ? Clock::now() < now + time : i < nWalks; ++i)
        IsClean(seed++, nSteps) ? nClean += nSteps : ++nFailed;
    std::printf("%ld steps were clean, %d walks failed\n", nClean, nFailed);
    return nFailed == 0 ? 0 : 1;
}
