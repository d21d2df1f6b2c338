// Inside the library: the order of atoms.
#pragma once

#include "Toolkit/base/TextKeys.h"
#include "Views/host/IAtom.h"

#include <optional>

namespace views
{

// Compares two image links by their positions in the phase of the second: negative, 0 or positive. Nothing when not
// both are image links or the second is in no phase: their names decide then.
std::optional<int> CompareLinks(IAtom* a, IAtom* b);

// Sorts names without regard to case, each read once: keys that order like _mbsicmp orders the names of the atoms
// added.
class NameKeys
{
public:
    explicit NameKeys(std::size_t nExpected) : m_keys(nExpected) {}

    bool Add(IAtom* pAtom); // false when its name cannot be read; raises CMemoryException
    // In order, each with the number of the Add that made it; equal names in the order of their Adds.
    const toolkit::TextKeys::Keys& Sort() { return m_keys.Sort(); }
    std::size_t GetCount() const { return m_keys.GetCount(); }
    bool HasEqual() const { return m_keys.HasEqual(); } // once they are sorted

private:
    toolkit::TextKeys m_keys;
    std::vector<char> m_buffer = std::vector<char>(256); // for the name being read
};

} // namespace views
