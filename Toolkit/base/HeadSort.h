// Sorting keys by numbers.
#pragma once

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace toolkit
{

// Puts keys in the order of their `head`, a number of 64 bits; keys with the same head keep their order. Moves every
// key once for each byte in which heads differ, whatever their number. Raises CMemoryException, and nothing has
// changed then.
template <class Key>
void SortByHead(std::vector<Key>& keys)
{
    constexpr unsigned kBytes = 8, kValues = 256;
    if (keys.size() < kValues) { // less than counting would take
        std::ranges::stable_sort(keys, {}, &Key::head);
        return;
    }
    const auto byteOf = [](const Key& key, unsigned byte) { return key.head >> 8 * byte & 0xFF; };

    std::vector<Key> sorted(keys.size());
    std::array<std::array<std::size_t, kValues>, kBytes> counts{};
    for (const Key& key : keys)
        for (unsigned byte = 0; byte < kBytes; ++byte)
            ++counts[byte][byteOf(key, byte)];

    for (unsigned byte = 0; byte < kBytes; ++byte) {
        auto& places = counts[byte];
        if (std::ranges::find(places, keys.size()) != places.end())
            continue; // the same in all
        std::size_t place = 0;
        for (std::size_t& count : places)
            place += std::exchange(count, place);
        for (const Key& key : keys)
            sorted[places[byteOf(key, byte)]++] = key;
        keys.swap(sorted);
    }
}

// Sorts each run of keys with the same head by `before`, which compares what is behind it.
template <class Key, class Before>
void SortRuns(std::vector<Key>& keys, Before before)
{
    const auto differ = [](const Key& a, const Key& b) { return a.head != b.head; };
    for (auto first = keys.begin(); first != keys.end();) {
        const auto lastOfRun = std::adjacent_find(first, keys.end(), differ);
        const auto end = lastOfRun == keys.end() ? lastOfRun : lastOfRun + 1;
        if (end - first > 1)
            std::stable_sort(first, end, before);
        first = end;
    }
}

} // namespace toolkit
