#include "Views/list/inside/AppendedRows.h"

#include "Toolkit/base/Text.h"
#include "Views/host/inside/ReadName.h"

#include <algorithm>
#include <iterator>

std::optional<std::size_t> views::AppendedRows::HashName(IAtom* pAtom)
{
    CString strName;
    if (!ReadName(pAtom, &IAtom::GetName, strName))
        return std::nullopt;
    std::uint64_t hash = 0xCBF29CE484222325;
    for (std::string_view name(strName.GetString()); !name.empty();) {
        const auto [c, bytes] = toolkit::DecodeUtf8(name);
        hash = (hash ^ toolkit::FoldCase(c)) * 0x100000001B3;
        name.remove_prefix(static_cast<std::size_t>(bytes));
    }
    return static_cast<std::size_t>(hash ^ hash >> 32);
}

void views::AppendedRows::StartAt(int nFirst)
{
    if (nFirst == m_nFirst)
        return;
    m_entries.clear();
    m_nFirst = m_nEnd = nFirst;
}

void views::AppendedRows::Add(const std::vector<ENTRY>& entries, int nEnd)
{
    const auto nFormer = static_cast<std::ptrdiff_t>(m_entries.size());
    m_entries.insert(m_entries.end(), entries.begin(), entries.end());
    std::sort(m_entries.begin() + nFormer, m_entries.end());
    std::inplace_merge(m_entries.begin(), m_entries.begin() + nFormer, m_entries.end());
    m_nEnd = nEnd;
}

std::vector<int> views::AppendedRows::Find(std::size_t hash) const
{
    std::vector<int> rows;
    for (auto p = std::ranges::lower_bound(m_entries, hash, {}, &ENTRY::hash); p != m_entries.end() && p->hash == hash;
         ++p)
        rows.push_back(p->nRow);
    return rows;
}

void views::AppendedRows::Remove(int nRow)
{
    std::erase_if(m_entries, [nRow](const ENTRY& entry) { return entry.nRow == nRow; });
    for (ENTRY& entry : m_entries)
        entry.nRow -= entry.nRow > nRow ? 1 : 0;
    m_nFirst -= m_nFirst > nRow ? 1 : 0;
    m_nEnd -= m_nEnd > nRow ? 1 : 0;
}
