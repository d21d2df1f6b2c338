#include "Toolkit/graphics/Deflate.h"

#include <algorithm>

namespace
{

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kShortest = 3, kLongest = 258, kFarthest = 32768;

// Bits in the order of the stream: each byte is filled from its lowest bit on.
class BitWriter
{
public:
    explicit BitWriter(std::vector<std::uint8_t>& out) : m_out(out) {}

    void Put(std::uint32_t value, int count) // its lowest bit first
    {
        m_bits |= value << m_count;
        m_count += count;
        for (; m_count >= 8; m_count -= 8, m_bits >>= 8)
            m_out.push_back(static_cast<std::uint8_t>(m_bits));
    }
    void PutCode(std::uint32_t code, int count) // its highest bit first, as codes are written
    {
        std::uint32_t reversed = 0;
        for (int i = 0; i < count; ++i)
            reversed |= (code >> i & 1) << (count - 1 - i);
        Put(reversed, count);
    }
    void Flush() { Put(0, (8 - m_count) % 8); }

private:
    std::vector<std::uint8_t>& m_out;
    std::uint32_t m_bits = 0;
    int m_count = 0;
};

// A byte, the end (256), or what a length begins with: the format's fixed code.
void PutSymbol(BitWriter& out, std::uint32_t symbol)
{
    if (symbol < 144)
        out.PutCode(0x30 + symbol, 8);
    else if (symbol < 256)
        out.PutCode(0x190 + symbol - 144, 9);
    else if (symbol < 280)
        out.PutCode(symbol - 256, 7);
    else
        out.PutCode(0xC0 + symbol - 280, 8);
}

// Values are put into classes that double in size: after the first `plain` single ones, `perSize` of each size.
struct ValueClass
{
    std::uint32_t number, rest;
    int restBits;
};

ValueClass Classify(std::uint32_t value, std::uint32_t plain, std::uint32_t perSize)
{
    std::uint32_t number = plain, first = plain;
    if (value < plain)
        return {value, 0, 0};
    for (int bits = 1;; ++bits)
        for (std::uint32_t i = 0; i < perSize; ++i, ++number, first += 1u << bits)
            if (value - first < 1u << bits)
                return {number, value - first, bits};
}

void PutRepetition(BitWriter& out, std::size_t length, std::size_t distance)
{
    const ValueClass a =
        length == kLongest ? ValueClass{28, 0, 0} : Classify(static_cast<std::uint32_t>(length - 3), 8, 4);
    PutSymbol(out, 257 + a.number);
    out.Put(a.rest, a.restBits);
    const ValueClass b = Classify(static_cast<std::uint32_t>(distance - 1), 4, 2);
    out.PutCode(b.number, 5);
    out.Put(b.rest, b.restBits);
}

// How many bytes from `at` on are the same as those `distance` before.
std::size_t CountRepeated(Bytes bytes, std::size_t at, std::size_t distance)
{
    if (distance > at || distance > kFarthest)
        return 0;
    const std::size_t most = std::min(kLongest, bytes.size() - at);
    std::size_t length = 0;
    while (length < most && bytes[at + length] == bytes[at + length - distance])
        ++length;
    return length;
}

std::uint32_t Checksum(Bytes bytes)
{
    std::uint32_t low = 1, high = 0;
    for (const std::uint8_t byte : bytes) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

} // namespace

std::vector<std::uint8_t> toolkit::Compress(Bytes bytes, std::size_t near, std::size_t far)
{
    std::vector<std::uint8_t> stream{0x78, 0x01};
    BitWriter out(stream);
    out.Put(1, 1); // one block, the last
    out.Put(1, 2); // with the fixed code
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t before = CountRepeated(bytes, at, near), above = CountRepeated(bytes, at, far);
        const std::size_t length = std::max(before, above);
        if (length >= kShortest)
            PutRepetition(out, length, before >= above ? near : far);
        else
            PutSymbol(out, bytes[at]);
        at += length >= kShortest ? length : 1;
    }
    PutSymbol(out, 256);
    out.Flush();

    const std::uint32_t checksum = Checksum(bytes);
    for (int shift = 24; shift >= 0; shift -= 8)
        stream.push_back(static_cast<std::uint8_t>(checksum >> shift));
    return stream;
}
