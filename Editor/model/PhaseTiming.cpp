#include "Editor/model/PhaseTiming.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace editor
{
namespace
{

constexpr std::string_view kDelay = "#delay ", kRepeat = "#repeat ";

// Where the value behind the key stands in the text.
struct Place
{
    std::size_t at, size;
};

std::optional<Place> FindValue(std::string_view text, std::string_view key)
{
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string_view line = text.substr(at, end - at);
        if (line.starts_with(key)) {
            const std::size_t last = line.find_last_not_of(" \t\r");
            return Place{at + key.size(), last < key.size() ? 0 : last + 1 - key.size()};
        }
        at = end + 1;
    }
    return {};
}

int ReadValue(std::string_view text, std::string_view key, int most, int usual)
{
    const std::optional<Place> place = FindValue(text, key);
    if (!place)
        return usual;
    const char* const first = text.data() + place->at;
    int value = 0;
    const auto [end, error] = std::from_chars(first, first + place->size, value);
    const bool bWhole = error == std::errc() && end == first + place->size;
    return bWhole && value >= 0 && value <= most ? value : usual;
}

void WriteValue(std::string& text, std::string_view key, int value)
{
    const std::string written = std::to_string(value);
    if (const std::optional<Place> place = FindValue(text, key))
        text.replace(place->at, place->size, written);
    else
        text.insert(0, std::string(key) + written + '\n');
}

} // namespace

PhaseTiming TimingOf(std::string_view text)
{
    const PhaseTiming usual;
    return {ReadValue(text, kDelay, PhaseTiming::kMostDelay, usual.delay),
            ReadValue(text, kRepeat, PhaseTiming::kMostRepeats, usual.repeat)};
}

std::string WithTiming(std::string text, const PhaseTiming& timing)
{
    const PhaseTiming former = TimingOf(text);
    if (timing.repeat != former.repeat)
        WriteValue(text, kRepeat, timing.repeat);
    if (timing.delay != former.delay)
        WriteValue(text, kDelay, timing.delay);
    return text;
}

} // namespace editor
