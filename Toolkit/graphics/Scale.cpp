#include "Toolkit/graphics/Scale.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

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

// The weighted sum of some rows of a picture: four numbers for each column, a channel each. The loops are plain, so
// that they come out as vector code.
template <class Weight>
class RowSums
{
public:
    explicit RowSums(int width) : m_sums(4 * static_cast<std::size_t>(width)), m_plain(m_sums.size()) {}

    const std::uint32_t* At(int column) const { return m_sums.data() + 4 * static_cast<std::size_t>(column); }

    // Rows between the first and the last weigh the same: they are added up first, and weighted together.
    void Sum(const Surface& source, const Cover& rows)
    {
        const std::size_t length = m_sums.size();
        Weigh(m_sums.data(), Channels(source, rows.first), static_cast<Weight>(rows.head), Channels(source, rows.last),
              static_cast<Weight>(rows.tail), length);
        for (int y = rows.first + 1, end; y < rows.last; y = end) {
            end = std::min(rows.last, y + kPlainRows);
            AddUp(source, y, end);
            AddWeighted(m_sums.data(), m_plain.data(), static_cast<Weight>(rows.full), length);
        }
    }

private:
    static constexpr int kPlainRows = 256; // 256 times 255 still fits into 16 bits

    static const std::uint8_t* Channels(const Surface& source, int y)
    {
        return reinterpret_cast<const std::uint8_t*>(source.Row(y));
    }

    // These two are kept out of their callers: there the compiler would forget that 16 bits are multiplied, for which
    // there are instructions.
    [[gnu::noinline]] static void Weigh(std::uint32_t* __restrict sums, const std::uint8_t* a, Weight ofA,
                                        const std::uint8_t* b, Weight ofB, std::size_t length)
    {
        for (std::size_t i = 0; i < length; ++i)
            sums[i] = std::uint32_t{Weight{a[i]}} * ofA + std::uint32_t{Weight{b[i]}} * ofB;
    }

    [[gnu::noinline]] static void AddWeighted(std::uint32_t* __restrict sums, const std::uint16_t* __restrict plain,
                                              Weight weight, std::size_t length)
    {
        for (std::size_t i = 0; i < length; ++i)
            sums[i] += std::uint32_t{plain[i]} * weight;
    }

    // Four at a time, which lie behind one another without a gap.
    void AddUp(const Surface& source, int y, int end)
    {
        std::fill(m_plain.begin(), m_plain.end(), 0);
        for (; y + 4 <= end; y += 4)
            AddFour(m_plain.data(), Channels(source, y), m_plain.size());
        for (; y < end; ++y)
            AddOne(m_plain.data(), Channels(source, y), m_plain.size());
    }

    static void AddFour(std::uint16_t* __restrict sums, const std::uint8_t* row, std::size_t length)
    {
        for (std::size_t i = 0; i < length; ++i)
            sums[i] = static_cast<std::uint16_t>(sums[i] + row[i] + row[i + length] + row[i + 2 * length] +
                                                 row[i + 3 * length]);
    }

    static void AddOne(std::uint16_t* __restrict sums, const std::uint8_t* row, std::size_t length)
    {
        for (std::size_t i = 0; i < length; ++i)
            sums[i] = static_cast<std::uint16_t>(sums[i] + row[i]);
    }

    std::vector<std::uint32_t> m_sums;
    std::vector<std::uint16_t> m_plain;
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

template <class Total, class Sums>
Pixel MeanOfColumns(const Sums& sums, const Cover& columns, const Mean& mean)
{
    std::array<Total, 4> totals{};
    const std::uint32_t* const last = sums.At(columns.last);
    for (const std::uint32_t* column = sums.At(columns.first + 1); column < last; column += 4)
        for (std::size_t channel = 0; channel < 4; ++channel)
            totals[channel] += column[channel];
    const std::uint32_t* const first = sums.At(columns.first);
    std::array<std::uint8_t, 4> pixel;
    for (std::size_t channel = 0; channel < 4; ++channel) {
        const Total total =
            totals[channel] * columns.full + Total{first[channel]} * columns.head + Total{last[channel]} * columns.tail;
        pixel[channel] = static_cast<std::uint8_t>(mean(total));
    }
    return std::bit_cast<Pixel>(pixel);
}

// Weight holds the number of targets each way, Total the sum of all of the picture's pixels.
template <class Weight, class Total>
void Scale(const Surface& source, Surface& scaled)
{
    std::vector<Cover> columns;
    for (int x = 0; x < scaled.Width(); ++x)
        columns.push_back(CoverOf(x, source.Width(), scaled.Width()));
    RowSums<Weight> sums(source.Width());
    const Mean mean(std::uint64_t(source.Width()) * std::uint64_t(source.Height()));
    for (int y = 0; y < scaled.Height(); ++y) {
        sums.Sum(source, CoverOf(y, source.Height(), scaled.Height()));
        std::transform(columns.begin(), columns.end(), scaled.Row(y),
                       [&](const Cover& cover) { return MeanOfColumns<Total>(sums, cover, mean); });
    }
}

// Made larger, a target covers parts of two sources at most each way. The sums of a small picture's pixels and
// their products with the weights are numbers that a float holds exactly, and their means, which are what is rounded,
// are never so near to the next number that a float would confuse the two.
constexpr int kMostToEnlarge = 8192; // pixels

using Floats = float __attribute__((vector_size(16)));
using Numbers = std::int32_t __attribute__((vector_size(16)));

void Pack(std::uint8_t* __restrict channels, const std::int32_t* __restrict means, std::size_t length)
{
    for (std::size_t i = 0; i < length; ++i)
        channels[i] = static_cast<std::uint8_t>(means[i]);
}

void Enlarge(const Surface& source, Surface& scaled)
{
    struct Column
    {
        std::size_t first, last;
        Floats head, tail;
    };
    std::vector<Column> columns;
    for (int x = 0; x < scaled.Width(); ++x) {
        const Cover cover = CoverOf(x, source.Width(), scaled.Width());
        columns.push_back({static_cast<std::size_t>(cover.first), static_cast<std::size_t>(cover.last),
                           Floats{} + static_cast<float>(cover.head), Floats{} + static_cast<float>(cover.tail)});
    }
    const int count = source.Width() * source.Height();
    const Floats part = Floats{} + 1.0f / static_cast<float>(count);
    const Floats half = Floats{} + (static_cast<float>(count / 2) + 0.5f); // away from whole numbers
    RowSums<std::uint16_t> rows(source.Width());
    std::vector<Floats> sums(static_cast<std::size_t>(source.Width()));
    std::vector<Numbers> means(columns.size());
    for (int y = 0; y < scaled.Height(); ++y) {
        rows.Sum(source, CoverOf(y, source.Height(), scaled.Height()));
        for (std::size_t i = 0; i < sums.size(); ++i) {
            Numbers sum;
            std::memcpy(&sum, rows.At(static_cast<int>(i)), sizeof sum);
            sums[i] = __builtin_convertvector(sum, Floats);
        }
        for (std::size_t i = 0; i < means.size(); ++i) {
            const Column& column = columns[i];
            const Floats total = sums[column.first] * column.head + sums[column.last] * column.tail;
            means[i] = __builtin_convertvector((total + half) * part, Numbers);
        }
        Pack(reinterpret_cast<std::uint8_t*>(scaled.Row(y)), reinterpret_cast<const std::int32_t*>(means.data()),
             4 * means.size());
    }
}

bool IsToBeEnlarged(const Surface& source, const Surface& scaled)
{
    return source.Width() <= scaled.Width() && source.Height() <= scaled.Height() && scaled.Height() <= 0xFFFF &&
           source.Width() * std::int64_t{source.Height()} <= kMostToEnlarge;
}

bool IsOrdinary(const Surface& source, const Surface& scaled)
{
    constexpr std::int64_t kMostPixels = 1 << 24; // 255 times that fits into 32 bits
    return std::int64_t{source.Width()} * source.Height() <= kMostPixels && scaled.Height() <= 0xFFFF;
}

} // namespace

toolkit::Surface toolkit::ScaleSurface(const Surface& source, CSize size)
{
    Surface scaled = Surface::Unfilled(size);
    if (source.IsEmpty() || scaled.IsEmpty())
        return {};
    if (source.Bounds() == scaled.Bounds())
        return source;
    if (IsToBeEnlarged(source, scaled))
        Enlarge(source, scaled);
    else if (IsOrdinary(source, scaled))
        Scale<std::uint16_t, std::uint32_t>(source, scaled);
    else
        Scale<std::uint32_t, std::uint64_t>(source, scaled);
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
