// Inside the library: the order of atoms.
#pragma once

#include "Toolkit/base/TextKeys.h"
#include "Views/host/IAtom.h"
#include "Views/host/MemberOrder.h"

#include <optional>

namespace views
{

// Compares two image links by their positions in the phase of the second: negative, 0 or positive. Nothing when not
// both are image links or the second is in no phase: their names decide then.
std::optional<int> CompareLinks(IAtom* a, IAtom* b);

inline toolkit::TextOrder TextOrderOf(UINT nOrder)
{
    return nOrder & MOF_NATURAL ? toolkit::TextOrder::Natural : toolkit::TextOrder::NoCase;
}

// What counts before the name, by the order (MOF_*): nothing for the order of names.
std::string_view RankOf(IAtom* pAtom, UINT nOrder);
// Of the name, or of the label that stands for it: bytes that compare as the order has it.
std::string AtomKey(IAtom* pAtom, const char* pszName, UINT nOrder);

// Sorts names without regard to case, each read once: keys that order like _mbsicmp orders the names of the atoms
// added, or as the order wants it.
class NameKeys
{
public:
    NameKeys(std::size_t nExpected, UINT nOrder) : m_nOrder(nOrder), m_keys(nExpected, TextOrderOf(nOrder)) {}

    bool Add(IAtom* pAtom); // false when its name cannot be read; raises CMemoryException
    // In order, each with the number of the Add that made it; equal names in the order of their Adds.
    const toolkit::TextKeys::Keys& Sort() { return m_keys.Sort(); }
    bool HasEqual() const { return m_keys.HasEqual(); } // once they are sorted

private:
    const UINT m_nOrder;
    toolkit::TextKeys m_keys;
    std::vector<char> m_buffer = std::vector<char>(256); // for the name being read
};

} // namespace views
