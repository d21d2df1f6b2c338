#include "Toolkit/handle/WindowGeometry.h"

#include <algorithm>

namespace
{
using toolkit::WindowRecord;

int BorderWidth(const WindowRecord& window)
{
    return window.Is(WS_BORDER) || (window.exStyle & WS_EX_CLIENTEDGE) ? kClientEdge : 0;
}

CRect InsideBorder(const WindowRecord& window)
{
    const int nBorder = BorderWidth(window);
    return {nBorder, nBorder, std::max(nBorder, window.rect.Width() - nBorder),
            std::max(nBorder, window.rect.Height() - nBorder)};
}

int BarExtent(const WindowRecord& window, int nBar)
{
    return window.bars[static_cast<std::size_t>(nBar)].bShown ? toolkit::kScrollBarExtent : 0;
}
} // namespace

CRect toolkit::ClientBox(const WindowRecord& window)
{
    CRect box = InsideBorder(window);
    box.right = std::max(box.left, box.right - BarExtent(window, SB_VERT));
    box.bottom = std::max(box.top, box.bottom - BarExtent(window, SB_HORZ));
    return box;
}

CRect toolkit::ClientRect(const WindowRecord& window)
{
    return {CPoint(), ClientBox(window).Size()};
}

CRect toolkit::ScrollBarBox(const WindowRecord& window, int nBar)
{
    if (BarExtent(window, nBar) == 0)
        return {};
    CRect box = InsideBorder(window);
    const CRect client = ClientBox(window);
    if (nBar == SB_VERT) {
        box.left = client.right;
        box.bottom = client.bottom;
    } else {
        box.top = client.bottom;
        box.right = client.right;
    }
    return box;
}

CRect toolkit::WindowArea(const WindowRecord& window)
{
    if (window.IsTop())
        return {CPoint(), window.rect.Size()};
    return window.rect + ClientArea(*window.pParent).TopLeft();
}

CRect toolkit::ClientArea(const WindowRecord& window)
{
    return ClientBox(window) + WindowArea(window).TopLeft();
}

toolkit::WindowRecord& toolkit::TopOf(const WindowRecord& window)
{
    const WindowRecord* p = &window;
    while (p->pParent)
        p = p->pParent;
    return const_cast<WindowRecord&>(*p);
}

CPoint toolkit::SurfaceToScreen(const WindowRecord& window)
{
    return TopOf(window).rect.TopLeft();
}

CPoint toolkit::ClientToScreenOffset(const WindowRecord& window)
{
    return ClientArea(window).TopLeft() + SurfaceToScreen(window);
}

bool toolkit::IsShown(const WindowRecord& window)
{
    for (const WindowRecord* p = &window; p; p = p->pParent)
        if (!p->Is(WS_VISIBLE))
            return false;
    return true;
}

bool toolkit::IsSelfOrChild(const WindowRecord& ancestor, const WindowRecord* pWindow)
{
    while (pWindow && pWindow != &ancestor)
        pWindow = pWindow->pParent;
    return pWindow != nullptr;
}

bool toolkit::IsAlive(const WindowRecord& window)
{
    for (const WindowRecord* p = &window; p; p = p->pParent)
        if (p->bDestroying)
            return false;
    return true;
}
