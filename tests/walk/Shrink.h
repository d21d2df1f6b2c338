// Walks in child processes, so that a crash or an endless loop ends the child alone, and the search for the fewest
// steps that still fail.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct Outcome
{
    std::string fault; // "" when all went well
    int nAt = -1;      // the step that failed
    std::string Kind() const { return fault.substr(0, fault.find(':')); }
};

// The steps of these numbers, in this order. With bTells each is written to the standard output as it is made.
Outcome RunWalk(std::uint64_t seed, const std::vector<int>& steps, bool bTells);

// As few of the steps as are found that fail in the same way.
std::vector<int> Shrink(std::uint64_t seed, std::vector<int> steps, const std::string& kind);
