#include "Toolkit/graphics/Scale.h"

#include <array>

namespace
{

using toolkit::Pixel;
using toolkit::Surface;

// The sources that one target covers along an axis. Lengths are counted so that a source is `full` long and
// a target as long as there are sources; then all weights are whole numbers.
struct Cover
{
    int first, last;
    std::uint32_t head, full, tail; // the weight of the first, of those between, of the last (0: it is the first)
};

Cover CoverOf(int target, int sources, int targets)
{
    const std::int64_t begin = std::int64_t{target} * sources;
    const std::int64_t end = begin + sources;
    const std::int64_t first = begin / targets;
    const std::int64_t last = (end - 1) / targets;
    const std::int64_t head = std::min(end, (first + 1) * targets) - begin;
    return {static_cast<int>(first), static_cast<int>(last), static_cast<std::uint32_t>(head),
            static_cast<std::uint32_t>(targets), first == last ? 0 : static_cast<std::uint32_t>(end - last * targets)};
}

// The weighted sum of some rows of a picture, a plane for each channel.
class RowSums
{
public:
    explicit RowSums(int width) : m_even(static_cast<std::size_t>(width)), m_odd(m_even.size())
    {
        m_planes.fill(m_even);
    }

    const std::uint32_t* Plane(std::size_t channel) const { return m_planes[channel].data(); }

    void Sum(const Surface& source, const Cover& rows)
    {
        for (auto& plane : m_planes)
            std::fill(plane.begin(), plane.end(), 0);
        int first = rows.first, last = rows.last;
        if (rows.head != rows.full)
            AddWeighted(source.Row(first++), rows.head);
        if (rows.tail != 0 && rows.tail != rows.full)
            AddWeighted(source.Row(last--), rows.tail);
        for (; first <= last; first += kPackedRows)
            AddFull(source, first, std::min(last + 1, first + kPackedRows), rows.full);
    }

private:
    static constexpr int kPackedRows = 256; // 256 times 255 still fits into the 16 bits of a packed channel
    static constexpr std::uint32_t kTwo = 0x00FF00FF;

    void AddWeighted(const Pixel* row, std::uint32_t weight)
    {
        const std::size_t width = m_even.size();
        for (std::size_t channel = 0; channel < 4; ++channel) {
            std::uint32_t* plane = m_planes[channel].data();
            const std::size_t shift = 8 * channel;
            for (std::size_t x = 0; x < width; ++x)
                plane[x] += (row[x] >> shift & 0xFF) * weight;
        }
    }

    // Rows of the same weight are summed first, two channels to a number, and weighted together.
    void AddFull(const Surface& source, int first, int end, std::uint32_t weight)
    {
        const std::size_t width = m_even.size();
        std::fill(m_even.begin(), m_even.end(), 0);
        std::fill(m_odd.begin(), m_odd.end(), 0);
        for (int y = first; y < end; ++y)
            AddPacked(source.Row(y), m_even.data(), m_odd.data(), width);
        for (std::size_t x = 0; x < width; ++x) {
            m_planes[0][x] += (m_even[x] & 0xFFFF) * weight;
            m_planes[1][x] += (m_odd[x] & 0xFFFF) * weight;
            m_planes[2][x] += (m_even[x] >> 16) * weight;
            m_planes[3][x] += (m_odd[x] >> 16) * weight;
        }
    }

    static void AddPacked(const Pixel* __restrict row, std::uint32_t* __restrict even, std::uint32_t* __restrict odd,
                          std::size_t width)
    {
        for (std::size_t x = 0; x < width; ++x) {
            even[x] += row[x] & kTwo;
            odd[x] += row[x] >> 8 & kTwo;
        }
    }

    std::array<std::vector<std::uint32_t>, 4> m_planes;
    std::vector<std::uint32_t> m_even, m_odd;
};

// Divides by the number of pixels that a mean is taken of, rounding to the nearest; by a multiplication, which
// is exact up to 2^24 of them. Means are below 256.
class Mean
{
public:
    explicit Mean(std::uint64_t count) : m_half(count / 2), m_factor((std::uint64_t{1} << 56) / count + 1) {}
    Pixel operator()(std::uint64_t sum) const { return static_cast<Pixel>((sum + m_half) * m_factor >> 56); }

private:
    const std::uint64_t m_half, m_factor;
};

std::uint64_t SumColumns(const std::uint32_t* plane, const Cover& columns)
{
    std::uint64_t between = 0;
    for (int x = columns.first + 1; x < columns.last; ++x)
        between += plane[x];
    return between * columns.full + std::uint64_t{plane[columns.first]} * columns.head +
           std::uint64_t{plane[columns.last]} * columns.tail;
}

} // namespace

toolkit::Surface toolkit::ScaleSurface(const Surface& source, CSize size)
{
    Surface scaled(size);
    if (source.IsEmpty() || scaled.IsEmpty())
        return {};
    if (source.Bounds() == scaled.Bounds())
        return source;

    std::vector<Cover> columns;
    for (int x = 0; x < scaled.Width(); ++x)
        columns.push_back(CoverOf(x, source.Width(), scaled.Width()));
    RowSums sums(source.Width());
    const Mean mean(std::uint64_t(source.Width()) * std::uint64_t(source.Height()));
    for (int y = 0; y < scaled.Height(); ++y) {
        sums.Sum(source, CoverOf(y, source.Height(), scaled.Height()));
        Pixel* row = scaled.Row(y);
        for (std::size_t channel = 0; channel < 4; ++channel)
            for (std::size_t x = 0; x < columns.size(); ++x)
                row[x] |= mean(SumColumns(sums.Plane(channel), columns[x])) << (8 * channel);
    }
    return scaled;
}

CSize toolkit::FitInto(CSize picture, CSize room)
{
    if (picture.cx <= 0 || picture.cy <= 0 || room.cx <= 0 || room.cy <= 0)
        return {};
    const auto scale = [](int length, int to, int from) {
        return static_cast<int>(std::max<std::int64_t>(1, (std::int64_t{length} * to + from / 2) / from));
    };
    if (std::int64_t{picture.cx} * room.cy >= std::int64_t{picture.cy} * room.cx)
        return {room.cx, scale(picture.cy, room.cx, picture.cx)};
    return {scale(picture.cx, room.cy, picture.cy), room.cy};
}
