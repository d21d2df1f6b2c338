#include "Toolkit/graphics/Surface.h"

#include "Toolkit/base/Exception.h"

#include <limits>

namespace
{

toolkit::PixelScale s_screenScale;

// A size whose pixels cannot be counted in memory is out of memory, also where the product would wrap around.
std::size_t CountPixels(CSize size)
{
    const std::uint64_t count = static_cast<std::uint64_t>(size.cx) * static_cast<std::uint64_t>(size.cy);
    if (count > std::numeric_limits<std::ptrdiff_t>::max() / sizeof(toolkit::Pixel))
        AfxThrowMemoryException();
    return static_cast<std::size_t>(count);
}

} // namespace

toolkit::Surface::Surface(CSize size, Pixel fill)
    : m_size(std::max(size.cx, 0), std::max(size.cy, 0)), m_pixels(CountPixels(m_size), fill)
{}

toolkit::Surface::Surface(CSize coordinates, PixelScale scale, Pixel fill)
    : Surface(scale.ToPixels(CSize(coordinates)), fill)
{
    m_scale = scale;
}

toolkit::Surface toolkit::Surface::Unfilled(CSize size)
{
    Surface surface;
    surface.m_size = {std::max(size.cx, 0), std::max(size.cy, 0)};
    surface.m_pixels.resize(CountPixels(surface.m_size));
    return surface;
}

toolkit::Surface toolkit::Crop(const Surface& source, const CRect& part)
{
    const CRect inside = part & source.Bounds();
    Surface copy = Surface::Unfilled(inside.Size());
    copy.SetScale(source.Scale());
    for (int y = 0; y < copy.Height(); ++y)
        std::copy_n(source.Row(inside.top + y) + inside.left, copy.Width(), copy.Row(y));
    return copy;
}

toolkit::PixelScale toolkit::ScreenScale()
{
    return s_screenScale;
}

void toolkit::SetScreenScale(PixelScale scale)
{
    s_screenScale = scale;
}
