// Where the parts of a path stand in the path bar.
#pragma once

#include "Toolkit/base/Geometry.h"

#include <vector>

namespace editor
{

// The last part is always shown, cut when it must be; the first one too, while there is room; parts in between make
// way first, those nearest to the top before others, and dots stand for them.
class CrumbLayout
{
public:
    struct Crumb
    {
        int nPart; // kDots: for the parts that are left out
        CRect rect;
    };
    static constexpr int kDots = -1;

    // Widths in pixels: of each part, of what stands between two, and of the dots.
    CrumbLayout(const std::vector<int>& parts, int gap, int dots, const CRect& room);

    const std::vector<Crumb>& Crumbs() const { return m_crumbs; }
    int PartAt(CPoint point) const; // kDots where there is none

private:
    std::vector<Crumb> m_crumbs;
};

} // namespace editor
