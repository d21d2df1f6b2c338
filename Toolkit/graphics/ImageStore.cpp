#include "Toolkit/graphics/ImageStore.h"

#include <utility>

namespace
{

// A caller's large step must not reserve memory that may never be used.
int ImagesPerBlock(CSize size, int growBy)
{
    constexpr int kMostPixels = 1 << 20;
    return std::clamp(growBy, 1, std::max(1, kMostPixels / (size.cx * size.cy)));
}

} // namespace

toolkit::ImageStore::ImageStore(CSize size, int growBy) : m_size(size), m_perBlock(ImagesPerBlock(m_pixels, growBy)) {}

int toolkit::ImageStore::Append(int images)
{
    const auto blocks = static_cast<std::size_t>((m_count + images + m_perBlock - 1) / m_perBlock);
    while (m_blocks.size() < blocks) {
        m_blocks.push_back(Surface::Unfilled({m_pixels.cx, m_pixels.cy * m_perBlock}));
        m_blocks.back().SetScale(m_scale);
    }
    return std::exchange(m_count, m_count + images);
}

void toolkit::ImageStore::Put(int i, const Surface& picture, CPoint from)
{
    Surface& block = m_blocks[static_cast<std::size_t>(i / m_perBlock)];
    const int top = PlaceOf(i).top;
    for (int y = 0; y < m_pixels.cy; ++y)
        std::copy_n(picture.Row(from.y + y) + from.x, m_pixels.cx, block.Row(top + y));
}
