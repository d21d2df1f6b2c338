#include "tests/support/BmpFile.h"

#include <cstring>

namespace
{

struct Header
{
    std::uint16_t unused = 0; // puts the numbers where they may be read
    char kind[2] = {'B', 'M'};
    std::uint32_t size = 0, reserved = 0, pixels = 54;
    std::uint32_t infoSize = 40;
    std::int32_t width = 0, height = 0; // a negative height: the first row comes first
    std::uint16_t planes = 1, bits = 32;
    std::uint32_t rest[6] = {};
};
static_assert(sizeof(Header) == 56);

constexpr std::size_t kHeader = 54;

std::size_t BytesOf(const toolkit::Surface& picture)
{
    return static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height()) * 4;
}

} // namespace

std::string EncodeBmp(const toolkit::Surface& picture)
{
    Header header;
    header.size = static_cast<std::uint32_t>(kHeader + BytesOf(picture));
    header.width = picture.Width();
    header.height = -picture.Height();
    std::string file(header.kind, kHeader);
    for (int y = 0; y < picture.Height(); ++y)
        file.append(reinterpret_cast<const char*>(picture.Row(y)), static_cast<std::size_t>(picture.Width()) * 4);
    return file;
}

std::optional<toolkit::Surface> DecodeBmp(const std::string& file)
{
    Header header;
    if (file.size() < kHeader || !file.starts_with("BM"))
        return {};
    std::memcpy(header.kind, file.data(), kHeader);
    toolkit::Surface picture({header.width, -header.height});
    if (file.size() != kHeader + BytesOf(picture))
        return {};
    for (int y = 0; y < picture.Height(); ++y) {
        const auto row = static_cast<std::size_t>(picture.Width()) * 4;
        std::memcpy(picture.Row(y), file.data() + kHeader + static_cast<std::size_t>(y) * row, row);
    }
    return picture;
}
