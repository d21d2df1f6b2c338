// Opening picture files, and what comes out of Qt's decoders.
#pragma once

#include "Editor/pictures/PngChunks.h"
#include "Toolkit/graphics/Surface.h"

#include <QFile>
#include <QImage>
#include <string>

namespace editor
{

// By the very bytes of its name, which need not be UTF-8. Empty, or why it was not opened.
std::string OpenFile(QFile& file, const std::string& path);
ReadBytes BytesOf(QIODevice& file); // which is borrowed, and whose position changes

QSize FitInto(QSize size, QSize max); // as it is where it fits
QImage Smaller(const QImage& image, QSize max);
toolkit::Surface ToSurface(const QImage& decoded);

} // namespace editor
