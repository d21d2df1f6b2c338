#include "Toolkit/graphics/ImageFiles.h"
#include "Toolkit/graphics/Pixels.h"

namespace
{

using toolkit::Pixel;
using toolkit::Surface;
using Bytes = std::span<const std::byte>;

constexpr std::size_t kFileHeader = 14, kInfoHeader = 40, kHeaders = kFileHeader + kInfoHeader, kMasks = 12;
constexpr std::uint64_t kMostPixels = 1u << 26;

// Numbers are stored with their lowest byte first.
std::uint32_t NumberAt(Bytes bytes, std::size_t at, std::size_t length)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < length; ++i)
        number |= std::to_integer<std::uint32_t>(bytes[at + i]) << (8 * i);
    return number;
}

void AppendNumber(std::vector<std::byte>& bytes, std::uint32_t number, std::size_t length)
{
    for (std::size_t i = 0; i < length; ++i)
        bytes.push_back(static_cast<std::byte>(number >> (8 * i) & 0xFF));
}

struct Layout
{
    int width, height;
    bool topDown;
    std::size_t bytesPerPixel, bytesPerRow, firstPixel;
};

// Colours may be said to lie at places given by masks; only the usual ones are read.
bool HasUsualColors(Bytes file)
{
    enum
    {
        Plain = 0,
        Masks = 3
    };
    const std::uint32_t kind = NumberAt(file, 30, 4);
    if (kind == Plain)
        return true;
    return kind == Masks && file.size() >= kHeaders + kMasks && NumberAt(file, 28, 2) == 32 &&
           NumberAt(file, 54, 4) == 0x00FF0000 && NumberAt(file, 58, 4) == 0x0000FF00 &&
           NumberAt(file, 62, 4) == 0x000000FF;
}

std::optional<Layout> ReadLayout(Bytes file)
{
    if (file.size() < kHeaders || NumberAt(file, 0, 2) != 0x4D42 || NumberAt(file, 14, 4) < kInfoHeader)
        return {};
    const std::int64_t width = static_cast<std::int32_t>(NumberAt(file, 18, 4));
    const std::int64_t height = static_cast<std::int32_t>(NumberAt(file, 22, 4));
    const std::uint32_t bits = NumberAt(file, 28, 2);
    const std::uint64_t rows = static_cast<std::uint64_t>(height < 0 ? -height : height);
    if (width <= 0 || rows == 0 || (bits != 24 && bits != 32) || !HasUsualColors(file) ||
        static_cast<std::uint64_t>(width) > kMostPixels / rows)
        return {};

    const std::uint64_t bytesPerRow = (static_cast<std::uint64_t>(width) * bits / 8 + 3) / 4 * 4;
    const std::uint64_t firstPixel = NumberAt(file, 10, 4);
    if (firstPixel < kHeaders || firstPixel + bytesPerRow * rows > file.size())
        return {};
    return Layout{static_cast<int>(width),
                  static_cast<int>(rows),
                  height < 0,
                  bits / 8,
                  static_cast<std::size_t>(bytesPerRow),
                  static_cast<std::size_t>(firstPixel)};
}

// Pixels as they stand in the file; alpha is 0 where there is none.
Surface ReadPixels(Bytes file, const Layout& layout)
{
    Surface picture({layout.width, layout.height});
    for (int y = 0; y < layout.height; ++y) {
        const auto row = static_cast<std::size_t>(layout.topDown ? y : layout.height - 1 - y);
        std::size_t at = layout.firstPixel + row * layout.bytesPerRow;
        for (int x = 0; x < layout.width; ++x, at += layout.bytesPerPixel)
            picture.Row(y)[x] = NumberAt(file, at, layout.bytesPerPixel);
    }
    return picture;
}

void ApplyAlpha(Surface& picture)
{
    Pixel any = 0;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            any |= picture.At(x, y);
    const bool opaque = any >> 24 == 0;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.Row(y)[x] = opaque ? picture.At(x, y) | 0xFF000000u : toolkit::Premultiplied(picture.At(x, y));
}

} // namespace

std::optional<toolkit::Surface> toolkit::DecodeBmp(std::span<const std::byte> file)
{
    const std::optional<Layout> layout = ReadLayout(file);
    if (!layout)
        return {};
    Surface picture = ReadPixels(file, *layout);
    ApplyAlpha(picture);
    return picture;
}

std::vector<std::byte> toolkit::EncodeBmp(const Surface& picture)
{
    const auto pixelBytes =
        static_cast<std::uint32_t>(picture.Width()) * static_cast<std::uint32_t>(picture.Height()) * 4;
    std::vector<std::byte> file;
    file.reserve(kHeaders + pixelBytes);
    AppendNumber(file, 0x4D42, 2);
    AppendNumber(file, kHeaders + pixelBytes, 4);
    AppendNumber(file, 0, 4);
    AppendNumber(file, kHeaders, 4);

    AppendNumber(file, kInfoHeader, 4);
    AppendNumber(file, static_cast<std::uint32_t>(picture.Width()), 4);
    AppendNumber(file, static_cast<std::uint32_t>(picture.Height()), 4);
    AppendNumber(file, 1, 2);
    AppendNumber(file, 32, 2);
    AppendNumber(file, 0, 4);
    AppendNumber(file, pixelBytes, 4);
    file.resize(kHeaders); // resolution and palette: none

    for (int y = picture.Height() - 1; y >= 0; --y)
        for (int x = 0; x < picture.Width(); ++x)
            AppendNumber(file, Straight(picture.At(x, y)), 4);
    return file;
}
