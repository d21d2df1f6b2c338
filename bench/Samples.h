// The objects that every comparison shows, whatever shows them: names in mixed case, in shuffled order, and small
// pictures. Needs nothing but the standard library, so that other toolkits can be measured with the very same.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace bench
{

inline constexpr int kWindowWidth = 1024, kWindowHeight = 768;
inline constexpr int kCellWidth = 100, kCellHeight = 96; // a picture of 48 pixels with its label below
inline constexpr int kThumbExtent = 128, kThumbCell = 136;
inline constexpr int kIcons = 64;
inline constexpr unsigned kContainers = 100, kExpanded = 20; // of a tree
inline constexpr const char* kFontName = "DejaVu Sans";
inline constexpr int kFontPoints = 9;

struct Sample
{
    char name[15]; // "iTEm 004711"
    unsigned char length;
    int icon; // 0 to kIcons - 1

    std::string_view Name() const { return {name, length}; }
};

Sample MakeSample(unsigned number, unsigned capitals = 0); // capitals: a bit for each letter whose case is turned
std::vector<Sample> MakeSamples(unsigned count);           // the numbers below count, the same order every time
// Of so many members, in lists as they are in a tree.
std::vector<Sample> MakeMembers(unsigned count);
std::vector<std::uint32_t> MakeIcon(int icon, int extent); // premultiplied, 0xAARRGGBB, row by row from the top

} // namespace bench
