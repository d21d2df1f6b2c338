#include "bench/Samples.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>
#include <random>

bench::Sample bench::MakeSample(unsigned number, unsigned capitals)
{
    Sample sample{{}, 0, static_cast<int>(number % kIcons)};
    const int length = std::snprintf(sample.name, sizeof sample.name, "Item %06u", number % 100'000'000);
    sample.length = static_cast<unsigned char>(length);
    for (unsigned letter = 0; letter < 4; ++letter) {
        if (capitals & 1u << letter)
            sample.name[letter] ^= 0x20;
    }
    return sample;
}

std::vector<bench::Sample> bench::MakeSamples(unsigned count)
{
    std::mt19937 random(4711);
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::shuffle(numbers.begin(), numbers.end(), random);
    std::vector<Sample> samples;
    samples.reserve(count);
    for (const int number : numbers)
        samples.push_back(MakeSample(static_cast<unsigned>(number), static_cast<unsigned>(random())));
    return samples;
}

std::vector<bench::Sample> bench::MakeMembers(unsigned count)
{
    auto samples = MakeSamples(count + kContainers + 1);
    samples.resize(count);
    return samples;
}

// A disc with a soft edge, so that alpha matters, crossed by two bars that tell the icons apart.
std::vector<std::uint32_t> bench::MakeIcon(int icon, int extent)
{
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(extent) * static_cast<std::size_t>(extent));
    const double centre = (extent - 1) / 2.0;
    for (int y = 0; y < extent; ++y) {
        for (int x = 0; x < extent; ++x) {
            const double alpha = std::clamp(extent / 2.0 - std::hypot(x - centre, y - centre), 0.0, 1.0);
            const bool onBar = y * 8 / extent == icon / 8 || x * 8 / extent == icon % 8;
            const auto channel = [=](int value) { return static_cast<std::uint32_t>(alpha * (onBar ? 255 : value)); };
            pixels.push_back(static_cast<std::uint32_t>(alpha * 255) << 24 | channel(40 + icon * 3) << 16 |
                             channel(200 - icon * 2) << 8 | channel(icon * 37 % 256));
        }
    }
    return pixels;
}
