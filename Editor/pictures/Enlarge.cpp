#include "Editor/pictures/Enlarge.h"

#include "Toolkit/graphics/Scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace editor
{
namespace
{

constexpr int kTaps = 4;
constexpr int kMostEnlarged = 4;    // times, in coordinates
using Color = std::array<float, 4>; // blue, green, red, alpha; premultiplied

// Which old pixels a new one is made of, and how much of each: a cubic through the old ones.
struct Taps
{
    std::array<int, kTaps> at;
    std::array<float, kTaps> weight;
};

std::vector<Taps> MakeTaps(int from, int to)
{
    std::vector<Taps> all(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const float center = (static_cast<float>(i) + 0.5f) * static_cast<float>(from) / static_cast<float>(to) - 0.5f;
        const float first = std::floor(center);
        const float t = center - first;
        Taps& taps = all[static_cast<std::size_t>(i)];
        taps.weight = {((2 - t) * t - 1) * t / 2, ((3 * t - 5) * t * t + 2) / 2, ((4 - 3 * t) * t + 1) * t / 2,
                       (t - 1) * t * t / 2};
        for (int k = 0; k < kTaps; ++k)
            taps.at[static_cast<std::size_t>(k)] = std::clamp(static_cast<int>(first) + k - 1, 0, from - 1);
    }
    return all;
}

template <class At>
Color Sum(const Taps& taps, At colorAt)
{
    Color sum{};
    for (std::size_t k = 0; k < kTaps; ++k) {
        const Color color = colorAt(taps.at[k]);
        for (std::size_t c = 0; c < sum.size(); ++c)
            sum[c] += taps.weight[k] * color[c];
    }
    return sum;
}

Color ToColor(toolkit::Pixel pixel)
{
    return {static_cast<float>(pixel & 0xFF), static_cast<float>(pixel >> 8 & 0xFF),
            static_cast<float>(pixel >> 16 & 0xFF), static_cast<float>(pixel >> 24)};
}

// The cubic may swing out of range, and a colour above its alpha.
toolkit::Pixel ToPixel(const Color& color)
{
    const float alpha = std::clamp(color[3], 0.0f, 255.0f);
    const auto channel = [](float value, float most) {
        return static_cast<toolkit::Pixel>(std::clamp(value, 0.0f, most) + 0.5f);
    };
    return channel(alpha, 255) << 24 | channel(color[2], alpha) << 16 | channel(color[1], alpha) << 8 |
           channel(color[0], alpha);
}

} // namespace

toolkit::Surface Enlarge(const toolkit::Surface& picture, CSize size)
{
    toolkit::Surface large(size);
    if (picture.IsEmpty() || large.IsEmpty())
        return {};
    const auto width = static_cast<std::size_t>(size.cx);
    const std::vector<Taps> across = MakeTaps(picture.Width(), size.cx);
    std::vector<Color> wide(width * static_cast<std::size_t>(picture.Height()));
    for (int y = 0; y < picture.Height(); ++y)
        for (std::size_t x = 0; x < width; ++x)
            wide[static_cast<std::size_t>(y) * width + x] =
                Sum(across[x], [row = picture.Row(y)](int at) { return ToColor(row[at]); });
    const std::vector<Taps> down = MakeTaps(picture.Height(), size.cy);
    for (int y = 0; y < size.cy; ++y)
        for (std::size_t x = 0; x < width; ++x)
            large.Row(y)[x] = ToPixel(Sum(down[static_cast<std::size_t>(y)],
                                          [&](int at) { return wide[static_cast<std::size_t>(at) * width + x]; }));
    return large;
}

toolkit::Surface EnlargePixels(const toolkit::Surface& picture, CSize room)
{
    if (picture.IsEmpty())
        return {};
    const int times = std::max<int>(1, std::min<int>(room.cx / picture.Width(), room.cy / picture.Height()));
    toolkit::Surface large({picture.Width() * times, picture.Height() * times});
    for (int y = 0; y < large.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            std::fill_n(large.Row(y) + x * times, times, picture.Row(y / times)[x]);
    return large;
}

CSize FittedSize(CSize own, CSize room, bool bSquares)
{
    const int most = toolkit::ScreenScale().ToPixels(kMostEnlarged);
    const int times = own.cx > 0 && own.cy > 0 ? std::min<int>(room.cx / own.cx, room.cy / own.cy) : 0;
    if (bSquares && times > 0)
        return {own.cx * times, own.cy * times};
    return toolkit::FitInto(own, {std::min<int>(room.cx, own.cx * most), std::min<int>(room.cy, own.cy * most)});
}

toolkit::Surface FittedTo(const toolkit::Surface& picture, CSize room, bool bSquares)
{
    const CSize own(picture.Width(), picture.Height()), size = FittedSize(own, room, bSquares);
    toolkit::Surface fitted = size == own        ? picture
                              : size.cx < own.cx ? toolkit::ScaleSurface(picture, size)
                              : bSquares         ? EnlargePixels(picture, size)
                                                 : Enlarge(picture, size);
    fitted.SetScale(toolkit::ScreenScale());
    return fitted;
}

} // namespace editor
