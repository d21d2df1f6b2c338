#include "Views/list/inside/Rows.h"

#include "Toolkit/base/Exception.h"
#include "Views/host/IPhase.h"

#include <algorithm>
#include <utility>

void views::Rows::Show(AtomArray atoms, bool bByName)
{
    m_atoms.swap(atoms);
    m_bByName = bByName;
    m_nOrdered = bByName ? GetCount() : 0;
}

int views::Rows::Append(IAtom* pAtom)
{
    m_atoms.push_back(CStubRef<IAtom>::Share(pAtom));
    return GetCount() - 1;
}

// Whoever is asked for a name may have moved the rows.
int views::Rows::Place(IAtom* pAtom)
{
    const unsigned nMoves = m_nMoves;
    SettleDoubts();
    const int nRow = Halve([&](const CStubRef<IAtom>& pRow) { return m_compare(&pRow, &pAtom) <= 0; });
    if (!m_bByName || nMoves != m_nMoves)
        return Append(pAtom);
    m_atoms.insert(m_atoms.begin() + nRow, CStubRef<IAtom>::Share(pAtom));
    ++m_nMoves;
    ++m_nOrdered;
    m_appended.Clear();
    return nRow;
}

CStubRef<IAtom> views::Rows::Remove(int nRow)
{
    const auto place = m_atoms.begin() + nRow;
    CStubRef<IAtom> pRemoved = std::move(*place);
    m_atoms.erase(place);
    ++m_nMoves;
    m_appended.Remove(nRow);
    if (nRow < m_nOrdered)
        --m_nOrdered;
    return pRemoved;
}

views::AtomArray views::Rows::Clear()
{
    m_nOrdered = 0;
    m_appended.Clear();
    m_doubted.clear();
    ++m_nMoves;
    return std::exchange(m_atoms, {});
}

// Whoever is asked for a name may have moved the rows. Then the atom's own row is meant, and nobody is asked again.
int views::Rows::Find(IAtom* pAtom)
{
    const unsigned nMoves = m_nMoves;
    SettleDoubts();
    const int nRow = FindEqual(pAtom);
    if (nMoves == m_nMoves)
        return nRow;
    const auto found = std::ranges::find(m_atoms, pAtom, &CStubRef<IAtom>::Get);
    return found == m_atoms.end() ? -1 : static_cast<int>(found - m_atoms.begin());
}

template <class IsBefore>
int views::Rows::Halve(IsBefore isBefore) const
{
    int nFirst = 0;
    for (int nEnd = m_nOrdered; nFirst < nEnd;) {
        const int nMiddle = nFirst + (nEnd - nFirst) / 2;
        if (isBefore(Hold(nMiddle)))
            nFirst = nMiddle + 1;
        else
            nEnd = nMiddle;
    }
    return nFirst;
}

// In ordered rows the first equal one is found by halving. New rows come behind them; the last resort, every row, is
// for names that have changed without a word.
int views::Rows::FindEqual(IAtom* pAtom)
{
    const int nHalved = Halve([&](const CStubRef<IAtom>& pRow) { return m_compare(&pRow, &pAtom) < 0; });
    if (nHalved < m_nOrdered && IsSame(nHalved, pAtom))
        return nHalved;
    if (const int nAppended = FindAppended(pAtom); nAppended >= 0)
        return nAppended;
    for (int nRow = 0; nRow < GetCount(); ++nRow) {
        if (IsSame(nRow, pAtom))
            return nRow;
    }
    return -1;
}

bool views::Rows::IsSame(int nRow, IAtom* pAtom) const
{
    const CStubRef<IAtom> pRow = Hold(nRow);
    return pRow && m_compare(&pRow, &pAtom) == 0;
}

// Where there are many, by the hashes of their names. -1 also without memory for those.
int views::Rows::FindAppended(IAtom* pAtom)
try {
    constexpr int kFew = 32;
    const int nFewEnd = m_nOrdered + kFew;
    const auto isSame = [&](int nRow) { return IsSame(nRow, pAtom); };
    for (int i = m_nOrdered; i < GetCount(); ++i) {
        if (i == nFewEnd && IndexAppended()) {
            const auto hash = AppendedRows::HashName(pAtom);
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
bool views::Rows::IndexAppended()
{
    const unsigned nMoves = m_nMoves;
    std::vector<AppendedRows::ENTRY> entries;
    m_appended.StartAt(m_nOrdered);
    int i = m_appended.GetEnd();
    for (; nMoves == m_nMoves && i < GetCount(); ++i) {
        const CStubRef<IAtom> pRow = Hold(i);
        if (!pRow)
            continue;
        const auto hash = CStubRef<IImageLink>::From(pRow.Get()) ? std::nullopt : AppendedRows::HashName(pRow.Get());
        if (!hash)
            return false;
        entries.push_back({*hash, i});
    }
    if (nMoves != m_nMoves)
        return false;
    m_appended.Add(entries, i);
    return true;
}

void views::Rows::Doubt(IAtom* pChanged, int nRow)
{
    m_appended.Clear();
    if (nRow >= 0)
        return CheckOrder(nRow);
    if (m_nOrdered == 0)
        return;
    try {
        m_doubted.insert(pChanged);
    } catch (const CMemoryException&) {
        m_nOrdered = 0; // no room to remember it
    }
}

void views::Rows::SettleDoubts()
{
    const auto doubted = std::exchange(m_doubted, {});
    for (int i = 0; !doubted.empty() && i < m_nOrdered; ++i) {
        if (doubted.contains(At(i)))
            CheckOrder(i);
    }
}

// From a row that is out of order on rows are no longer found by halving.
void views::Rows::CheckOrder(int nRow)
{
    if (nRow >= m_nOrdered)
        return;
    const auto pFormer = Hold(nRow - 1);
    const auto pRow = Hold(nRow);
    const auto pNext = nRow + 1 < m_nOrdered ? Hold(nRow + 1) : nullptr;
    const bool bAfterFormer = !pFormer || m_compare(&pFormer, &pRow) <= 0;
    const bool bBeforeNext = !pNext || m_compare(&pRow, &pNext) <= 0;
    if (!bAfterFormer || !bBeforeNext)
        m_nOrdered = std::min(m_nOrdered, nRow);
}
