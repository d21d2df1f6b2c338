// A checksum of 64 bits over a block of bytes.
#pragma once

#include "Toolkit/base/Types.h"

#include <cstdint>
#include <string_view>

namespace toolkit
{

// Tells accidents, not attackers: a block that was cut, or in which bits have changed, has another checksum. Every
// step can be undone, so that a change within one word never goes unnoticed. As fast as memory is read; `former`
// carries on from a checksum of what came before.
TOOLKIT_API std::uint64_t Checksum(std::string_view bytes, std::uint64_t former = 0);

} // namespace toolkit
