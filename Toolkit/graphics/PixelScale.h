// How many pixels a coordinate is, each way.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace toolkit
{

// Windows, controls and all drawing count in coordinates. Screens with small pixels show one as 1.25, 1.5, 2 ... of
// them. Edges are rounded, never sizes: what adjoins in coordinates adjoins in pixels, and nothing overlaps.
class PixelScale
{
public:
    constexpr PixelScale() = default;
    constexpr explicit PixelScale(double factor) : m_factor(std::clamp(factor, 1.0, 16.0)) {}

    constexpr double Factor() const { return m_factor; }

    int ToPixels(int coordinate) const { return m_factor == 1 ? coordinate : Round(coordinate * m_factor); }
    CPoint ToPixels(CPoint point) const { return {ToPixels(point.x), ToPixels(point.y)}; }
    CSize ToPixels(CSize size) const { return {ToPixels(size.cx), ToPixels(size.cy)}; }
    CRect ToPixels(const CRect& rect) const
    {
        return {ToPixels(rect.left), ToPixels(rect.top), ToPixels(rect.right), ToPixels(rect.bottom)};
    }
    // What takes up so many pixels, to the nearest coordinate; of ToPixels' answer what it was asked.
    CSize ToCoordinates(CSize pixels) const { return {Round(pixels.cx / m_factor), Round(pixels.cy / m_factor)}; }
    // Is everything that lies so far apart as many pixels apart, wherever it lies?
    bool IsWhole(int coordinate) const { return coordinate * m_factor == ToPixels(coordinate); }

    bool operator==(const PixelScale&) const = default;

private:
    static int Round(double value)
    {
        return static_cast<int>(std::clamp<double>(std::floor(value + 0.5), INT32_MIN, INT32_MAX));
    }

    double m_factor = 1;
};

// What the screen shows sharp; of several screens the finest. Windows are painted so, and pictures made for them. The
// desktop sets it, before the first window and when it changes.
TOOLKIT_API PixelScale ScreenScale();
TOOLKIT_API void SetScreenScale(PixelScale scale);

} // namespace toolkit
