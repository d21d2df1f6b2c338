#include "QtDesktop/text/TextMask.h"

#include "Toolkit/graphics/Pixels.h"

namespace qtdesktop
{
namespace
{

constexpr int kChunk = 8;

std::uint64_t LoadEight(const BYTE* from)
{
    std::uint64_t bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

// The top bit of each byte that is not 0.
std::uint64_t Covered(std::uint64_t bytes)
{
    constexpr std::uint64_t kLow = 0x7F7F7F7F7F7F7F7F;
    return (((bytes & kLow) + kLow) | bytes) & ~kLow;
}

} // namespace

void TextMask::Reset(const CRect& place)
{
    m_place = place;
    m_stride = static_cast<std::size_t>(place.Width() + kChunk - 1);
    m_coverage.assign(m_stride * static_cast<std::size_t>(place.Height()), 0);
}

void TextMask::Blend(toolkit::Surface& target, const CRect& clip, CPoint at, toolkit::Pixel color) const
{
    const CRect place = m_place + at;
    const CRect seen = place & clip;
    for (int y = seen.top; y < seen.bottom; ++y)
        toolkit::BlendRow(target.Row(y) + seen.left, Row(y - place.top) + (seen.left - place.left), seen.Width(),
                          color);
}

void LabelMask::Reset(const CRect& place)
{
    m_mask.Reset(place);
    m_twice.clear();
}

void LabelMask::Add(const TextMask& letter, CPoint at)
{
    const CRect place = letter.Place() + at;
    const CPoint corner = place.TopLeft() - m_mask.Place().TopLeft();
    for (int y = 0; y < place.Height(); ++y)
        for (int x = 0; x < place.Width(); x += kChunk)
            AddEight(m_mask.Row(corner.y + y) + corner.x + x, letter.Row(y) + x, corner + CPoint(x, y));
}

void LabelMask::AddEight(BYTE* to, const BYTE* from, CPoint at)
{
    const std::uint64_t there = LoadEight(to), added = LoadEight(from);
    if (!(Covered(there) & Covered(added))) {
        const std::uint64_t both = there | added;
        std::memcpy(to, &both, sizeof both);
        return;
    }
    for (int i = 0; i < kChunk; ++i) {
        if (to[i] == 0)
            to[i] = from[i];
        else if (from[i] != 0)
            m_twice.push_back({at + CPoint(i, 0), from[i]});
    }
}

void LabelMask::Blend(toolkit::Surface& target, const CRect& clip, CPoint at, toolkit::Pixel color) const
{
    m_mask.Blend(target, clip, at, color);
    const CPoint corner = m_mask.Place().TopLeft() + at;
    for (const Spot& spot : m_twice) {
        const CPoint place = corner + spot.at;
        if (!clip.PtInRect(place))
            continue;
        toolkit::Pixel& pixel = target.Row(place.y)[place.x];
        pixel = toolkit::Over(toolkit::ScalePixel(color, spot.coverage), pixel);
    }
}

} // namespace qtdesktop
