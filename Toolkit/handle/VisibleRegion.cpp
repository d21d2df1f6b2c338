#include "Toolkit/handle/VisibleRegion.h"

#include "Toolkit/handle/WindowGeometry.h"

#include <algorithm>

namespace
{
using toolkit::Region;
using toolkit::WindowRecord;

void CutSiblingsAbove(const WindowRecord& window, Region& region)
{
    const auto& siblings = window.pParent->children;
    auto it = std::find(siblings.begin(), siblings.end(), &window);
    while (++it != siblings.end())
        if ((*it)->Is(WS_VISIBLE))
            region.Subtract(toolkit::WindowArea(**it));
}

void CutToSurroundings(const WindowRecord& window, Region& region)
{
    const WindowRecord* p = &window;
    for (; p->pParent && !region.IsEmpty(); p = p->pParent) {
        region.Intersect(toolkit::ClientArea(*p->pParent));
        if (p->Is(WS_CLIPSIBLINGS))
            CutSiblingsAbove(*p, region);
    }
    region.Intersect(toolkit::WindowArea(*p));
}

// What is seen of an area of the window, client or whole.
Region VisibleArea(const WindowRecord& window, const CRect& area, toolkit::Children children)
{
    if (!toolkit::IsShown(window))
        return {};
    Region region(area);
    CutToSurroundings(window, region);
    if (children == toolkit::Children::CutOut || window.Is(WS_CLIPCHILDREN))
        for (const WindowRecord* pChild : window.children)
            if (pChild->Is(WS_VISIBLE))
                region.Subtract(toolkit::WindowArea(*pChild));
    return region;
}
} // namespace

toolkit::Region toolkit::VisibleClient(const WindowRecord& window, Children children)
{
    return VisibleArea(window, ClientArea(window), children);
}

toolkit::Region toolkit::VisibleWindow(const WindowRecord& window, Children children)
{
    return VisibleArea(window, WindowArea(window), children);
}

toolkit::Region toolkit::VisibleFrame(const WindowRecord& window)
{
    if (!IsShown(window))
        return {};
    Region region(WindowArea(window));
    region.Subtract(ClientArea(window));
    CutToSurroundings(window, region);
    return region;
}
