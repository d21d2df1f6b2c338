#include "Toolkit/paint/ScrollWindow.h"

#include "Toolkit/handle/VisibleRegion.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/paint/WindowDC.h"

#include <algorithm>
#include <cstring>

namespace
{
using toolkit::Region;
using toolkit::Surface;
using toolkit::WindowRecord;

// Fills the rectangles from dx, dy away, all in pixels. They do not overlap, but where one comes from another may lie:
// so row by row, against the movement, and within a row likewise.
void MovePixels(Surface& surface, std::vector<CRect> rects, int dx, int dy)
{
    std::sort(rects.begin(), rects.end(),
              [dx](const CRect& a, const CRect& b) { return dx > 0 ? a.left > b.left : a.left < b.left; });
    const CRect bounds = [&] {
        CRect all;
        for (const CRect& rect : rects)
            all = all | rect;
        return all;
    }();
    for (int i = 0; i < bounds.Height(); ++i) {
        const int y = dy > 0 ? bounds.bottom - 1 - i : bounds.top + i;
        for (const CRect& rect : rects)
            if (y >= rect.top && y < rect.bottom)
                std::memmove(surface.Row(y) + rect.left, surface.Row(y - dy) + rect.left - dx,
                             static_cast<std::size_t>(rect.Width()) * sizeof(toolkit::Pixel));
    }
}

std::vector<CRect> ToPixels(std::vector<CRect> rects, toolkit::PixelScale scale)
{
    for (CRect& rect : rects)
        rect = scale.ToPixels(rect);
    return rects;
}

// What was noted moves along, and what came into sight joins it; both in client coordinates.
void NoteScrolled(WindowRecord& window, const Region& exposed, CPoint by)
{
    window.update.Move(by, toolkit::ClientRect(window));
    for (const CRect& rect : exposed.Rects())
        toolkit::InvalidateArea(window, rect, true);
}
} // namespace

BOOL ScrollWindow(HWND hWnd, int dx, int dy)
{
    WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    const toolkit::PixelScale scale = toolkit::ScreenScale();
    if (toolkit::IsUpdateLocked(*pWindow) || !scale.IsWhole(dx) || !scale.IsWhole(dy))
        return InvalidateRect(hWnd, nullptr);
    if (pWindow->update.HasAll(toolkit::ClientRect(*pWindow)))
        return TRUE; // nothing there is worth moving
    const Region visible = VisibleClient(*pWindow, toolkit::Children::CutOut);
    if (visible.IsEmpty() || (dx == 0 && dy == 0))
        return TRUE;

    Region moved(visible);
    moved.Offset({dx, dy});
    moved = Intersection(visible, moved);
    Region exposed(visible);
    for (const CRect& rect : moved.Rects())
        exposed.Subtract(rect);
    exposed.Offset(CPoint() - toolkit::ClientArea(*pWindow).TopLeft());

    WindowRecord& top = toolkit::TopOf(*pWindow);
    MovePixels(toolkit::SurfaceOf(top), ToPixels(moved.Rects(), scale), scale.ToPixels(dx), scale.ToPixels(dy));
    toolkit::NotePainted(top, moved.Bounds());
    NoteScrolled(*pWindow, exposed, {dx, dy});
    return TRUE;
}
