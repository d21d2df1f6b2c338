// Inside the library: finding rows that have no place in the order.
#pragma once

#include "Views/host/IAtom.h"

#include <optional>
#include <vector>

namespace views
{

// Which of the rows behind the ordered ones have names with a certain hash.
class AppendedRows
{
public:
    struct ENTRY
    {
        std::size_t hash;
        int nRow;
        friend auto operator<=>(const ENTRY&, const ENTRY&) = default;
    };

    // Of the atom's name without regard to case; nothing when it cannot be read. Raises CMemoryException.
    static std::optional<std::size_t> HashName(IAtom* pAtom);

    void StartAt(int nFirst); // empties it when it has started at another row
    int GetEnd() const { return m_nEnd; }
    void Add(const std::vector<ENTRY>& entries, int nEnd); // of the rows from the former end on
    std::vector<int> Find(std::size_t hash) const;         // in increasing order

    void Remove(int nRow); // the rows behind it move up by one
    void Clear() { *this = AppendedRows(); }

private:
    std::vector<ENTRY> m_entries; // ordered
    int m_nFirst = 0, m_nEnd = 0; // the rows that are in it
};

} // namespace views
