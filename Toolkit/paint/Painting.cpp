#include "Toolkit/paint/Painting.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/handle/VisibleRegion.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/paint/WindowDC.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::Region;
using toolkit::WindowRecord;

bool NeedsPaint(const WindowRecord& window)
{
    return !window.frameUpdate.IsEmpty() || !window.update.IsEmpty();
}

// The first shown window that is wanted, parents before their children, lower siblings first: what is not clipped
// away is painted over in the right order.
template <class Wanted>
WindowRecord* FindShown(WindowRecord& window, Wanted wanted)
{
    if (!window.Is(WS_VISIBLE) || IsUpdateLocked(window))
        return nullptr;
    if (wanted(window))
        return &window;
    for (WindowRecord* pChild : window.children)
        if (WindowRecord* pFound = FindShown(*pChild, wanted))
            return pFound;
    return nullptr;
}

WindowRecord* FindNoted()
{
    for (WindowRecord* pTop : toolkit::TopLevelRecords())
        if (WindowRecord* pFound = FindShown(*pTop, NeedsPaint))
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

// A frame that finds no memory is left as it is, as a client area is.
void TryToPaintFrame(WindowRecord& window)
{
    try {
        PaintFrameOf(window);
    } catch (const CException&) {
    }
}

// Paints what is noted of the window itself, frame and client area.
void PaintWindow(HWND hWnd)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (pWindow && !pWindow->frameUpdate.IsEmpty())
        TryToPaintFrame(*pWindow);
    pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->update.IsEmpty())
        return;
    pWindow->bPaintBegun = false;
    SendMessage(hWnd, WM_PAINT, 0, 0);
    // A handler that does not paint is not asked again and again.
    pWindow = FindRecord(hWnd);
    if (pWindow && !pWindow->bPaintBegun)
        pWindow->ValidateAll();
}

// Paints the window and its children. Handlers may destroy any of them, and note more: once is enough.
void PaintTreeOnce(HWND hWnd)
{
    static unsigned s_nPass = 0;
    const unsigned nPass = ++s_nPass;
    const auto wanted = [nPass](const WindowRecord& window) {
        return window.nPaintPass != nPass && NeedsPaint(window);
    };
    while (WindowRecord* pWindow = FindRecord(hWnd)) {
        WindowRecord* pNoted = FindShown(*pWindow, wanted);
        if (!pNoted)
            return;
        pNoted->nPaintPass = nPass;
        PaintWindow(pNoted->hWnd);
    }
}

// A parent that does not cut its children out draws over them: they draw again.
void NoteChildrenUnder(WindowRecord& window, const Region& clip, CPoint clientOrigin)
{
    if (!window.Is(WS_CLIPCHILDREN))
        for (const CRect& rect : clip.Rects())
            toolkit::InvalidateChildren(window, rect - clientOrigin);
}
} // namespace

bool toolkit::RunOnePaint()
{
    if (!IsPaintRequested())
        return false;
    if (WindowRecord* pWindow = FindNoted()) {
        PaintWindow(pWindow->hWnd);
        return true;
    }
    EndPaintRequest();
    PresentPainted();
    return false;
}

void toolkit::ForgetPainting(WindowRecord& window)
{
    ForgetUpdateLock(window.hWnd);
    CloseWindowDCs(window.hWnd);
    if (window.IsTop())
        CloseSurfaceDCs(window.hWnd);
}

BOOL UpdateWindow(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    if (toolkit::IsShown(*pWindow)) {
        PaintTreeOnce(hWnd);
        toolkit::PresentPainted();
    }
    return TRUE;
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
