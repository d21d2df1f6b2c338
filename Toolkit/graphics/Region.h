// A set of pixels as rectangles that do not overlap: what is to be painted, where drawing may go.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <vector>

namespace toolkit
{

class TOOLKIT_API Region
{
public:
    Region() = default;
    explicit Region(const CRect& rect);

    bool IsEmpty() const { return m_rects.empty(); }
    const std::vector<CRect>& Rects() const { return m_rects; }
    CRect Bounds() const;

    void Add(const CRect& rect); // past 16 rectangles the region becomes its bounds: more is painted, never less
    void Subtract(const CRect& rect);
    void Intersect(const CRect& rect);
    void Offset(CPoint by);
    void Clear() { m_rects.clear(); }

private:
    std::vector<CRect> m_rects;
};

// The common part, exact: regions of any number of rectangles.
Region Intersection(const Region& a, const Region& b);

} // namespace toolkit
