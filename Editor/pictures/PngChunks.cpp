#include "Editor/pictures/PngChunks.h"

#include <algorithm>
#include <cstring>

namespace editor
{
namespace
{

constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
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

} // namespace

std::uint32_t PngNumber(const std::uint8_t* bytes)
{
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

void AppendPngNumber(PngBytes& to, std::uint32_t number)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        to.push_back(static_cast<std::uint8_t>(number >> shift));
}

void AppendPngSignature(PngBytes& to)
{
    to.insert(to.end(), kSignature.begin(), kSignature.end());
}

void AppendPngChunk(PngBytes& to, std::string_view kind, const PngBytes& body)
{
    AppendPngNumber(to, static_cast<std::uint32_t>(body.size()));
    const std::size_t begin = to.size();
    to.insert(to.end(), kind.begin(), kind.end());
    to.insert(to.end(), body.begin(), body.end());
    AppendPngNumber(to, ~Update(0xFFFFFFFFu, to.data() + begin, to.size() - begin));
}

std::optional<PngChunk> PngChunks::Next()
{
    if (std::array<std::uint8_t, 8> signature; m_at == 0) {
        if (!m_read(0, signature.data(), signature.size()) || signature != kSignature)
            return std::nullopt;
        m_at = kSignature.size();
    }
    std::array<std::uint8_t, kHead> head;
    if (!m_read(m_at, head.data(), head.size()))
        return std::nullopt;
    PngChunk chunk{{}, m_at + kHead, PngNumber(head.data())};
    std::memcpy(chunk.kind.data(), head.data() + 4, 4);
    m_at = chunk.at + chunk.length + 4;
    return chunk;
}

std::optional<std::uint32_t> PngChunks::ReadNumber(const PngChunk& chunk) const
{
    std::array<std::uint8_t, 4> number;
    if (chunk.length < number.size() || !m_read(chunk.at, number.data(), number.size()))
        return std::nullopt;
    return PngNumber(number.data());
}

bool PngChunks::Read(const PngChunk& chunk, PngBytes* into, std::uint32_t skipped) const
{
    PngBytes step(std::min(std::max(chunk.length, 4u), kStep));
    std::uint32_t crc = Update(0xFFFFFFFFu, reinterpret_cast<const std::uint8_t*>(chunk.kind.data()), 4);
    for (std::uint32_t done = 0; done < chunk.length;) {
        const std::uint32_t length = std::min(chunk.length - done, kStep);
        if (!m_read(chunk.at + done, step.data(), length))
            return false;
        crc = Update(crc, step.data(), length);
        if (into)
            into->insert(into->end(), step.data() + std::min(skipped, length), step.data() + length);
        skipped -= std::min(skipped, length);
        done += length;
    }
    return m_read(chunk.at + chunk.length, step.data(), 4) && PngNumber(step.data()) == ~crc;
}

bool IsWholePng(ReadBytes read)
{
    PngChunks chunks(std::move(read));
    while (const std::optional<PngChunk> chunk = chunks.Next()) {
        if (!chunks.Read(*chunk, nullptr))
            return false;
        if (chunk->Is("IEND"))
            return true;
    }
    return false;
}

} // namespace editor
