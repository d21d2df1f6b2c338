#include "Toolkit/graphics/Transparency.h"

namespace
{

using toolkit::Pixel;
using toolkit::Surface;

constexpr Pixel kWhite = toolkit::ToPixel(RGB(255, 255, 255));
constexpr Pixel kBlack = toolkit::ToPixel(RGB(0, 0, 0));

// Replaces each pixel by change(pixel, the other picture's pixel at the same place).
template <class Change>
void ChangePixels(Surface& picture, const Surface& other, Change change)
{
    for (int y = 0; y < picture.Height(); ++y)
        std::transform(picture.Row(y), picture.Row(y) + picture.Width(), other.Row(y), picture.Row(y), change);
}

} // namespace

toolkit::Surface toolkit::WithMask(Surface picture, const Surface& mask)
{
    ChangePixels(picture, mask, [](Pixel pixel, Pixel masked) { return masked == kWhite ? 0 : pixel; });
    return picture;
}

toolkit::Surface toolkit::WithTransparentColor(Surface picture, COLORREF color)
{
    const Pixel transparent = ToPixel(color);
    ChangePixels(picture, picture, [=](Pixel pixel, Pixel) { return pixel == transparent ? 0 : pixel; });
    return picture;
}

toolkit::Surface toolkit::MaskOfColor(const Surface& picture, COLORREF color)
{
    const Pixel transparent = ToPixel(color);
    Surface mask(picture.Size(), picture.Scale());
    ChangePixels(mask, picture, [=](Pixel, Pixel pixel) { return pixel == transparent ? kWhite : kBlack; });
    return mask;
}

toolkit::Surface toolkit::MaskOfAlpha(const Surface& picture)
{
    Surface mask(picture.Size(), picture.Scale());
    ChangePixels(mask, picture, [](Pixel, Pixel pixel) { return pixel >> 24 == 0 ? kWhite : kBlack; });
    return mask;
}
