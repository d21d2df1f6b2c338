#include "Editor/disk/TakenNames.h"

#include "Editor/disk/DiskFile.h"
#include "Editor/disk/FileNames.h"
#include "Toolkit/base/Checksum.h"
#include "Toolkit/base/Text.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace editor
{
namespace
{

timespec ChangeOf(const std::string& folder)
{
    struct stat status;
    return stat(folder.c_str(), &status) == 0 ? status.st_mtim : timespec{-1, 0};
}

} // namespace

void TakenNames::Update(const std::string& folder)
{
    if (IsCurrent(folder))
        return;
    m_changed = ChangeOf(folder);
    m_names.clear();
    m_counts.clear();
    std::vector<std::string> names;
    const FileDescriptor handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle)
        ReadNames(handle.Get(), names);
    for (const std::string& name : names)
        m_names.insert(KeyOf(name));
}

std::string TakenNames::FreeName(std::string_view name, std::string_view extension)
{
    return NameForCopy(
        name, extension, [this](std::string_view candidate) { return Contains(candidate); }, m_counts[KeyOf(name)]);
}

bool TakenNames::IsCurrent(const std::string& folder) const
{
    const timespec changed = ChangeOf(folder);
    return changed.tv_sec >= 0 && changed.tv_sec == m_changed.tv_sec && changed.tv_nsec == m_changed.tv_nsec;
}

void TakenNames::Added(const std::string& folder, std::string_view name)
{
    m_names.insert(KeyOf(name));
    m_changed = ChangeOf(folder);
}

std::uint64_t TakenNames::KeyOf(std::string_view name)
{
    std::u32string folded;
    while (!name.empty()) {
        const toolkit::CodePoint next = toolkit::DecodeUtf8(name);
        folded += toolkit::FoldCase(next.value);
        name.remove_prefix(static_cast<std::size_t>(next.bytes));
    }
    return toolkit::Checksum({reinterpret_cast<const char*>(folded.data()), folded.size() * sizeof(char32_t)});
}

} // namespace editor
