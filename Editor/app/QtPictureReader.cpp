#include "Editor/app/QtPictureReader.h"

#include "Editor/app/PictureFile.h"
#include "Editor/app/PngCanvas.h"
#include "Editor/pictures/AnimatedPng.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <atomic>

namespace editor
{
namespace
{

std::atomic<int> g_nReading{0};
struct Reading
{
    Reading() { ++g_nReading; }
    ~Reading() { --g_nReading; }
};

std::vector<std::string> KnownExtensions()
{
    std::vector<std::string> extensions;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        extensions.push_back(format.toLower().toStdString());
    extensions.push_back("apng");
    return extensions;
}

bool IsTurned(const QImageReader& reader)
{
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

bool IsBearable(QSize size)
{
    return qint64(size.width()) * size.height() * 4 <= qint64(QtPictureReader::kMaxMegabytes) << 20;
}

std::string WhyUndecoded(QSize stored)
{
    if (IsBearable(stored))
        return "the picture is damaged";
    return "too large to decode: " + std::to_string(stored.width()) + " by " + std::to_string(stored.height()) +
           " pixels";
}

// Frames build on one another: those before are read, too.
bool SkipFrames(QImageReader& reader, int frames)
{
    QImage image;
    while (frames > 0 && reader.read(&image))
        --frames;
    return frames == 0;
}

// What is there only to fill a pixel up does not count.
int BitsOf(QImage::Format format)
{
    if (format == QImage::Format_Invalid)
        return 0;
    const QPixelFormat pixel = QImage::toPixelFormat(format);
    return pixel.bitsPerPixel() - (pixel.alphaUsage() == QPixelFormat::IgnoresAlpha ? pixel.alphaSize() : 0);
}

DecodedPicture Decode(QImageReader& reader, QSize max, int frame)
{
    reader.setAutoTransform(true);
    const int frames = reader.supportsAnimation() ? std::max(1, reader.imageCount()) : 1;
    const QSize stored = reader.size();
    const QImage::Format pixels = reader.imageFormat();
    const std::string format = reader.format().toUpper().toStdString(); // forgotten once it is read
    if (frame >= frames || !SkipFrames(reader, frame))
        return {{}, {}, "there is no such frame", frames};
    if (stored.isValid())
        reader.setScaledSize(FitInto(stored, IsTurned(reader) ? max.transposed() : max));
    QImage image = reader.read();
    if (image.isNull())
        return {{}, {}, WhyUndecoded(stored), frames};

    QSize full = image.size();
    if (stored.isValid())
        full = IsTurned(reader) ? stored.transposed() : stored;
    else // the decoder could not tell before
        image = image.scaled(FitInto(full, max), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return {ToSurface(image),
            CSize(full.width(), full.height()),
            {},
            frames,
            format,
            BitsOf(pixels != QImage::Format_Invalid ? pixels : image.format())};
}

// Frames build on one another: each is decoded as a whole, and made smaller then.
class QtPictureStream final : public PictureStream
{
public:
    explicit QtPictureStream(QSize max) : m_max(max) {}

    bool Open(const std::string& path)
    {
        if (!OpenFile(m_file, path).empty())
            return false;
        m_reader.setDevice(&m_file);
        m_reader.setDecideFormatFromContent(true);
        m_reader.setAutoTransform(true);
        return m_reader.canRead() && m_reader.supportsAnimation();
    }

    std::optional<Frame> Next() override
    {
        const Reading reading;
        const QImage image = m_reader.read();
        if (image.isNull())
            return std::nullopt;
        const int delay = m_reader.nextImageDelay();
        return Frame{ToSurface(Smaller(image, m_max)), delay < kLeastDelay ? kUsualDelay : delay};
    }

private:
    // What says less has never been shown faster: animations are made for that.
    static constexpr int kLeastDelay = 20, kUsualDelay = 100; // milliseconds

    const QSize m_max;
    QFile m_file;
    QImageReader m_reader;
};

// The decoder knows a PNG file's first picture alone.
class PngPictureStream final : public PictureStream
{
public:
    explicit PngPictureStream(QSize max) : m_max(max) {}

    bool Open(const std::string& path) { return OpenFile(m_file, path).empty() && OpenFrames(m_file) > 1; }

    int OpenFrames(QIODevice& file) // how many there are; 0: it is not animated
    {
        m_frames.emplace(BytesOf(file));
        if (!m_frames->Open() || !IsBearable(QtSize()))
            return 0;
        return m_frames->CountFrames();
    }

    QSize QtSize() const { return {m_frames->GetSize().cx, m_frames->GetSize().cy}; }

    std::optional<Frame> Next() override
    {
        const Reading reading;
        const int delay = Draw();
        if (delay < 0)
            return std::nullopt;
        return Frame{ToSurface(Smaller(m_canvas->GetImage(), m_max)), delay < kLeastDelay ? kUsualDelay : delay};
    }

    bool Skip(int frames)
    {
        while (frames > 0 && Draw() >= 0)
            --frames;
        return frames == 0;
    }

private:
    static constexpr int kLeastDelay = 10, kUsualDelay = 100; // milliseconds

    int Draw() // the next one's delay; -1: there is none
    {
        const std::optional<PngFrame> frame = m_frames->Next();
        if (!m_canvas)
            m_canvas.emplace(QtSize());
        return frame && m_canvas->Draw(*frame) ? frame->delay : -1;
    }

    const QSize m_max;
    QFile m_file;
    std::optional<AnimatedPng> m_frames;
    std::optional<PngCanvas> m_canvas; // once it is drawn upon
};

DecodedPicture DecodeFrame(PngPictureStream& animation, int frames, int frame, int bits)
{
    if (frame >= frames)
        return {{}, {}, "there is no such frame", frames};
    std::optional<PictureStream::Frame> drawn;
    if (animation.Skip(frame))
        drawn = animation.Next();
    if (!drawn)
        return {{}, {}, "the picture is damaged", frames};
    const QSize full = animation.QtSize();
    return {std::move(drawn->picture), CSize(full.width(), full.height()), {}, frames, "APNG", bits};
}

// Where the file is cut off or bent, its first picture may still be whole.
DecodedPicture DecodeStill(QIODevice& file, QSize max, int frame)
{
    AnimatedPng animation(BytesOf(file));
    const PngBytes still = animation.Open() ? animation.GetStill() : PngBytes();
    QByteArray bytes(reinterpret_cast<const char*>(still.data()), static_cast<qsizetype>(still.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    return still.empty() ? DecodedPicture{{}, {}, "the picture is damaged"} : Decode(reader, max, frame);
}

DecodedPicture DecodePng(QImageReader& reader, QFile& file, QSize max, int frame)
{
    if (!IsWholePng(BytesOf(file)))
        return DecodeStill(file, max, frame);
    PngPictureStream animation(max);
    const int frames = animation.OpenFrames(file);
    file.seek(0);
    if (frames > 1)
        return DecodeFrame(animation, frames, frame, BitsOf(reader.imageFormat()));
    return Decode(reader, max, frame);
}

} // namespace

std::unique_ptr<PictureStream> QtPictureReader::Open(const std::string& path, CSize maxSize) const
{
    const Reading reading;
    const QSize max(std::max<int>(maxSize.cx, 1), std::max<int>(maxSize.cy, 1));
    if (auto pPng = std::make_unique<PngPictureStream>(max); pPng->Open(path))
        return pPng;
    auto pStream = std::make_unique<QtPictureStream>(max);
    return pStream->Open(path) ? std::move(pStream) : nullptr;
}

QtPictureReader::QtPictureReader() : m_extensions(KnownExtensions())
{
    QImageReader::setAllocationLimit(kMaxMegabytes);
}

bool QtPictureReader::IsReading()
{
    return g_nReading > 0;
}

DecodedPicture QtPictureReader::Read(const std::string& path, CSize maxSize, int frame) const
{
    const Reading reading;
    return ReadFile(path, maxSize, frame);
}

DecodedPicture QtPictureReader::ReadFile(const std::string& path, CSize maxSize, int frame) const
{
    QFile file;
    if (std::string reason = OpenFile(file, path); !reason.empty())
        return {{}, {}, std::move(reason)};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize max(std::max<int>(maxSize.cx, 1), std::max<int>(maxSize.cy, 1));
    if (reader.canRead())
        return reader.format() == "png" ? DecodePng(reader, file, max, frame) : Decode(reader, max, frame);
    reader.setDecideFormatFromContent(false);
    reader.setFormat(QFileInfo(QFile::decodeName(path.c_str())).suffix().toLower().toLatin1());
    if (!reader.canRead()) // asked first, for some decoders complain aloud of what is not theirs
        return {{}, {}, "not a picture of a known format"};
    return Decode(reader, max, frame);
}

} // namespace editor
