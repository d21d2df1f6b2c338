#include "Toolkit/handle/NotedRegion.h"

#include <algorithm>
#include <new>
#include <utility>

bool toolkit::NotedRegion::HasAll(const CRect& all) const
{
    const auto& rects = m_region.Rects();
    return m_bAll || std::any_of(rects.begin(), rects.end(), [&](const CRect& rect) { return (rect & all) == all; });
}

void toolkit::NotedRegion::Add(const CRect& part) noexcept
{
    try {
        if (!m_bAll)
            m_region.Add(part);
    } catch (const std::bad_alloc&) {
        m_bAll = true;
    }
}

void toolkit::NotedRegion::Clear() noexcept
{
    m_region.Clear();
    m_bAll = false;
}

toolkit::Region toolkit::NotedRegion::Take(const CRect& all)
{
    Region taken = m_bAll ? Region(all) : std::exchange(m_region, {});
    Clear();
    return taken;
}

void toolkit::NotedRegion::Move(CPoint by, const CRect& all)
{
    m_region.Offset(by); // all of it stays all of it
    m_region.Intersect(all);
}
