#include "Toolkit/handle/HitTest.h"

#include "Toolkit/handle/WindowGeometry.h"

namespace
{
using toolkit::WindowRecord;

// `at` is relative to the window's own top left corner.
const WindowRecord* FindInside(const WindowRecord& window, CPoint& at)
{
    if (!window.Is(WS_VISIBLE) || !CRect(CPoint(), window.rect.Size()).PtInRect(at))
        return nullptr;
    const CRect client = toolkit::ClientBox(window);
    if (!client.PtInRect(at))
        return &window;
    for (auto it = window.children.rbegin(); it != window.children.rend(); ++it) {
        CPoint inChild = at - client.TopLeft() - (*it)->rect.TopLeft();
        if (const WindowRecord* pFound = FindInside(**it, inChild)) {
            at = inChild;
            return pFound;
        }
    }
    return &window;
}

toolkit::MouseTarget FindIn(const WindowRecord& top, CPoint screen)
{
    CPoint at = screen - top.rect.TopLeft();
    const WindowRecord* pFound = FindInside(top, at);
    return pFound ? toolkit::MouseTarget{pFound->hWnd, toolkit::ClientBox(*pFound).PtInRect(at)}
                  : toolkit::MouseTarget{};
}
} // namespace

toolkit::MouseTarget toolkit::FindMouseTarget(HWND hTop, CPoint screen)
{
    const WindowRecord* pTop = FindRecord(hTop);
    if (pTop && pTop->rect.PtInRect(screen))
        return FindIn(*pTop, screen);
    const auto& tops = TopLevelRecords();
    for (auto it = tops.rbegin(); it != tops.rend(); ++it)
        if (const MouseTarget target = FindIn(**it, screen); target.hWnd)
            return target;
    return {};
}

HWND WindowFromPoint(POINT screen)
{
    return toolkit::FindMouseTarget(nullptr, screen).hWnd;
}
