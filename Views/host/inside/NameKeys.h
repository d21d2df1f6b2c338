// Inside the library: sorting names without regard to case, each read once.
#pragma once

#include "Toolkit/base/TextKeys.h"
#include "Views/host/IAtom.h"

namespace views
{

// Keys that order like _mbsicmp orders the names of the atoms added.
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
