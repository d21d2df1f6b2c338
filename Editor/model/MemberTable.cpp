#include "Editor/model/MemberTable.h"

#include <algorithm>
#include <numeric>

namespace editor
{

UINT MemberTable::FindID(DWORD dwID) const
{
    const auto byId = [this](UINT a, UINT b) { return m_entries[a].id < m_entries[b].id; };
    if (m_idOrder.empty()) {
        m_idOrder.resize(m_entries.size());
        std::iota(m_idOrder.begin(), m_idOrder.end(), 0u);
        if (!std::is_sorted(m_idOrder.begin(), m_idOrder.end(), byId))
            std::sort(m_idOrder.begin(), m_idOrder.end(), byId);
    }
    const auto at = std::lower_bound(m_idOrder.begin(), m_idOrder.end(), dwID,
                                     [this](UINT nIndex, DWORD id) { return m_entries[nIndex].id < id; });
    return at != m_idOrder.end() && m_entries[*at].id == dwID ? *at : kNone;
}

UINT MemberTable::FindSorted(std::string_view name) const
{
    const auto at = std::lower_bound(m_entries.begin(), m_entries.end(), name,
                                     [this](const Entry& entry, std::string_view n) { return NameOf(entry) < n; });
    return at != m_entries.end() && NameOf(*at) == name ? static_cast<UINT>(at - m_entries.begin()) : kNone;
}

void MemberTable::Add(std::string_view name, MemberKind kind)
{
    m_entries.push_back({static_cast<DWORD>(m_names.size()), static_cast<DWORD>(name.size()), 0, kind, nullptr});
    m_names += name;
}

void MemberTable::Sort()
{
    std::sort(m_entries.begin(), m_entries.end(),
              [this](const Entry& a, const Entry& b) { return NameOf(a) < NameOf(b); });
}

void MemberTable::Identify(UINT nIndex, DWORD dwID, CMember* pLive)
{
    m_entries[nIndex].id = dwID;
    m_entries[nIndex].pLive = pLive;
}

void MemberTable::NumberTheRest(DWORD& nextId)
{
    for (Entry& entry : m_entries)
        if (entry.id == 0)
            entry.id = nextId++;
    m_entries.shrink_to_fit();
    m_names.shrink_to_fit();
}

} // namespace editor
