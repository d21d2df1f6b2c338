// What of a window is noted to be painted.
#pragma once

#include "Toolkit/graphics/Region.h"

namespace toolkit
{

// Noting never fails: without memory for a part, all of the window is noted. What "all" is, the caller knows.
class NotedRegion
{
public:
    bool IsEmpty() const { return !m_bAll && m_region.IsEmpty(); }
    bool HasAll(const CRect& all) const;
    CRect Bounds(const CRect& all) const { return m_bAll ? all : m_region.Bounds(); }

    void Add(const CRect& part) noexcept;
    void Clear() noexcept;
    Region Take(const CRect& all);          // and notes it no longer
    void Move(CPoint by, const CRect& all); // what leaves all of it is noted no longer

private:
    Region m_region;
    bool m_bAll = false;
};

} // namespace toolkit
