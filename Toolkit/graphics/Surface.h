// A picture in memory: 32-bit pixels, alpha in the top byte, colours premultiplied by it.
//
// It is so large, in coordinates, as its scale says; at first a pixel is a coordinate.
#pragma once

#include "Toolkit/graphics/PixelScale.h"

#include <memory>
#include <vector>

namespace toolkit
{

using Pixel = std::uint32_t; // 0xAARRGGBB, premultiplied

class TOOLKIT_API Surface
{
public:
    Surface() = default;
    explicit Surface(CSize size, Pixel fill = 0); // a negative extent counts as 0
    // As many pixels as the scale makes of the coordinates.
    Surface(CSize coordinates, PixelScale scale, Pixel fill = 0);
    static Surface Unfilled(CSize size); // of whatever pixels: each is to be written before it is read

    PixelScale Scale() const { return m_scale; }
    void SetScale(PixelScale scale) { m_scale = scale; }         // the pixels stay, the size in coordinates changes
    CSize Size() const { return m_scale.ToCoordinates(m_size); } // in coordinates

    // In pixels.
    int Width() const { return m_size.cx; }
    int Height() const { return m_size.cy; }
    CRect Bounds() const { return {0, 0, m_size.cx, m_size.cy}; }
    bool IsEmpty() const { return m_pixels.empty(); }

    // Rows lie behind one another without a gap, from the top. y must be inside.
    Pixel* Row(int y) { return m_pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_size.cx); }
    const Pixel* Row(int y) const { return const_cast<Surface*>(this)->Row(y); }
    Pixel At(int x, int y) const { return Row(y)[x]; }

private:
    // Leaves memory as it is.
    struct Memory : std::allocator<Pixel>
    {
        template <class Other>
        struct rebind
        {
            using other = Memory;
        };
        void construct(Pixel* p) noexcept { ::new (static_cast<void*>(p)) Pixel; }
        template <class... Values>
        void construct(Pixel* p, Values... values) noexcept
        {
            ::new (static_cast<void*>(p)) Pixel(values...);
        }
    };

    CSize m_size; // pixels
    PixelScale m_scale;
    std::vector<Pixel, Memory> m_pixels;
};

// A copy of a part of the surface, in pixels; only what lies inside it.
TOOLKIT_API Surface Crop(const Surface& source, const CRect& part);

// An opaque colour as a pixel, and a pixel's colour (its alpha is dropped).
constexpr Pixel ToPixel(COLORREF color)
{
    return 0xFF000000u | static_cast<Pixel>(GetRValue(color)) << 16 | static_cast<Pixel>(GetGValue(color)) << 8 |
           GetBValue(color);
}
constexpr COLORREF ToColor(Pixel pixel)
{
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

} // namespace toolkit
