// Animations in PNG files, which Qt's decoder takes for stills.
#include "Editor/app/QtPictureReader.h"
#include "Editor/pictures/PngChunks.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>

namespace
{

using editor::PngBytes;

enum Color : char
{
    None,
    Red,
    HalfGreen,
    Blue,
    Yellow
};
enum After : std::uint8_t
{
    Keep,
    Clear,
    Restore
}; // as the format numbers them

struct Part
{
    std::uint32_t x, cx;
    Color color;
    std::uint8_t after = Keep, over = 0;
    std::uint16_t delay = 1, of = 10;
};

PngBytes Numbers(std::initializer_list<std::uint32_t> numbers, std::initializer_list<std::uint8_t> more = {})
{
    PngBytes bytes;
    for (const std::uint32_t n : numbers)
        editor::AppendPngNumber(bytes, n);
    bytes.insert(bytes.end(), more);
    return bytes;
}

PngBytes Packed(const Part& part, PngBytes bytes = {})
{
    const QByteArray row = QByteArray(1, 0) + QByteArray(part.cx, part.color), packed = qCompress(row).mid(4);
    bytes.insert(bytes.end(), packed.begin(), packed.end());
    return bytes;
}

// A file of four pixels by one, of which each frame covers some.
class Apng
{
public:
    explicit Apng(std::uint32_t nFrames)
    {
        editor::AppendPngSignature(bytes);
        Add("IHDR", Numbers({4, 1}, {8, 3, 0, 0, 0}));
        Add("acTL", Numbers({nFrames, 0}));
        Add("PLTE", {0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0});
        Add("tRNS", {0, 255, 128});
    }
    Apng& Add(const char* pszKind, const PngBytes& body)
    {
        editor::AppendPngChunk(bytes, pszKind, body);
        return *this;
    }
    Apng& Control(const Part& part)
    {
        const auto high = [](int n) { return static_cast<std::uint8_t>(n >> 8); };
        const auto low = [](int n) { return static_cast<std::uint8_t>(n); };
        return Add("fcTL",
                   Numbers({nNumber++, part.cx, 1, part.x, 0},
                           {high(part.delay), low(part.delay), high(part.of), low(part.of), part.after, part.over}));
    }
    Apng& Still(const Part& part) { return Add("IDAT", Packed(part)); }
    Apng& Frame(const Part& part) { return Control(part).Add("fdAT", Packed(part, Numbers({nNumber++}))); }
    const Apng& End() { return Add("IEND", {}); }

    PngBytes bytes;
    std::uint32_t nNumber = 0;
};

constexpr Part kRed{0, 4, Red}, kGreen{1, 2, HalfGreen}, kBlue{3, 1, Blue, Keep, 1, 5, 0}, kYellow{0, 4, Yellow};

class AnimatedPngTest : public testing::Test
{
protected:
    static std::string Text(const toolkit::Surface& picture)
    {
        static const std::map<toolkit::Pixel, char> kNames{{0x00000000, '.'}, {0xFFFF0000, 'r'}, {0x80008000, 'g'},
                                                           {0xFF7F8000, 'm'}, {0xFF0000FF, 'b'}, {0xFFFFFF00, 'y'}};
        std::string text;
        for (int x = 0; x < picture.Width(); ++x)
            text += kNames.contains(picture.At(x, 0)) ? kNames.at(picture.At(x, 0)) : '?';
        return text;
    }

    // The picture as a still, how many frames there are, and each of them when it moves.
    std::string Shown(const PngBytes& bytes)
    {
        const QString path = m_folder.filePath("a.png");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
        file.close();
        const editor::DecodedPicture still = m_reader.Read(path.toStdString(), {9, 9}, 0);
        std::string shown = Text(still.picture) + still.error + " of " + std::to_string(still.frames) + ':';
        const auto pStream = still.frames > 1 ? m_reader.Open(path.toStdString(), {9, 9}) : nullptr;
        for (int i = 0; const auto frame = pStream ? pStream->Next() : std::nullopt; ++i) {
            shown += ' ' + Text(frame->picture) + std::to_string(frame->delay);
            EXPECT_EQ(Text(frame->picture), Text(m_reader.Read(path.toStdString(), {9, 9}, i).picture));
        }
        return shown;
    }

    QTemporaryDir m_folder;
    editor::QtPictureReader m_reader;
};

TEST_F(AnimatedPngTest, FramesAreDrawnUponWhatThoseBeforeHaveLeft)
{
    const std::tuple<After, bool, const char*> kinds[] = {
        {Keep, false, "rggr100 rggb50"}, {Keep, true, "rmmr100 rmmb50"},     {Clear, false, "rggr100 r..b50"},
        {Clear, true, "rmmr100 r..b50"}, {Restore, false, "rggr100 rrrb50"}, {Restore, true, "rmmr100 rrrb50"},
    };
    for (const auto& [after, bOver, pszFrames] : kinds) {
        Part green = kGreen;
        green.after = after;
        green.over = bOver;
        EXPECT_EQ(std::string("rrrr of 3: rrrr100 ") + pszFrames,
                  Shown(Apng(3).Control(kRed).Still(kRed).Frame(green).Frame(kBlue).End().bytes));
    }
}

TEST_F(AnimatedPngTest, ThePictureForOthersIsNotAFrameUnlessItSaysSo)
{
    EXPECT_EQ("rrrr of 2: rrrr100 rrrb50", Shown(Apng(2).Still(kYellow).Frame(kRed).Frame(kBlue).End().bytes));
    EXPECT_EQ("yyyy of 1:", Shown(Apng(1).Still(kYellow).Frame(kRed).End().bytes));
}

TEST_F(AnimatedPngTest, WhatIsNotSoundIsAStill)
{
    const auto start = [] { return Apng(3).Control(kRed).Still(kRed); };
    Part wide = kGreen, odd = kGreen, quick = kGreen;
    wide.x = 0xFFFFFFFF;
    odd.after = 3;
    quick.of = 1000;
    const Apng sound = start().Frame(quick).Frame(kBlue).End();
    EXPECT_EQ("rrrr of 3: rrrr100 rggr100 rggb50", Shown(sound.bytes)) << "so quickly nobody has ever seen it";
    Apng skipped = start();
    ++skipped.nNumber;
    PngBytes bent = sound.bytes;
    bent[bent.size() - 20] ^= 1;
    for (const PngBytes& bytes :
         {start().Frame(wide).Frame(kBlue).End().bytes, start().Frame({1, 0, Red}).End().bytes,
          start().Frame(kGreen).Frame(odd).End().bytes, start().Control(kGreen).Frame(kBlue).End().bytes,
          start().Control(kGreen).Add("fdAT", {0}).End().bytes,
          Apng(2).Control(kBlue).Still(kRed).Frame(kRed).End().bytes, skipped.Frame(kGreen).End().bytes, bent,
          PngBytes(sound.bytes.begin(), sound.bytes.end() - 30)})
        EXPECT_EQ("rrrr of 1:", Shown(bytes));
    EXPECT_EQ("the picture is damaged of 1:", Shown(PngBytes(bent.begin(), bent.begin() + 140)));
    EXPECT_EQ("rrrr of 2: rrrr100", Shown(start().Control(kGreen).Add("fdAT", {0, 0, 0, 2, 9}).End().bytes));
}

} // namespace
