#include "Toolkit/paint/WindowDC.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/handle/VisibleRegion.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/paint/UpdateRegion.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

struct OpenDC
{
    HDC hdc;
    HWND hWnd, hTop;
    CRect bounds;
};
std::vector<OpenDC> s_open; // a few at most

template <class Condition>
void CloseIf(Condition condition)
{
    std::erase_if(s_open, [&](const OpenDC& open) { return condition(open) && DeleteDC(open.hdc); });
}
// `visible` and `area` are of the part that is drawn on. What is drawn on a locked window is not seen, but noted.
template <class Visible, class Area>
HDC OpenUnlessLocked(HWND hWnd, Visible visible, Area area)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return nullptr;
    const bool bLocked = toolkit::IsUpdateLocked(*pWindow);
    if (bLocked)
        toolkit::NoteDrawnWhileLocked();
    const toolkit::Region clip = bLocked ? toolkit::Region() : visible(*pWindow, toolkit::Children::AsTheStyleSays);
    return toolkit::OpenWindowDC(*pWindow, area(*pWindow).TopLeft(), clip);
}

} // namespace

HDC toolkit::OpenWindowDC(const WindowRecord& window, CPoint origin, const Region& clip)
{
    WindowRecord& top = TopOf(window);
    s_open.reserve(s_open.size() + 1);
    const HDC hdc = CreateSurfaceDC(SurfaceOf(top), origin, clip);
    if (hdc)
        s_open.push_back({hdc, window.hWnd, top.hWnd, clip.Bounds()});
    return hdc;
}

bool toolkit::CloseWindowDC(HWND hWnd, HDC hdc)
{
    const auto it = std::find_if(s_open.begin(), s_open.end(),
                                 [&](const OpenDC& open) { return open.hdc == hdc && open.hWnd == hWnd; });
    if (it == s_open.end())
        return false;
    const OpenDC open = *it;
    const bool bDrawnOn = IsDrawnOn(hdc);
    s_open.erase(it);
    DeleteDC(hdc);
    WindowRecord* pTop = FindRecord(open.hTop);
    if (pTop && bDrawnOn)
        NotePainted(*pTop, open.bounds);
    return true;
}

void toolkit::CloseWindowDCs(HWND hWnd)
{
    CloseIf([hWnd](const OpenDC& open) { return open.hWnd == hWnd; });
}

void toolkit::CloseSurfaceDCs(HWND hTop)
{
    CloseIf([hTop](const OpenDC& open) { return open.hTop == hTop; });
}

HDC GetDC(HWND hWnd)
{
    return OpenUnlessLocked(hWnd, &toolkit::VisibleClient, &toolkit::ClientArea);
}

HDC GetWindowDC(HWND hWnd)
{
    return OpenUnlessLocked(hWnd, &toolkit::VisibleWindow, &toolkit::WindowArea);
}

int ReleaseDC(HWND hWnd, HDC hdc)
{
    return toolkit::CloseWindowDC(hWnd, hdc);
}

toolkit::Surface& toolkit::SurfaceOf(WindowRecord& top)
{
    const CSize size = top.rect.Size();
    if (top.surface.Size() != size || top.surface.Scale() != ScreenScale()) {
        CloseSurfaceDCs(top.hWnd);
        top.surface = Surface(size, ScreenScale(), ToPixel(GetSysColor(COLOR_BTNFACE)));
    }
    return top.surface;
}

void toolkit::NotePainted(WindowRecord& top, const CRect& area)
{
    if (area.IsRectEmpty())
        return;
    top.dirty = top.dirty | area;
    RequestPaint();
}

void toolkit::PresentPainted()
{
    for (WindowRecord* pTop : TopLevelRecords()) {
        const CRect dirty = std::exchange(pTop->dirty, CRect()) & CRect({}, pTop->surface.Size());
        if (!dirty.IsRectEmpty() && pTop->bKnownToDesktop)
            CurrentDesktop().Present(pTop->hWnd, pTop->surface, dirty);
    }
}

const toolkit::Surface* toolkit::WindowSurface(HWND hTop)
{
    const WindowRecord* pTop = FindRecord(hTop);
    return pTop && pTop->IsTop() ? &pTop->surface : nullptr;
}
