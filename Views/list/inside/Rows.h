// Inside the library: the atoms that a list shows, and where they stand.
#pragma once

#include "Views/list/inside/AppendedRows.h"
#include "Views/list/inside/MemberOrder.h"

#include <unordered_set>

namespace views
{

// One for each row; NULL for one that its container announced and did not give. An atom's row is the first one whose
// atom the comparator finds equal, which asks the host for names: it may change the rows meanwhile.
class Rows
{
public:
    explicit Rows(AtomComparator compare) : m_compare(compare) {}

    int GetCount() const { return static_cast<int>(m_atoms.size()); }
    // Borrowed; NULL, too, when there is no such row.
    IAtom* At(int nRow) const
    {
        return nRow >= 0 && nRow < GetCount() ? m_atoms[static_cast<std::size_t>(nRow)].Get() : nullptr;
    }
    int Find(IAtom* pAtom); // -1: none

    void SetComparator(AtomComparator compare) { m_compare = compare; } // before Show
    void Show(AtomArray atoms, bool bByName);                           // do names alone order them?
    // Its row. Both raise CMemoryException.
    int Append(IAtom* pAtom);
    int Place(IAtom* pAtom); // where names order the rows, among them; else last
    // What is given back is gone from the rows: releasing it may re-enter.
    CStubRef<IAtom> Remove(int nRow);
    AtomArray Clear();

    // The atom may have a new name, which may put its row out of order. The row of an atom that is out of sight (-1) is
    // looked for when that matters, and then together with all others: news of atoms come in great numbers, as their
    // pictures are read.
    void Doubt(IAtom* pChanged, int nRow);

private:
    CStubRef<IAtom> Hold(int nRow) const { return CStubRef<IAtom>::Share(At(nRow)); }
    int FindEqual(IAtom* pAtom);
    template <class IsBefore>
    int Halve(IsBefore isBefore) const; // the first of the ordered rows that it is not true of
    int FindAppended(IAtom* pAtom);
    bool IndexAppended();                      // false when that cannot be done
    bool IsSame(int nRow, IAtom* pAtom) const; // without regard to case
    void SettleDoubts();
    void CheckOrder(int nRow);

    AtomComparator m_compare;
    bool m_bByName = false; // do names order the rows, but for those that were appended?
    AtomArray m_atoms;
    unsigned m_nMoves = 0;   // how often rows have got other numbers
    int m_nOrdered = 0;      // rows before this one stand in the order of their names, but for those of the next
    AppendedRows m_appended; // the others, once one of them has been looked for
    std::unordered_set<const IAtom*> m_doubted; // atoms that may have a new name; perhaps gone, and never followed
};

} // namespace views
