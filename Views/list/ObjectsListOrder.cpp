// The list view's order, which is also its test of sameness.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"
#include "Views/host/LinkOrder.h"
#include "Views/host/ReadName.h"
#include "Views/list/ObjectsList.h"

#include <algorithm>
#include <cstring>

namespace
{

IAtom* AtomAt(const void* pElement)
{
    void* pAtom;
    std::memcpy(&pAtom, pElement, sizeof pAtom); // arrays of holders and of plain pointers alike
    return static_cast<IAtom*>(pAtom);
}

// A missing atom comes after every other. strA and strB keep the names read last: a name that cannot be read now is
// what its string held before, cut to the length announced.
int CompareAtoms(IAtom* a, IAtom* b, CString& strA, CString& strB)
{
    if (!a || !b)
        return static_cast<int>(!a) - static_cast<int>(!b);
    try {
        if (const std::optional<int> order = views::CompareLinks(a, b))
            return *order;
        const int nLengthA = views::AskNameLength(a, &IAtom::GetName);
        const int nLengthB = views::AskNameLength(b, &IAtom::GetName);
        views::FillName(a, &IAtom::GetName, nLengthA, strA);
        views::FillName(b, &IAtom::GetName, nLengthB, strB);
        return _mbsicmp(strA, strB);
    } catch (CMemoryException& e) {
        e.ReportError();
        return 0;
    }
}

} // namespace

int CObjectsList::CompareFunc(const void* p1, const void* p2)
{
    static CString s_strName1, s_strName2;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_strName1, s_strName2);
}

int CObjectsList::CompareFunc1(const void* p1, const void* p2)
{
    static CString s_strName1, s_strName2;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_strName1, s_strName2) > 0 ? 1 : 0;
}

// An owner-data control has nothing to sort; the order is made when members are loaded.
void CObjectsList::UpdateIndexes()
{
    PostMessage(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&CompareFunc));
}

// In ordered rows the first equal one is found by halving. New rows come behind them; the last resort, every row, is
// for names that have changed without a word.
int CObjectsList::FindRow(IAtom* pAtom)
{
    SettleDoubts();
    const auto compare = [pAtom](const CStubRef<IAtom>& pRow) { return CompareFunc(&pRow, &pAtom); };
    const auto isSame = [&](const CStubRef<IAtom>& pRow) { return pRow && compare(pRow) == 0; };
    const auto isBefore = [&](const CStubRef<IAtom>& pRow) { return compare(pRow) < 0; };

    const auto orderedEnd = m_atoms.begin() + m_nOrdered;
    auto found = std::partition_point(m_atoms.begin(), orderedEnd, isBefore);
    if (found == orderedEnd || !isSame(*found))
        found = std::find_if(orderedEnd, m_atoms.end(), isSame);
    if (found == m_atoms.end()) {
        found = std::find_if(m_atoms.begin(), orderedEnd, isSame);
        if (found == orderedEnd)
            return -1;
    }
    return static_cast<int>(found - m_atoms.begin());
}

// A new name may put its row out of order. The row of an atom that is out of sight is looked for when that matters, and
// then together with all others: news of atoms come in great numbers, as their pictures are read.
void CObjectsList::DoubtOrder(IAtom* pChanged, int nCachedRow)
{
    if (nCachedRow >= 0)
        return CheckOrder(nCachedRow);
    if (m_nOrdered == 0)
        return;
    try {
        m_doubted.insert(pChanged);
    } catch (const CMemoryException&) {
        m_nOrdered = 0; // no room to remember it
    }
}

void CObjectsList::SettleDoubts()
{
    const auto doubted = std::exchange(m_doubted, {});
    for (int i = 0; !doubted.empty() && i < m_nOrdered; ++i) {
        if (doubted.contains(m_atoms[static_cast<std::size_t>(i)].Get()))
            CheckOrder(i);
    }
}

// From a row that is out of order on rows are no longer found by halving.
void CObjectsList::CheckOrder(int nRow)
{
    if (nRow >= m_nOrdered)
        return;
    const auto row = m_atoms.begin() + nRow;
    const bool bAfterFormer = nRow == 0 || CompareFunc(&row[-1], &row[0]) <= 0;
    const bool bBeforeNext = nRow + 1 == m_nOrdered || CompareFunc(&row[0], &row[1]) <= 0;
    if (!bAfterFormer || !bBeforeNext)
        m_nOrdered = nRow;
}
