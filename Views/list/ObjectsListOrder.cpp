// The list view's order, which is also its test of sameness.
#include "Toolkit/base/Exception.h"
#include "Toolkit/base/Text.h"
#include "Views/host/IPhase.h"
#include "Views/host/inside/LinkOrder.h"
#include "Views/host/inside/ReadName.h"
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

struct NAMES
{
    CString strA, strB;
};

// The names read last are taken along: whoever is asked for a name may have other atoms compared.
int CompareAtoms(IAtom* a, IAtom* b, NAMES& last)
{
    NAMES names = std::move(last);
    const int nOrder = CompareAtoms(a, b, names.strA, names.strB);
    last = std::move(names);
    return nOrder;
}

} // namespace

int CObjectsList::CompareFunc(const void* p1, const void* p2)
{
    static NAMES s_last;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_last);
}

int CObjectsList::CompareFunc1(const void* p1, const void* p2)
{
    static NAMES s_last;
    return CompareAtoms(AtomAt(p1), AtomAt(p2), s_last) > 0 ? 1 : 0;
}

// An owner-data control has nothing to sort; the order is made when members are loaded.
void CObjectsList::UpdateIndexes()
{
    PostMessage(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&CompareFunc));
}

// Whoever is asked for a name may have moved the rows. Then the atom's own row is meant, and nobody is asked again.
int CObjectsList::FindRow(IAtom* pAtom)
{
    const unsigned nRowMoves = m_nRowMoves;
    SettleDoubts();
    const int nRow = FindEqualRow(pAtom);
    if (nRowMoves == m_nRowMoves)
        return nRow;
    const auto found = std::ranges::find(m_atoms, pAtom, &CStubRef<IAtom>::Get);
    return found == m_atoms.end() ? -1 : static_cast<int>(found - m_atoms.begin());
}

// In ordered rows the first equal one is found by halving. New rows come behind them; the last resort, every row, is
// for names that have changed without a word.
int CObjectsList::FindEqualRow(IAtom* pAtom)
{
    int nHalved = 0;
    for (int nEnd = m_nOrdered; nHalved < nEnd;) {
        const int nMiddle = nHalved + (nEnd - nHalved) / 2;
        const CStubRef<IAtom> pRow = HoldAtom(nMiddle);
        if (CompareFunc(&pRow, &pAtom) < 0)
            nHalved = nMiddle + 1;
        else
            nEnd = nMiddle;
    }
    if (nHalved < m_nOrdered && IsSame(nHalved, pAtom))
        return nHalved;
    if (const int nAppended = FindAppendedRow(pAtom); nAppended >= 0)
        return nAppended;
    for (int nRow = 0; nRow < static_cast<int>(m_atoms.size()); ++nRow) {
        if (IsSame(nRow, pAtom))
            return nRow;
    }
    return -1;
}

bool CObjectsList::IsSame(int nRow, IAtom* pAtom) const
{
    const CStubRef<IAtom> pRow = HoldAtom(nRow);
    return pRow && CompareFunc(&pRow, &pAtom) == 0;
}

// Where there are many, by the hashes of their names. -1 also without memory for those.
int CObjectsList::FindAppendedRow(IAtom* pAtom)
try {
    constexpr int kFew = 32;
    const int nFewEnd = m_nOrdered + kFew;
    const auto isSame = [&](int nRow) { return IsSame(nRow, pAtom); };
    for (int i = m_nOrdered; i < static_cast<int>(m_atoms.size()); ++i) {
        if (i == nFewEnd && IndexAppendedRows()) {
            const auto hash = views::AppendedRows::HashName(pAtom);
            const std::vector<int> rows = hash ? m_appended.Find(*hash) : std::vector<int>();
            const auto found = std::ranges::find_if(rows, isSame);
            return found != rows.end() ? *found : -1;
        }
        if (isSame(i))
            return i;
    }
    return -1;
} catch (const CMemoryException&) {
    m_appended.Clear();
    return -1;
}

// Whoever is asked for a name may have moved the rows. False also when names cannot decide.
bool CObjectsList::IndexAppendedRows()
{
    const unsigned nRowMoves = m_nRowMoves;
    std::vector<views::AppendedRows::ENTRY> entries;
    m_appended.StartAt(m_nOrdered);
    int i = m_appended.GetEnd();
    for (; nRowMoves == m_nRowMoves && i < static_cast<int>(m_atoms.size()); ++i) {
        const CStubRef<IAtom> pRow = HoldAtom(i);
        if (!pRow)
            continue;
        const auto hash =
            CStubRef<IImageLink>::From(pRow.Get()) ? std::nullopt : views::AppendedRows::HashName(pRow.Get());
        if (!hash)
            return false;
        entries.push_back({*hash, i});
    }
    if (nRowMoves != m_nRowMoves)
        return false;
    m_appended.Add(entries, i);
    return true;
}

// A new name may put its row out of order. The row of an atom that is out of sight is looked for when that matters, and
// then together with all others: news of atoms come in great numbers, as their pictures are read.
void CObjectsList::DoubtOrder(IAtom* pChanged, int nCachedRow)
{
    m_appended.Clear();
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
    const auto pFormer = HoldAtom(nRow - 1);
    const auto pRow = HoldAtom(nRow);
    const auto pNext = nRow + 1 < m_nOrdered ? HoldAtom(nRow + 1) : nullptr;
    const bool bAfterFormer = !pFormer || CompareFunc(&pFormer, &pRow) <= 0;
    const bool bBeforeNext = !pNext || CompareFunc(&pRow, &pNext) <= 0;
    if (!bAfterFormer || !bBeforeNext)
        m_nOrdered = std::min(m_nOrdered, nRow);
}
