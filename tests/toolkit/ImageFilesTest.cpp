#include "Toolkit/graphics/ImageFiles.h"

#include "tests/toolkit/Picture.h"

#include <gtest/gtest.h>
#include <random>

namespace
{

using toolkit::DecodeBmp;
using toolkit::Surface;
using Bytes = std::vector<std::byte>;

void Append(Bytes& bytes, std::uint32_t number, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::byte>(number >> (8 * i) & 0xFF));
}

// A BMP as other programs write them.
Bytes MakeBmp(int width, int height, int bits, const std::vector<std::uint8_t>& pixels)
{
    Bytes file;
    Append(file, 'B' | 'M' << 8, 2);
    Append(file, 0, 4);
    Append(file, 0, 4);
    Append(file, 56, 4); // two bytes lie between the headers and the pixels
    Append(file, 40, 4);
    Append(file, static_cast<std::uint32_t>(width), 4);
    Append(file, static_cast<std::uint32_t>(height), 4);
    Append(file, 1, 2);
    Append(file, static_cast<std::uint32_t>(bits), 2);
    file.resize(56);
    for (const std::uint8_t byte : pixels)
        file.push_back(static_cast<std::byte>(byte));
    return file;
}

Rows Shown(const Bytes& file)
{
    const std::optional<Surface> picture = DecodeBmp(file);
    return picture ? ShowPicture(*picture) : Rows{"no picture"};
}

TEST(BmpTest, ReadsBothDirectionsAndDepthsAndWhatItHasWritten)
{
    // Two rows of a red and a green, then two blue pixels, each row filled up to four bytes.
    const std::vector<std::uint8_t> rows{0, 0, 255, 0, 255, 0, 9, 9, 255, 0, 0, 255, 0, 0, 9, 9};
    EXPECT_EQ((Rows{"BB", "RG"}), Shown(MakeBmp(2, 2, 24, rows)));
    EXPECT_EQ((Rows{"RG", "BB"}), Shown(MakeBmp(2, -2, 24, rows)));

    EXPECT_EQ((Rows{"R#"}), Shown(MakeBmp(2, 1, 32, {0, 0, 255, 0, 0, 0, 0, 0}))); // no alpha anywhere
    EXPECT_EQ((Rows{"rR "}), Shown(MakeBmp(3, 1, 32, {0, 0, 255, 128, 0, 0, 255, 255, 7, 7, 7, 0})));

    const Rows written{"R G", "rB.", "#Y "};
    EXPECT_EQ(written, Shown(toolkit::EncodeBmp(MakePicture(written))));
}

TEST(BmpTest, AnyOtherBytesAreNoPicture)
{
    const Bytes good = MakeBmp(2, 2, 24, std::vector<std::uint8_t>(16));
    ASSERT_TRUE(DecodeBmp(good));
    for (std::size_t length = 0; length < good.size(); ++length)
        EXPECT_FALSE(DecodeBmp(std::span(good).first(length))) << length;

    for (const auto& [width, height, bits] :
         {std::tuple(2, 2, 8), std::tuple(0, 2, 24), std::tuple(-2, 2, 24), std::tuple(2, 0, 24),
          std::tuple(INT32_MAX, INT32_MIN, 32), std::tuple(1 << 30, 4, 32), std::tuple(1, 1 << 30, 24)})
        EXPECT_FALSE(DecodeBmp(MakeBmp(width, height, bits, std::vector<std::uint8_t>(64)))) << width << " " << height;

    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        Bytes bad = good;
        for (int i = 0; i < 4; ++i)
            bad[random() % bad.size()] = static_cast<std::byte>(random());
        if (const auto picture = DecodeBmp(bad)) {
            EXPECT_LE(static_cast<std::size_t>(picture->Width()) * static_cast<std::size_t>(picture->Height()) * 3,
                      bad.size());
        }
    }
}

// Reads the zlib streams that EncodePng writes: one block with the fixed code.
class Inflater
{
public:
    explicit Inflater(std::span<const std::byte> stream) : m_stream(stream.subspan(2)) {}

    std::string Run()
    {
        EXPECT_EQ(3u, Bits(3)); // last block, fixed code
        std::string out;
        for (unsigned symbol = Symbol(); symbol != 256; symbol = Symbol()) {
            if (symbol < 256) {
                out += static_cast<char>(symbol);
                continue;
            }
            static constexpr unsigned kLengths[] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                                    31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
            const unsigned lengthClass = symbol - 257;
            const unsigned more = lengthClass < 8 || lengthClass == 28 ? 0 : lengthClass / 4 - 1;
            const unsigned length = kLengths[lengthClass] + Bits(more);
            const unsigned far = Code(5);
            const unsigned distance = far < 4 ? far + 1 : ((2 + (far & 1)) << (far / 2 - 1)) + 1 + Bits(far / 2 - 1);
            if (distance > out.size())
                return "too far back";
            for (unsigned i = 0; i < length; ++i)
                out += out[out.size() - distance];
        }
        return out;
    }

private:
    unsigned Bits(unsigned count)
    {
        unsigned value = 0;
        for (unsigned i = 0; i < count; ++i, ++m_bit)
            value |= (std::to_integer<unsigned>(m_stream[m_bit / 8]) >> m_bit % 8 & 1) << i;
        return value;
    }
    unsigned Code(int count)
    {
        unsigned code = 0;
        while (count-- > 0)
            code = code << 1 | Bits(1);
        return code;
    }
    unsigned Symbol()
    {
        unsigned code = Code(7);
        if (code < 24)
            return 256 + code;
        code = code << 1 | Bits(1);
        if (code < 192)
            return code - 48;
        if (code < 200)
            return 280 + code - 192;
        return 144 + (code << 1 | Bits(1)) - 400;
    }

    std::span<const std::byte> m_stream;
    std::size_t m_bit = 0;
};

std::string Text(std::span<const std::byte> bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

TEST(PngTest, ASmallPictureHasTheseBytes)
{
    const Bytes file = toolkit::EncodePng(MakePicture({"r"}));
    std::string hex;
    for (const std::byte byte : file) {
        hex += "0123456789ABCDEF"[std::to_integer<int>(byte >> 4)];
        hex += "0123456789ABCDEF"[std::to_integer<int>(byte & std::byte{15})];
    }
    EXPECT_EQ("89504E470D0A1A0A"
              "0000000D49484452000000010000000108060000001F15C489"
              "0000000D49444154780163F8CFC0D0000004810180DE254D42"
              "0000000049454E44AE426082",
              hex);
}

TEST(PngTest, LongRepetitionsAndNoiseUnpackToTheSameRows)
{
    std::mt19937 random(5);
    Surface picture({300, 40}, 0xFF204060);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < y * 7; ++x)
            picture.Row(y)[x] = y % 3 ? 0xFF000000u | static_cast<toolkit::Pixel>(random()) : picture.Row(y - y % 2)[x];

    std::string expected;
    for (int y = 0; y < 40; ++y) {
        expected += '\0';
        for (int x = 0; x < 300; ++x)
            for (const int shift : {16, 8, 0, 24})
                expected += static_cast<char>(picture.At(x, y) >> shift);
    }
    const Bytes file = toolkit::EncodePng(picture);
    EXPECT_EQ("IDAT", Text(std::span(file).subspan(37, 4)));
    EXPECT_TRUE(expected == Inflater(std::span(file).subspan(41)).Run());
    EXPECT_GT(expected.size(), file.size());
}

} // namespace
