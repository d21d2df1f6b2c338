// A small file as a whole, with the time at which it was written.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace editor
{

struct TextState
{
    std::string text;
    timespec changed{};
};

// The error number; 0: none. EINVAL: no file, but a folder, a pipe or the like; EFBIG: more than so many bytes.
int ReadText(const std::string& path, std::uint64_t nMost, TextState& state);

// As ReplaceFile (TempEntry.h), and the file has that time.
int WriteText(const std::string& path, const TextState& state);

} // namespace editor
