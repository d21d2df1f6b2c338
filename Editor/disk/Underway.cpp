#include "Editor/disk/Underway.h"

#include "Editor/disk/TextFile.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sys/file.h>

namespace editor
{
namespace
{

constexpr std::string_view kBeginning = "underway-";
constexpr std::uint64_t kLongest = 16 << 10; // bytes of a line

// Empty when its program still lives.
std::string Take(const std::string& path)
{
    const FileDescriptor file(open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
    TextState state;
    if (!file || flock(file.Get(), LOCK_EX | LOCK_NB) != 0 || ReadText(path, kLongest, state) != 0)
        return {};
    unlink(path.c_str());
    return state.text;
}

} // namespace

UnderwayMark::UnderwayMark(const std::string& folder, const std::string& line) noexcept
try {
    if (folder.empty())
        return;
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    m_path = folder + '/' + std::string(kBeginning) + std::to_string(getpid());
    m_file = FileDescriptor(open(m_path.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (m_file && flock(m_file.Get(), LOCK_EX | LOCK_NB) == 0)
        WriteAll(m_file.Get(), line);
} catch (const std::bad_alloc&) {
    m_path.clear();
}

UnderwayMark::~UnderwayMark()
{
    if (m_file)
        unlink(m_path.c_str());
}

std::vector<std::string> TakeInterrupted(const std::string& folder)
{
    std::vector<std::string> names, lines;
    const FileDescriptor handle(folder.empty() ? -1 : open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!handle || ReadNames(handle.Get(), names) != 0)
        return lines;
    std::erase_if(names, [](const std::string& name) { return !name.starts_with(kBeginning); });
    std::ranges::sort(names);
    for (const std::string& name : names)
        if (std::string line = Take(folder + '/' + name); !line.empty())
            lines.push_back(std::move(line));
    return lines;
}

} // namespace editor
