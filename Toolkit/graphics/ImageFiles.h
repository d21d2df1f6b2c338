// Picture files in memory: BMP, read and written, and PNG, written only.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <optional>
#include <span>

namespace toolkit
{

// Reads an uncompressed BMP of 24 or 32 bits a pixel, bottom-up or top-down. In one of 32 bits the fourth byte is
// alpha when any of them is not 0, and colours are taken as not yet premultiplied. Nothing for any other bytes, for
// a file that is cut short, and for a picture of more than 2^26 pixels.
TOOLKIT_API std::optional<Surface> DecodeBmp(std::span<const std::byte> file);

// The picture as a BMP of 32 bits with alpha. What is wholly transparent comes back black.
TOOLKIT_API std::vector<std::byte> EncodeBmp(const Surface& picture);

// The picture as a PNG of 8 bits a channel with alpha, hardly compressed. A picture without pixels becomes one
// transparent pixel, since PNG knows no empty ones.
TOOLKIT_API std::vector<std::byte> EncodePng(const Surface& picture);

} // namespace toolkit
