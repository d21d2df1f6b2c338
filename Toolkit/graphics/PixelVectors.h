// Four pixels at a time, exactly as Pixels.h has them one by one. Internal to Pixels.h.
//
// A product of two channels fits 16 bits, and every processor with vectors multiplies eight of those at once: so
// the channels lie in lanes of 16 bits, every second channel in each of two vectors. Written with the compiler's
// vectors, because it does not find this by itself; where the processor has none it makes plain code of them.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <cstring>

namespace toolkit::vectors
{

using Words = std::uint32_t __attribute__((vector_size(16)));
using Lanes = std::uint16_t __attribute__((vector_size(16)));
using Bytes = std::uint8_t __attribute__((vector_size(16)));

template <class Vector>
void Load(Vector& vector, const Pixel* from)
{
    std::memcpy(&vector, from, sizeof vector);
}

template <class Vector>
void Store(Pixel* to, const Vector& vector)
{
    std::memcpy(to, &vector, sizeof vector);
}

// Each channel times its lane's part / 255.
inline void Scale(Lanes& pixels, const Lanes& parts)
{
    const Lanes even = (pixels & 0xFF) * parts + 128;
    const Lanes odd = (pixels >> 8) * parts + 128;
    pixels = (even + (even >> 8)) >> 8 | ((odd + (odd >> 8)) & 0xFF00);
}

inline void BlendFour(Pixel* to, const Pixel* from)
{
    Words above;
    Lanes below;
    Load(above, from);
    Load(below, to);
    Words rest = 255 - (above >> 24);
    rest |= rest << 16;
    Scale(below, reinterpret_cast<Lanes>(rest));
    above += reinterpret_cast<Words>(below);
    Store(to, above);
}

// An opaque colour, of which the four pixels get as much as four bytes say.
inline void BlendFourCovered(Pixel* to, std::uint32_t coverage, Pixel color)
{
    const Words words{coverage, 0, 0, 0};
    const auto bytes = reinterpret_cast<Bytes>(words);
    const Bytes twice = __builtin_shufflevector(bytes, bytes, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    const auto pairs = reinterpret_cast<Lanes>(twice);
    const Lanes parts = __builtin_shufflevector(pairs, pairs, 0, 8, 1, 9, 2, 10, 3, 11) & 0xFF;
    const Words colors{color, color, color, color};
    Lanes above = reinterpret_cast<Lanes>(colors), below;
    Load(below, to);
    Scale(above, parts);
    Scale(below, 255 - parts);
    Store(to, above + below);
}

} // namespace toolkit::vectors
