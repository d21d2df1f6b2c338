// What no view can do without: putting names in order, and filling and blending one frame, with no toolkit at all.
#include "bench/QtPeer.h"

#include <algorithm>

namespace
{

using namespace bench;

std::uint32_t Over(std::uint32_t above, std::uint32_t below)
{
    const std::uint32_t rest = 255 - (above >> 24);
    const auto scaled = [rest](std::uint32_t two) {
        two = (two & 0xFF00FF) * rest + 0x800080;
        return (two + (two >> 8 & 0xFF00FF)) >> 8 & 0xFF00FF;
    };
    return above + (scaled(below) | scaled(below >> 8) << 8);
}

template <class PixelAt>
void BlendInto(std::vector<std::uint32_t>& frame, int left, int top, int width, int height, PixelAt pixelAt)
{
    for (int y = 0; y < height; ++y) {
        std::uint32_t* const pRow = frame.data() + (top + y) * kWindowWidth + left;
        for (int x = 0; x < width; ++x)
            pRow[x] = Over(pixelAt(x, y), pRow[x]);
    }
}

} // namespace

void bench::SortKeysAlone(Stopwatch& watch)
{
    const auto samples = MakeMembers(watch.Count());
    while (watch.Next()) {
        Objects objects = PointersTo(samples);
        watch.Start();
        SortByName(objects);
        watch.Stop();
    }
}

void bench::PaintPlainFrames(Stopwatch& watch)
{
    constexpr int kLetters = 11, kLetterWidth = 8, kLetterHeight = 14, kIcon = 48, kFrames = 200;
    const auto icon = MakeIcon(9, kIcon);
    const std::vector<std::uint32_t> letter(kLetterWidth * kLetterHeight, 0x5A000000);
    std::vector<std::uint32_t> frame(static_cast<std::size_t>(kWindowWidth) * kWindowHeight);
    while (watch.Next()) {
        watch.Start();
        for (int i = 0; i < kFrames; ++i) {
            std::ranges::fill(frame, 0xFFFFFFFF);
            for (int row = 0; row < static_cast<int>(watch.Count()); ++row) {
                const int left = row % 10 * kCellWidth, top = row / 10 % 8 * kCellHeight;
                BlendInto(frame, left + 26, top + 6, kIcon, kIcon, [&](int x, int y) { return icon[y * kIcon + x]; });
                for (int k = 0; k < kLetters; ++k)
                    BlendInto(frame, left + 6 + k * kLetterWidth, top + 58, kLetterWidth, kLetterHeight,
                              [&](int x, int y) { return letter[y * kLetterWidth + x]; });
            }
        }
        watch.Stop(kFrames);
    }
}
