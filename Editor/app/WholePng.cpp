#include "Editor/app/WholePng.h"

#include <QIODevice>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace editor
{
namespace
{

constexpr qint64 kSignature = 8; // bytes
constexpr std::uint32_t kStep = 1 << 16;

using Table = std::array<std::array<std::uint32_t, 256>, 4>;

// Four bytes at a time: the table of each further byte is that of the one before, moved on by a byte of zeros.
constexpr Table MakeTable()
{
    Table table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t crc = i;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
        table[0][i] = crc;
    }
    for (std::size_t k = 1; k < table.size(); ++k)
        for (std::size_t i = 0; i < 256; ++i)
            table[k][i] = table[k - 1][i] >> 8 ^ table[0][table[k - 1][i] & 0xFF];
    return table;
}

constexpr Table kTable = MakeTable();

std::uint32_t Update(std::uint32_t crc, const std::uint8_t* bytes, std::size_t length)
{
    for (; length >= 4; bytes += 4, length -= 4)
        crc = kTable[3][(crc ^ bytes[0]) & 0xFF] ^ kTable[2][(crc >> 8 ^ bytes[1]) & 0xFF] ^
              kTable[1][(crc >> 16 ^ bytes[2]) & 0xFF] ^ kTable[0][(crc >> 24 ^ bytes[3]) & 0xFF];
    for (; length > 0; ++bytes, --length)
        crc = crc >> 8 ^ kTable[0][(crc ^ *bytes) & 0xFF];
    return crc;
}

class Chunks
{
public:
    explicit Chunks(QIODevice& device) : m_device(device), m_buffer(kStep) {}

    // False at the first chunk that is not whole.
    bool AreSound()
    {
        while (ReadHead()) {
            if (!IsBodySound())
                return false;
            if (std::memcmp(m_head.data() + 4, "IEND", 4) == 0)
                return true;
        }
        return false;
    }

private:
    static std::uint32_t Number(const std::uint8_t* bytes)
    {
        return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
    }

    bool Read(std::uint8_t* to, std::size_t length)
    {
        return m_device.read(reinterpret_cast<char*>(to), static_cast<qint64>(length)) == static_cast<qint64>(length);
    }

    bool ReadHead() { return Read(m_head.data(), m_head.size()); }

    bool IsBodySound()
    {
        std::uint32_t crc = Update(0xFFFFFFFFu, m_head.data() + 4, 4);
        for (std::uint32_t left = Number(m_head.data()); left > 0;) {
            const std::uint32_t step = std::min(left, kStep);
            if (!Read(m_buffer.data(), step))
                return false;
            crc = Update(crc, m_buffer.data(), step);
            left -= step;
        }
        std::array<std::uint8_t, 4> stored;
        return Read(stored.data(), stored.size()) && Number(stored.data()) == ~crc;
    }

    QIODevice& m_device;
    std::array<std::uint8_t, 8> m_head; // length, kind
    std::vector<std::uint8_t> m_buffer;
};

} // namespace

bool IsWholePng(QIODevice& device)
{
    const qint64 before = device.pos();
    const bool bSound = device.seek(kSignature) && Chunks(device).AreSound();
    return device.seek(before) && bSound;
}

} // namespace editor
