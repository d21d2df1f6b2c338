// Pictures as files, in the plainest form that there is: BMP with 32 bits a pixel.
#pragma once

#include "Toolkit/graphics/Surface.h"

#include <optional>
#include <string>

std::string EncodeBmp(const toolkit::Surface& picture); // an opaque one
// What EncodeBmp made; nothing for any other bytes.
std::optional<toolkit::Surface> DecodeBmp(const std::string& file);
