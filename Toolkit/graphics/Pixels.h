// Arithmetic on premultiplied pixels, and the loops over a row of them that all drawing is made of.
//
// Two channels share one multiplication. Results are rounded to the nearest value: the same on every machine.
#pragma once

#include "Toolkit/graphics/PixelVectors.h"

#include <algorithm>

namespace toolkit
{

// Each channel times part / 255. part is 0 to 255.
constexpr Pixel ScalePixel(Pixel pixel, std::uint32_t part)
{
    constexpr std::uint32_t kTwo = 0x00FF00FF;
    std::uint32_t even = (pixel & kTwo) * part + 0x00800080;
    even = ((even + (even >> 8 & kTwo)) >> 8) & kTwo;
    std::uint32_t odd = (pixel >> 8 & kTwo) * part + 0x00800080;
    odd = (odd + (odd >> 8 & kTwo)) & ~kTwo;
    return even | odd;
}

// What is seen when `above` lies on `below`.
constexpr Pixel Over(Pixel above, Pixel below)
{
    return above + ScalePixel(below, 255 - (above >> 24));
}

// Of each part by itself; rounded down.
constexpr Pixel Average(Pixel a, Pixel b)
{
    return (a & b) + ((a ^ b) >> 1 & 0x7F7F7F7F);
}

// The mean of the pixel and an opaque tint seen through the pixel's own alpha, which stays; rounded down.
constexpr Pixel Tinted(Pixel pixel, Pixel tint)
{
    return Average(pixel, ScalePixel(tint, pixel >> 24));
}

// Each colour turned into its opposite, as seen through the same alpha. Done twice it is undone.
constexpr Pixel Inverted(Pixel pixel)
{
    const std::uint32_t alpha = pixel >> 24;
    return (pixel & 0xFF000000u) | ((alpha * 0x010101u - (pixel & 0xFFFFFFu)) & 0xFFFFFFu);
}

// Grounds are nearly always white, and equal bytes are what the C library fills fastest.
inline void FillRow(Pixel* to, int count, Pixel pixel)
{
    if (pixel == (pixel & 0xFF) * 0x01010101u)
        std::memset(to, static_cast<int>(pixel & 0xFF), static_cast<std::size_t>(count) * sizeof(Pixel));
    else
        std::fill_n(to, count, pixel);
}

inline void BlendRow(Pixel* to, int count, Pixel above)
{
    for (int i = 0; i < count; ++i)
        to[i] = Over(above, to[i]);
}

// The rows must not overlap. Most pixels of a picture are opaque or not there at all, and so are their neighbours:
// pixels are looked at in groups, and only mixed groups are worth the arithmetic.
inline void BlendRow(Pixel* __restrict to, const Pixel* __restrict from, int count)
{
    constexpr int kGroup = 16;
    int i = 0;
    for (; i + kGroup <= count; i += kGroup) {
        Pixel all = ~0u, any = 0;
        for (int k = i; k < i + kGroup; ++k) {
            all &= from[k];
            any |= from[k];
        }
        if (all >> 24 == 255)
            std::copy_n(from + i, kGroup, to + i);
        else if (any != 0)
            for (int k = i; k < i + kGroup; k += 4)
                vectors::BlendFour(to + k, from + k);
    }
    for (; i < count; ++i)
        to[i] = Over(from[i], to[i]);
}

// An opaque colour through a mask: a byte for each pixel, 255 where only the colour is seen.
inline void BlendRow(Pixel* __restrict to, const BYTE* __restrict mask, int count, Pixel color)
{
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        std::uint32_t four;
        std::memcpy(&four, mask + i, sizeof four);
        if (four != 0)
            vectors::BlendFourCovered(to + i, four, color);
    }
    for (; i < count; ++i)
        to[i] = Over(ScalePixel(color, mask[i]), to[i]);
}

// By a quarter: half of what half would be.
inline void TintRow(Pixel* row, int count, Pixel opaqueTint)
{
    for (int i = 0; i < count; ++i)
        row[i] = Average(row[i], Tinted(row[i], opaqueTint));
}

// Does nothing show through the picture?
inline bool CoversAll(const Surface& picture)
{
    const Pixel* const first = picture.Row(0);
    const auto count = static_cast<std::ptrdiff_t>(picture.Width()) * picture.Height();
    return std::all_of(first, first + count, [](Pixel pixel) { return pixel >> 24 == 0xFF; });
}

} // namespace toolkit
