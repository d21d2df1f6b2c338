#include "Editor/app/PictureFile.h"

#include "Editor/disk/FileText.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

namespace editor
{

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

ReadBytes BytesOf(QIODevice& file)
{
    return [&file](std::uint64_t at, std::uint8_t* to, std::size_t length) {
        const auto size = static_cast<qint64>(length);
        return file.seek(static_cast<qint64>(at)) && file.read(reinterpret_cast<char*>(to), size) == size;
    };
}

QSize FitInto(QSize size, QSize max)
{
    if (size.width() <= max.width() && size.height() <= max.height())
        return size;
    return size.scaled(max, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage Smaller(const QImage& image, QSize max)
{
    const QSize fitted = FitInto(image.size(), max);
    return fitted == image.size() ? image : image.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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

} // namespace editor
