// The labels that were measured or drawn lately.
#pragma once

#include "QtDesktop/text/TextMask.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace qtdesktop
{

struct KnownLabel
{
    std::string text;
    int width = -1;       // pixels; -1: no label yet
    bool hasMask = false; // once it has been drawn
    LabelMask mask;
};

// A new label takes the place of the one that was new first among a few others. So none is searched for when one is
// to be forgotten, and what they take is bounded: they are as many as a few large screens show.
class KnownLabels
{
public:
    static constexpr std::size_t kLongest = 64; // bytes; longer texts are rare

    KnownLabel* Find(std::string_view text);           // NULL for a text that is not known
    KnownLabel& Add(std::string_view text, int width); // of a text that is not known

private:
    static constexpr std::size_t kSets = 512, kWays = 4;

    struct Set
    {
        std::array<KnownLabel, kWays> labels;
        std::size_t nNext = 0;
    };
    Set& SetOf(std::string_view text);

    std::vector<Set> m_sets; // none until they are needed
};

} // namespace qtdesktop
