// What must hold of the archive reader, whatever bytes it is given.
#pragma once

#include <string>
#include <string_view>

namespace fuzz
{

// Reads the bytes as they are, and once more with a header that fits what follows it, so that its checks do not hide
// the rest. Empty when every promise was kept; else the one that was not.
std::string CheckArchive(std::string_view bytes);

} // namespace fuzz
