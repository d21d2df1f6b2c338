#include "Editor/app/QtPictureReader.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

using editor::DecodedPicture;

namespace
{

class PictureReaderTest : public testing::Test
{
protected:
    std::string Path(const char* pszName) const { return m_folder.filePath(pszName).toStdString(); }

    DecodedPicture Read(const char* pszName, CSize maxSize, int frame = 0) const
    {
        return m_reader.Read(Path(pszName), maxSize, frame);
    }

    static QImage TwoHalves(int cx, int cy) // left red, right half-transparent blue
    {
        QImage image(cx, cy, QImage::Format_ARGB32);
        for (int i = 0; i < cx * cy; ++i)
            image.setPixel(i % cx, i / cx, i % cx < cx / 2 ? qRgba(255, 0, 0, 255) : qRgba(0, 0, 255, 128));
        return image;
    }

    QByteArray BytesOf(const QImage& image, const char* pszKind) const
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        EXPECT_TRUE(image.save(&buffer, pszKind));
        return bytes;
    }

    void WriteBytes(const char* pszName, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(pszName));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(bytes.size(), file.write(bytes));
    }

    QTemporaryDir m_folder;
    editor::QtPictureReader m_reader;
};

} // namespace

TEST_F(PictureReaderTest, AnOrdinaryMachineReadsTheUsualKindsWhateverTheFilesAreCalled)
{
    const std::vector<std::string> extensions = m_reader.Extensions();
    for (const char* pszKnown : {"png", "jpg", "jpeg", "gif", "bmp"})
        EXPECT_EQ(1, std::count(extensions.begin(), extensions.end(), pszKnown)) << pszKnown;
    WriteBytes("really-png.jpg", BytesOf(TwoHalves(8, 8), "png"));
    const DecodedPicture picture = Read("really-png.jpg", {8, 8});
    EXPECT_EQ("PNG 32", picture.format + ' ' + std::to_string(picture.bits)) << picture.error;
    for (const auto& [format, nBits] : {std::pair(QImage::Format_RGB32, 24), {QImage::Format_Grayscale8, 8}}) {
        WriteBytes("a.png", BytesOf(TwoHalves(8, 8).convertToFormat(format), "png"));
        EXPECT_EQ(nBits, Read("a.png", {4, 4}).bits);
    }
}

TEST_F(PictureReaderTest, APictureComesPremultipliedAndSmallerButNeverLarger)
{
    TwoHalves(40, 20).save(m_folder.filePath("a.png"));

    const DecodedPicture whole = Read("a.png", {100, 100});
    EXPECT_EQ("", whole.error);
    EXPECT_EQ(CSize(40, 20), whole.fullSize);
    EXPECT_EQ(CSize(40, 20), whole.picture.Bounds().Size());
    EXPECT_EQ(0xFFFF0000u, whole.picture.At(5, 5));
    EXPECT_EQ(0x80000080u, whole.picture.At(35, 5));

    const DecodedPicture small = Read("a.png", {10, 10});
    EXPECT_EQ(CSize(40, 20), small.fullSize);
    EXPECT_EQ(CSize(10, 5), small.picture.Bounds().Size());
    EXPECT_EQ(0xFFFF0000u, small.picture.At(1, 2));

    TwoHalves(300, 1).save(m_folder.filePath("line.png"));
    EXPECT_EQ(CSize(10, 1), Read("line.png", {10, 10}).picture.Bounds().Size());
}

// The smallest EXIF block there is: the picture is to be turned by 90 degrees clockwise.
TEST_F(PictureReaderTest, ACamerasPictureStandsUpright)
{
    const QByteArray exif = QByteArray::fromHex("ffe10022457869660000"         // APP1, "Exif"
                                                "4d4d002a00000008"             // big-endian TIFF
                                                "0001011200030000000100060000" // orientation 6
                                                "00000000");
    QImage wide(400, 200, QImage::Format_RGB32);
    wide.fill(Qt::green);
    const QByteArray plain = BytesOf(wide, "jpg");
    WriteBytes("turned.jpg", plain.left(2) + exif + plain.mid(2));

    const DecodedPicture turned = Read("turned.jpg", {100, 50});
    EXPECT_EQ(CSize(200, 400), turned.fullSize);
    EXPECT_EQ(CSize(25, 50), turned.picture.Bounds().Size());
}

TEST_F(PictureReaderTest, AnAnimationComesFrameByFrame)
{
    const char* const pszHead = "474946383961"   // GIF89a
                                "01000100800000" // 1 by 1, two colours:
                                "ff00000000ff";
    const char* const pszFrames[] = {"2c0000000001000100000202440100", "2c00000000010001000002024c0100"};
    WriteBytes("two.gif", QByteArray::fromHex(QByteArray(pszHead) + pszFrames[0] + pszFrames[1] + "3b"));

    EXPECT_EQ(2, Read("two.gif", {8, 8}).frames);
    EXPECT_EQ(0xFFFF0000u, Read("two.gif", {8, 8}).picture.At(0, 0));
    EXPECT_EQ(0xFF0000FFu, Read("two.gif", {8, 8}, 1).picture.At(0, 0));
    EXPECT_EQ("there is no such frame", Read("two.gif", {8, 8}, 2).error);
    const auto pStream = m_reader.Open(Path("two.gif"), {8, 8});
    EXPECT_EQ(0xFFFF0000u, pStream->Next()->picture.At(0, 0));
    const auto second = pStream->Next();
    EXPECT_EQ(0xFF0000FFu, second->picture.At(0, 0));
    EXPECT_EQ(100, second->delay) << "it says nothing of it";
    EXPECT_FALSE(pStream->Next());
    TwoHalves(8, 8).save(m_folder.filePath("still.png"));
    EXPECT_EQ(1, Read("still.png", {8, 8}).frames);
    EXPECT_FALSE(m_reader.Open(Path("still.png"), {8, 8}));
}

TEST_F(PictureReaderTest, WhatCannotBeReadGivesItsReasonAndTheTerminalIsSpared)
{
    const QByteArray bytes = BytesOf(TwoHalves(64, 64), "png"), small = BytesOf(TwoHalves(4, 4), "bmp");
    WriteBytes("half.png", bytes.left(bytes.size() / 2));
    WriteBytes("bent.png", QByteArray(bytes).replace(bytes.size() / 2, 1, QByteArray(1, bytes[bytes.size() / 2] ^ 1)));
    WriteBytes("text.png", "this is no picture");
    WriteBytes("empty.gif", "");
    WriteBytes("huge.bmp",
               QByteArray(small).replace(18, 8, QByteArray::fromHex("1027000010270000"))); // claims 10000 by 10000
    ASSERT_EQ(0, ::mkfifo(Path("pipe.png").c_str(), 0600));

    const std::pair<const char*, const char*> errors[] = {
        {"half.png", "the picture is damaged"},
        {"bent.png", "the picture is damaged"},
        {"text.png", "not a picture of a known format"},
        {"empty.gif", "the file is empty"},
        {"pipe.png", "not a regular file"},
        {".", "not a regular file"},
        {"gone.png", "no such file or directory"},
        {"huge.bmp", "too large to decode: 10000 by 10000 pixels"},
    };
    testing::internal::CaptureStderr();
    for (const auto& [pszName, pszError] : errors)
        EXPECT_EQ(pszError, Read(pszName, {50, 50}).error);
    EXPECT_EQ(std::string::npos, testing::internal::GetCapturedStderr().find("png"));
    EXPECT_TRUE(Read("half.png", {50, 50}).picture.IsEmpty());
}
