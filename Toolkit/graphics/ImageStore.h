// The pictures of an image list. Internal to the graphics layer.
#pragma once

#include "Toolkit/graphics/Surface.h"

namespace toolkit
{

// Pictures of one size, by index. They lie in blocks of a few, so that growing moves no picture and costs
// each new one only itself.
class ImageStore
{
public:
    static constexpr int kMostExtent = 4096;

    // The size, in coordinates, is 1 to kMostExtent each way. The images are kept at the scale of the screen.
    ImageStore(CSize size, int growBy);

    CSize ImageSize() const { return m_size; }
    PixelScale Scale() const { return m_scale; }
    CSize ImagePixels() const { return m_pixels; }
    int GetCount() const { return m_count; }
    bool Has(int i) const { return i >= 0 && i < m_count; }

    // Where image i, which must be there, lies; in pixels.
    const Surface& BlockOf(int i) const { return m_blocks[static_cast<std::size_t>(i / m_perBlock)]; }
    CRect PlaceOf(int i) const { return {CPoint(0, i % m_perBlock * m_pixels.cy), m_pixels}; }

    int Append(int images); // to be Put; the first one's index. No change when memory runs out
    // Image i becomes the part of the picture whose top left corner is at `from`, in pixels; the whole part, of
    // ImagePixels, is inside.
    void Put(int i, const Surface& picture, CPoint from);

private:
    const CSize m_size;
    const PixelScale m_scale = ScreenScale();
    const CSize m_pixels = m_scale.ToPixels(m_size);
    const int m_perBlock;
    int m_count = 0;
    std::vector<Surface> m_blocks; // each m_perBlock images, one below the other
};

} // namespace toolkit
