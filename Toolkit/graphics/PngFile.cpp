#include "Toolkit/graphics/Deflate.h"
#include "Toolkit/graphics/ImageFiles.h"
#include "Toolkit/graphics/Pixels.h"

#include <array>
#include <string_view>

namespace
{

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kPixelBytes = 4;

void AppendNumber(std::vector<std::uint8_t>& bytes, std::uint32_t number)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
}

constexpr std::array<std::uint32_t, 256> MakeCrcTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = value & 1 ? 0xEDB88320u ^ value >> 1 : value >> 1;
        table[i] = value;
    }
    return table;
}

std::uint32_t Crc(Bytes bytes)
{
    static constexpr std::array<std::uint32_t, 256> kTable = MakeCrcTable();
    std::uint32_t crc = ~0u;
    for (const std::uint8_t byte : bytes)
        crc = kTable[(crc ^ byte) & 0xFF] ^ crc >> 8;
    return ~crc;
}

void AppendChunk(std::vector<std::uint8_t>& file, std::string_view name, Bytes content)
{
    AppendNumber(file, static_cast<std::uint32_t>(content.size()));
    const std::size_t begin = file.size();
    file.insert(file.end(), name.begin(), name.end());
    file.insert(file.end(), content.begin(), content.end());
    AppendNumber(file, Crc(Bytes(file).subspan(begin)));
}

std::vector<std::uint8_t> MakeHeader(CSize size)
{
    std::vector<std::uint8_t> header;
    AppendNumber(header, static_cast<std::uint32_t>(size.cx));
    AppendNumber(header, static_cast<std::uint32_t>(size.cy));
    header.insert(header.end(), {8, 6, 0, 0, 0}); // 8 bits of red, green, blue and alpha
    return header;
}

// Each row begins with its filter: none.
std::vector<std::uint8_t> MakeRows(const toolkit::Surface& picture)
{
    std::vector<std::uint8_t> rows;
    rows.reserve((static_cast<std::size_t>(picture.Width()) * kPixelBytes + 1) *
                 static_cast<std::size_t>(picture.Height()));
    for (int y = 0; y < picture.Height(); ++y) {
        rows.push_back(0);
        for (int x = 0; x < picture.Width(); ++x) {
            const toolkit::Pixel pixel = toolkit::Straight(picture.At(x, y));
            for (const int shift : {16, 8, 0, 24})
                rows.push_back(static_cast<std::uint8_t>(pixel >> shift));
        }
    }
    return rows;
}

} // namespace

std::vector<std::byte> toolkit::EncodePng(const Surface& picture)
{
    if (picture.IsEmpty())
        return EncodePng(Surface({1, 1}));
    std::vector<std::uint8_t> file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AppendChunk(file, "IHDR", MakeHeader(picture.Bounds().Size()));
    const std::size_t bytesPerRow = static_cast<std::size_t>(picture.Width()) * kPixelBytes + 1;
    AppendChunk(file, "IDAT", Compress(MakeRows(picture), kPixelBytes, bytesPerRow));
    AppendChunk(file, "IEND", {});

    const auto bytes = std::as_bytes(std::span(file));
    return {bytes.begin(), bytes.end()};
}
