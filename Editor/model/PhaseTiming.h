// How fast a phase is played, as its file tells: lines "#delay 80" and "#repeat 3", which other readers of phases pass
// over as remarks.
#pragma once

#include <string>
#include <string_view>

namespace editor
{

struct PhaseTiming
{
    static constexpr int kMostDelay = 60'000;
    static constexpr int kMostRepeats = 1000;

    int delay = 100; // of each frame, in milliseconds
    int repeat = 1;  // how often all frames are played; 0: without an end
    friend bool operator==(const PhaseTiming&, const PhaseTiming&) = default;
};

// The first line of a kind counts; one that is missing, or holds no number in range, leaves the usual value.
PhaseTiming TimingOf(std::string_view text);

// The text with these values. Lines there are keep their places; new ones come first. All else stays byte for byte.
std::string WithTiming(std::string text, const PhaseTiming& timing);

} // namespace editor
