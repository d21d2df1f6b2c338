#include "Toolkit/window/Painting.h"

#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Desktop.h"
#include "Toolkit/window/Queue.h"
#include "Toolkit/window/VisibleRegion.h"
#include "Toolkit/window/WindowApi.h"
#include "Toolkit/window/WindowDC.h"
#include "Toolkit/window/WindowGeometry.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::Region;
using toolkit::WindowRecord;

// Something may be noted or painted and not yet presented: the queue has to look.
bool s_bNoted = false;

bool NeedsPaint(const WindowRecord& window)
{
    return !window.frameUpdate.IsEmpty() || !window.update.IsEmpty();
}

// The first shown window with something noted, parents before their children, lower siblings first: what is not
// clipped away is painted over in the right order.
WindowRecord* FindNoted(WindowRecord& window)
{
    if (!window.Is(WS_VISIBLE) || IsUpdateLocked(window))
        return nullptr;
    if (NeedsPaint(window))
        return &window;
    for (WindowRecord* pChild : window.children)
        if (WindowRecord* pFound = FindNoted(*pChild))
            return pFound;
    return nullptr;
}

WindowRecord* FindNoted()
{
    for (WindowRecord* pTop : toolkit::TopLevelRecords())
        if (WindowRecord* pFound = FindNoted(*pTop))
            return pFound;
    return nullptr;
}

void PaintFrameOf(WindowRecord& window)
{
    const HWND hWnd = window.hWnd;
    const CPoint origin = toolkit::WindowArea(window).TopLeft();
    Region clip = window.frameUpdate.Take({CPoint(), window.rect.Size()});
    clip.Offset(origin);
    clip = Intersection(clip, VisibleFrame(window));
    if (clip.IsEmpty())
        return;
    const HDC hdc = toolkit::OpenWindowDC(window, origin, clip);
    SendMessage(hWnd, WM_NCPAINT, reinterpret_cast<WPARAM>(hdc), 0);
    toolkit::CloseWindowDC(hWnd, hdc);
}

// A parent that does not cut its children out draws over them: they draw again.
void NoteChildrenUnder(WindowRecord& window, const Region& clip, CPoint clientOrigin)
{
    if (!window.Is(WS_CLIPCHILDREN))
        for (const CRect& rect : clip.Rects())
            toolkit::NoteChildren(window, rect - clientOrigin);
}
} // namespace

void toolkit::NoteSomething()
{
    s_bNoted = true;
    RequestRun();
}

bool toolkit::HasPaint()
{
    return s_bNoted;
}

bool toolkit::RunOnePaint()
{
    if (!s_bNoted)
        return false;
    if (WindowRecord* pWindow = FindNoted()) {
        PaintWindow(pWindow->hWnd);
        return true;
    }
    s_bNoted = false;
    PresentPainted();
    return false;
}

void toolkit::PaintWindow(HWND hWnd)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (pWindow && !pWindow->frameUpdate.IsEmpty())
        PaintFrameOf(*pWindow);
    pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->update.IsEmpty())
        return;
    pWindow->bPaintBegun = false;
    SendMessage(hWnd, WM_PAINT, 0, 0);
    // A handler that does not paint is not asked again and again.
    pWindow = FindRecord(hWnd);
    if (pWindow && !pWindow->bPaintBegun)
        ValidateRect(hWnd, nullptr);
}

toolkit::Surface& toolkit::SurfaceOf(WindowRecord& top)
{
    const CSize size = top.rect.Size();
    if (!(top.surface.Bounds().Size() == size)) {
        CloseSurfaceDCs(top.hWnd);
        top.surface = Surface(size, ToPixel(GetSysColor(COLOR_BTNFACE)));
    }
    return top.surface;
}

void toolkit::NotePainted(WindowRecord& top, const CRect& area)
{
    if (area.IsRectEmpty())
        return;
    top.dirty = top.dirty | area;
    NoteSomething();
}

void toolkit::PresentPainted()
{
    for (WindowRecord* pTop : TopLevelRecords()) {
        const CRect dirty = std::exchange(pTop->dirty, CRect()) & pTop->surface.Bounds();
        if (!dirty.IsRectEmpty() && pTop->bKnownToDesktop)
            CurrentDesktop().Present(pTop->hWnd, pTop->surface, dirty);
    }
}

const toolkit::Surface* toolkit::WindowSurface(HWND hTop)
{
    const WindowRecord* pTop = FindRecord(hTop);
    return pTop && pTop->IsTop() ? &pTop->surface : nullptr;
}

void toolkit::ForgetPainting(WindowRecord& window)
{
    ForgetUpdateLock(window.hWnd);
    CloseWindowDCs(window.hWnd);
    if (window.IsTop())
        CloseSurfaceDCs(window.hWnd);
}

toolkit::PaintTarget toolkit::BeginPaint(HWND hWnd)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return {nullptr, {}};
    const CPoint origin = ClientArea(*pWindow).TopLeft();
    pWindow->bPaintBegun = true;
    if (IsUpdateLocked(*pWindow)) // what is noted stays noted
        return {OpenWindowDC(*pWindow, origin, {}), {}};

    Region clip = pWindow->update.Take(ClientRect(*pWindow));
    clip.Offset(origin);
    clip = Intersection(clip, VisibleClient(*pWindow, Children::AsTheStyleSays));
    NoteChildrenUnder(*pWindow, clip, origin);
    const PaintTarget target{OpenWindowDC(*pWindow, origin, clip), clip.Bounds() - origin};
    if (std::exchange(pWindow->bErase, false) && !clip.IsEmpty())
        SendMessage(hWnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(target.hdc), 0);
    return target;
}

void toolkit::EndPaint(HWND hWnd, HDC hdc)
{
    CloseWindowDC(hWnd, hdc);
}

namespace
{
// Paints the window and its children, lower siblings first. Handlers may destroy any of them.
void PaintTree(HWND hWnd)
{
    while (WindowRecord* pWindow = FindRecord(hWnd)) {
        WindowRecord* pNoted = FindNoted(*pWindow);
        if (!pNoted)
            return;
        toolkit::PaintWindow(pNoted->hWnd);
    }
}
} // namespace

BOOL UpdateWindow(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    if (toolkit::IsShown(*pWindow)) {
        PaintTree(hWnd);
        toolkit::PresentPainted();
    }
    return TRUE;
}
