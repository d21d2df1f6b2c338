// Compression for PNG. Internal to the graphics layer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace toolkit
{

// The bytes as a zlib stream. Looks for repetitions at the two distances given only (1 to 32768 bytes back), which
// is all that a drawn picture needs: the pixel before and the row above.
std::vector<std::uint8_t> Compress(std::span<const std::uint8_t> bytes, std::size_t near, std::size_t far);

} // namespace toolkit
