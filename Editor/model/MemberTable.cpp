#include "Editor/model/MemberTable.h"

#include <algorithm>
#include <numeric>

namespace editor
{
namespace
{

constexpr std::size_t kLongestTail = 64; // of members that came since the last tidying

// How many bytes both begin with, at most `most`.
std::size_t CommonStart(std::string_view a, std::string_view b, std::size_t most)
{
    most = std::min({most, a.size(), b.size()});
    return static_cast<std::size_t>(
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(most), b.begin()).first - a.begin());
}

// The first eight bytes as a number that orders like them; a shorter text comes before its continuations.
std::uint64_t HeadOf(std::string_view text)
{
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    return head;
}

} // namespace

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
    const auto tail = m_entries.begin() + static_cast<std::ptrdiff_t>(m_nSorted);
    auto at = std::lower_bound(m_entries.begin(), tail, name,
                               [this](const Entry& entry, std::string_view n) { return NameOf(entry) < n; });
    const auto isIt = [&](const Entry& entry) { return entry.id != 0 && NameOf(entry) == name; };
    if (at == tail || !isIt(*at))
        at = std::find_if(tail, m_entries.end(), isIt);
    return at != m_entries.end() ? static_cast<UINT>(at - m_entries.begin()) : kNone;
}

bool MemberTable::IsTidy() const
{
    return m_nDropped == 0 && (!m_bSorted || m_entries.size() - m_nSorted <= kLongestTail);
}

void MemberTable::Add(std::string_view name, MemberKind kind)
{
    m_entries.push_back({static_cast<DWORD>(m_names.size()), static_cast<DWORD>(name.size()), 0, kind, nullptr});
    m_names += name;
}

// Names in a folder begin alike, as a rule: the first eight bytes after that, as one number, decide nearly always.
void MemberTable::Sort()
{
    std::size_t nCommon = m_entries.empty() ? 0 : NameOf(0).size();
    for (const Entry& entry : m_entries)
        nCommon = CommonStart(NameOf(0), NameOf(entry), nCommon);
    std::vector<std::pair<std::uint64_t, Entry>> keyed;
    keyed.reserve(m_entries.size());
    for (const Entry& entry : m_entries)
        keyed.emplace_back(HeadOf(NameOf(entry).substr(nCommon)), entry);
    std::sort(keyed.begin(), keyed.end(), [this](const auto& a, const auto& b) {
        return a.first != b.first ? a.first < b.first : NameOf(a.second) < NameOf(b.second);
    });
    std::transform(keyed.begin(), keyed.end(), m_entries.begin(), [](const auto& one) { return one.second; });
    m_nSorted = m_entries.size();
    m_bSorted = true;
}

void MemberTable::Identify(UINT nIndex, DWORD dwID, CMember* pLive)
{
    m_entries[nIndex].id = dwID;
    m_entries[nIndex].pLive = pLive;
    m_idOrder.clear();
}

void MemberTable::NumberTheRest(DWORD& nextId)
{
    for (Entry& entry : m_entries)
        if (entry.id == 0)
            entry.id = nextId++;
    m_entries.shrink_to_fit();
    m_names.shrink_to_fit();
}

UINT MemberTable::Append(std::string_view name, MemberKind kind, DWORD dwID)
{
    Add(name, kind);
    const UINT nIndex = GetCount() - 1;
    m_entries[nIndex].id = dwID;
    if (!m_idOrder.empty())
        m_idOrder.push_back(nIndex);
    return nIndex;
}

void MemberTable::Drop(UINT nIndex)
{
    m_entries[nIndex].id = 0;
    m_entries[nIndex].pLive = nullptr;
    ++m_nDropped;
    m_idOrder.clear();
}

void MemberTable::Tidy()
{
    const auto isDropped = [](const Entry& entry) { return entry.id == 0; };
    const auto byName = [this](const Entry& a, const Entry& b) { return NameOf(a) < NameOf(b); };
    const auto tail = m_entries.begin() + static_cast<std::ptrdiff_t>(m_nSorted);
    m_nSorted -= static_cast<std::size_t>(std::count_if(m_entries.begin(), tail, isDropped));
    std::erase_if(m_entries, isDropped);
    m_nDropped = 0;
    m_idOrder.clear();
    if (!m_bSorted)
        return;
    const auto rest = m_entries.begin() + static_cast<std::ptrdiff_t>(m_nSorted);
    std::sort(rest, m_entries.end(), byName);
    std::inplace_merge(m_entries.begin(), rest, m_entries.end(), byName);
    m_nSorted = m_entries.size();
}

} // namespace editor
