#include "Editor/app/QtPictureReader.h"

#include "Editor/app/WholePng.h"
#include "Editor/disk/FileText.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

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
    return extensions;
}

// Opens the file by the very bytes of its name, which need not be UTF-8. Empty, or why it was not opened.
std::string OpenFile(QFile& file, const std::string& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return SystemErrorText(errno);
    file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    struct stat info;
    if (::fstat(descriptor, &info) != 0)
        return SystemErrorText(errno);
    if (!S_ISREG(info.st_mode))
        return "not a regular file";
    return info.st_size == 0 ? "the file is empty" : "";
}

bool IsTurned(const QImageReader& reader)
{
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

QSize FitInto(QSize size, QSize max)
{
    if (size.width() <= max.width() && size.height() <= max.height())
        return size;
    return size.scaled(max, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

std::string WhyUndecoded(QSize stored)
{
    if (qint64(stored.width()) * stored.height() * 4 <= qint64(QtPictureReader::kMaxMegabytes) << 20)
        return "the picture is damaged";
    return "too large to decode: " + std::to_string(stored.width()) + " by " + std::to_string(stored.height()) +
           " pixels";
}

toolkit::Surface ToSurface(const QImage& decoded)
{
    const QImage image = decoded.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    toolkit::Surface surface(CSize(image.width(), image.height()));
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(surface.Row(y), image.constScanLine(y),
                    static_cast<std::size_t>(image.width()) * sizeof(toolkit::Pixel));
    return surface;
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
    explicit QtPictureStream(CSize maxSize) : m_max(std::max<int>(maxSize.cx, 1), std::max<int>(maxSize.cy, 1)) {}

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
        QImage image = m_reader.read();
        if (image.isNull())
            return std::nullopt;
        if (const QSize fitted = FitInto(image.size(), m_max); fitted != image.size())
            image = image.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const int delay = m_reader.nextImageDelay();
        return Frame{ToSurface(image), delay < kLeastDelay ? kUsualDelay : delay};
    }

private:
    // What says less has never been shown faster: animations are made for that.
    static constexpr int kLeastDelay = 20, kUsualDelay = 100; // milliseconds

    const QSize m_max;
    QFile m_file;
    QImageReader m_reader;
};

} // namespace

std::unique_ptr<PictureStream> QtPictureReader::Open(const std::string& path, CSize maxSize) const
{
    const Reading reading;
    auto pStream = std::make_unique<QtPictureStream>(maxSize);
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
    if (reader.canRead()) {
        if (reader.format() == "png" && !IsWholePng(file))
            return {{}, {}, "the picture is damaged"};
        return Decode(reader, max, frame);
    }
    reader.setDecideFormatFromContent(false);
    reader.setFormat(QFileInfo(QFile::decodeName(path.c_str())).suffix().toLower().toLatin1());
    if (!reader.canRead()) // asked first, for some decoders complain aloud of what is not theirs
        return {{}, {}, "not a picture of a known format"};
    return Decode(reader, max, frame);
}

} // namespace editor
