#include "Views/tree/inside/TreeRecords.h"

#include <utility>

void views::GiveBackRecord::operator()(TreeRecord* pRecord) const
{
    pRecords->Free(*pRecord);
}

views::TreeRecords::Holder views::TreeRecords::Make()
{
    MakeRoom();
    if (m_nFirstFree == 0) {
        if (m_nUsed / kBlock == m_blocks.size())
            m_blocks.push_back(std::make_unique<TreeRecord[]>(kBlock));
        m_nFirstFree = ++m_nUsed;
    }
    const std::uint32_t nIndex = m_nFirstFree - 1;
    TreeRecord& record = At(nIndex);
    m_nFirstFree = std::exchange(record.nIndex, nIndex);
    ++m_nMade;
    return Hold(&record);
}

// The references are released last: that may re-enter.
void views::TreeRecords::Free(TreeRecord& record)
{
    const std::uint32_t nIndex = record.nIndex;
    const TreeRecord last = std::exchange(record, TreeRecord());
    record.nIndex = std::exchange(m_nFirstFree, nIndex + 1);
    --m_nMade;
}

std::uint32_t views::TreeRecords::HashOf(const IAtom* pAtom)
{
    const std::uint64_t nAddress = reinterpret_cast<UINT_PTR>(pAtom);
    return static_cast<std::uint32_t>(nAddress * 0x9E3779B97F4A7C15u >> 32);
}

std::size_t views::TreeRecords::Locate(IAtom* pAtom) const
{
    const std::uint32_t nHash = HashOf(pAtom);
    std::size_t i = HomeOf(nHash);
    while (m_entries[i].nRecord && (m_entries[i].nHash != nHash || At(m_entries[i].nRecord - 1).pAtom.Get() != pAtom))
        i = Next(i);
    return i;
}

views::TreeRecord* views::TreeRecords::Find(IAtom* pAtom) const
{
    if (m_entries.empty())
        return nullptr;
    const Entry& entry = m_entries[Locate(pAtom)];
    return entry.nRecord ? &At(entry.nRecord - 1) : nullptr;
}

void views::TreeRecords::Map(TreeRecord* pRecord)
{
    IAtom* const pAtom = pRecord->pAtom.Get();
    m_entries[Locate(pAtom)] = {HashOf(pAtom), pRecord->nIndex + 1};
}

// What stands behind the entry, up to the first gap, moves up where its home allows.
void views::TreeRecords::Unmap(const TreeRecord* pRecord)
{
    std::size_t gap = Locate(pRecord->pAtom.Get());
    if (m_entries[gap].nRecord != pRecord->nIndex + 1)
        return;
    for (std::size_t i = Next(gap); m_entries[i].nRecord; i = Next(i)) {
        const std::size_t home = HomeOf(m_entries[i].nHash);
        const bool bStays = gap <= i ? gap < home && home <= i : gap < home || home <= i;
        if (!bStays)
            m_entries[std::exchange(gap, i)] = m_entries[i];
    }
    m_entries[gap] = {};
}

// For one more of those made, at most three quarters full.
void views::TreeRecords::MakeRoom()
{
    if ((m_nMade + 1) * 4 <= m_entries.size() * 3)
        return;
    std::vector<Entry> former(m_entries.size() + m_entries.size() / 2 + 16);
    former.swap(m_entries);
    for (const Entry& entry : former) {
        if (!entry.nRecord)
            continue;
        std::size_t i = HomeOf(entry.nHash);
        while (m_entries[i].nRecord)
            i = Next(i);
        m_entries[i] = entry;
    }
}
