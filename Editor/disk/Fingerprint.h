// Whether something on the disk is still as it was.
#pragma once

#include <cstdint>
#include <string>

namespace editor
{

// Of a file, a link or a folder with everything in it: the names below it, kinds, sizes, times of the last change and
// what links say; not contents, nor the times of folders, nor what is only in the making. It changes with any of
// these, whatever the path itself is called. 0: there is nothing. One look at the disk for each entry.
std::uint64_t FingerprintOf(const std::string& path);

} // namespace editor
