// The names that are taken in a folder on the disk.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace editor
{

// Counts whatever there is, shown or not, and takes names that differ in their case alone for the same: the folder may
// be carried to a disk where they are. The folder is read when it has changed since it was last read; a change
// of one's own that is noted does not count as one.
class TakenNames
{
public:
    // Reads the folder if need be; names in a folder that cannot be read are all free.
    void Update(const std::string& folder);
    bool Contains(std::string_view name) const { return m_names.count(KeyOf(name)) > 0; }

    // A free name like this one: see NameForCopy. Takes no longer for the thousandth than for the first.
    std::string FreeName(std::string_view name, std::string_view extension);

    bool IsCurrent(const std::string& folder) const; // has the folder not changed since it was read?
    // The name has just been added to the folder, which was current until then.
    void Added(const std::string& folder, std::string_view name);
    // The folder was changed otherwise: its time need not tell, where a file system's clock ticks slowly.
    void Forget() { m_changed = {-1, 0}; }

private:
    static std::uint64_t KeyOf(std::string_view name);

    std::unordered_set<std::uint64_t> m_names;       // 64 bits of each: that two are alike by chance does no harm
    std::unordered_map<std::uint64_t, int> m_counts; // by name: up to which number all are taken
    timespec m_changed = {-1, 0};                    // of the folder when it was read
};

} // namespace editor
