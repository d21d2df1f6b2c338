#include "Toolkit/graphics/Region.h"

namespace
{

constexpr std::size_t kMostAdded = 16;

// Calls back with the up to four parts of `rect` that `hole` leaves: above, below, left and right of it.
template <class Visit>
void VisitRest(const CRect& rect, const CRect& hole, Visit visit)
{
    const CRect common = rect & hole;
    if (common.IsRectEmpty())
        return visit(rect);
    for (const CRect& part :
         {CRect(rect.left, rect.top, rect.right, common.top), CRect(rect.left, common.top, common.left, common.bottom),
          CRect(common.right, common.top, rect.right, common.bottom),
          CRect(rect.left, common.bottom, rect.right, rect.bottom)})
        if (!part.IsRectEmpty())
            visit(part);
}

} // namespace

toolkit::Region::Region(const CRect& rect)
{
    if (!rect.IsRectEmpty())
        m_rects.push_back(rect);
}

CRect toolkit::Region::Bounds() const
{
    CRect bounds;
    for (const CRect& rect : m_rects)
        bounds = bounds | rect;
    return bounds;
}

// The new rectangle stays whole and the old ones give way: what is added last is often the largest.
void toolkit::Region::Add(const CRect& rect)
{
    if (rect.IsRectEmpty())
        return;
    for (const CRect& old : m_rects)
        if ((old & rect) == rect)
            return;
    Subtract(rect);
    m_rects.push_back(rect);
    if (m_rects.size() > kMostAdded)
        m_rects = {Bounds()};
}

void toolkit::Region::Subtract(const CRect& rect)
{
    std::vector<CRect> rest;
    rest.reserve(m_rects.size() + 3);
    for (const CRect& old : m_rects)
        VisitRest(old, rect, [&rest](const CRect& part) { rest.push_back(part); });
    m_rects = std::move(rest);
}

void toolkit::Region::Intersect(const CRect& rect)
{
    for (CRect& part : m_rects)
        part = part & rect;
    std::erase_if(m_rects, [](const CRect& part) { return part.IsRectEmpty(); });
}

void toolkit::Region::Offset(CPoint by)
{
    for (CRect& rect : m_rects)
        rect.OffsetRect(by.x, by.y);
}

toolkit::Region toolkit::Intersection(const Region& a, const Region& b)
{
    Region onlyInA(a);
    for (const CRect& rect : b.Rects())
        onlyInA.Subtract(rect);
    Region common(a);
    for (const CRect& rect : onlyInA.Rects())
        common.Subtract(rect);
    return common;
}
