#include "Toolkit/controls/list/RowSet.h"

#include <algorithm>
#include <utility>

namespace toolkit
{

RowSet::Ranges::const_iterator RowSet::FirstEndingAfter(int row) const
{
    auto it = m_ranges.upper_bound(row);
    if (it != m_ranges.begin() && std::prev(it)->second > row)
        --it;
    return it;
}

bool RowSet::Contains(int row) const
{
    const auto it = FirstEndingAfter(row);
    return it != m_ranges.end() && it->first <= row;
}

int RowSet::Next(int after) const
{
    const RowRange range = NextRange(after);
    return range.IsEmpty() ? -1 : range.first;
}

RowRange RowSet::NextRange(int after) const
{
    if (after == kNoEnd)
        return {0, 0};
    const auto it = FirstEndingAfter(after + 1);
    if (it == m_ranges.end())
        return {0, 0};
    return {std::max(it->first, after + 1), it->second};
}

void RowSet::Insert(RowRange range)
{
    if (range.IsEmpty())
        return;
    // Ranges that overlap or touch the new one become part of it, in the first one's node: it needs memory only when it
    // stands alone, and running out of it changes nothing.
    const bool comesLast = m_ranges.empty() || m_ranges.rbegin()->second < range.first; // as a rule
    auto it = comesLast ? m_ranges.end() : FirstEndingAfter(range.first - 1);
    if (it == m_ranges.end() || it->first > range.end) {
        m_ranges.emplace_hint(it, range.first, range.end);
        m_nCount += range.Count();
        return;
    }
    Ranges::node_type node;
    while (it != m_ranges.end() && it->first <= range.end) {
        range.first = std::min(range.first, it->first);
        range.end = std::max(range.end, it->second);
        m_nCount -= it->second - it->first;
        const auto swallowed = it++;
        if (node.empty())
            node = m_ranges.extract(swallowed);
        else
            m_ranges.erase(swallowed);
    }
    node.key() = range.first;
    node.mapped() = range.end;
    m_ranges.insert(it, std::move(node));
    m_nCount += range.Count();
}

void RowSet::Erase(RowRange range)
{
    if (range.IsEmpty())
        return;
    const auto at = FirstEndingAfter(range.first);
    if (at == m_ranges.end() || at->first >= range.end)
        return;

    // What the first range keeps below the hole stays; what the last one keeps above it is put back.
    const int firstKeeps = at->first, lastKeeps = std::prev(m_ranges.lower_bound(range.end))->second;
    const int putBack = std::max(lastKeeps - range.end, 0);
    if (putBack > 0)
        m_ranges.emplace(range.end, lastKeeps);
    auto it = at;
    if (firstKeeps < range.first) {
        m_nCount -= it->second - range.first;
        m_ranges[firstKeeps] = range.first;
        ++it;
    }
    while (it != m_ranges.end() && it->first < range.end) {
        m_nCount -= it->second - it->first;
        it = m_ranges.erase(it);
    }
    m_nCount += putBack;
}

RowSet RowSet::Without(const RowSet& other) const
{
    RowSet rest;
    auto hole = IsEmpty() ? other.m_ranges.end() : other.FirstEndingAfter(m_ranges.begin()->first);
    for (const auto& [first, end] : m_ranges) {
        int from = first;
        for (; hole != other.m_ranges.end() && hole->first < end; ++hole) {
            rest.Insert({from, hole->first});
            from = std::max(from, hole->second);
            if (from >= end)
                break; // it may reach into the next range
        }
        rest.Insert({from, end});
    }
    return rest;
}

RowSet RowSet::Within(const RowSet& other) const
{
    RowSet common;
    for (const auto& [first, end] : other.m_ranges)
        for (RowRange run = NextRange(first - 1); !run.IsEmpty() && run.first < end; run = NextRange(run.end))
            common.Insert({run.first, std::min(run.end, end)});
    return common;
}

} // namespace toolkit
