#include "Toolkit/paint/UpdateRegion.h"

#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Queue.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

struct
{
    HWND hWnd = nullptr;
    bool bDrawn = false; // somebody would have drawn on it
} s_locked;

// The window and all its children; it is shown, and `area` is relative to its own top left corner.
void NoteTree(WindowRecord& window, const CRect& area)
{
    const CRect client = toolkit::ClientBox(window);
    const CRect inClient = (area & client) - client.TopLeft();
    if (!((area & client) == area))
        toolkit::InvalidateFrame(window, area);
    toolkit::InvalidateArea(window, inClient, true);
    toolkit::InvalidateChildren(window, inClient);
}
} // namespace

void toolkit::InvalidateChildren(WindowRecord& window, const CRect& area)
{
    for (WindowRecord* pChild : window.children) {
        const CRect common = area & pChild->rect;
        if (pChild->Is(WS_VISIBLE) && !common.IsRectEmpty())
            NoteTree(*pChild, common - pChild->rect.TopLeft());
    }
}

void toolkit::InvalidateArea(WindowRecord& window, const CRect& area, bool bErase)
{
    const CRect part = area & toolkit::ClientRect(window);
    if (part.IsRectEmpty())
        return;
    window.update.Add(part);
    window.bErase |= bErase;
    RequestPaint();
}

void toolkit::InvalidateFrame(WindowRecord& window, const CRect& area)
{
    if (area.IsRectEmpty() || !IsShown(window))
        return;
    window.frameUpdate.Add(area);
    RequestPaint();
}

void toolkit::InvalidateWhole(WindowRecord& window)
{
    if (IsShown(window))
        NoteTree(window, {CPoint(), window.rect.Size()});
}

void toolkit::InvalidateExposed(WindowRecord& parent, const CRect& area)
{
    if (!IsShown(parent))
        return;
    InvalidateArea(parent, area, true);
    InvalidateChildren(parent, area & toolkit::ClientRect(parent));
}

BOOL InvalidateRect(HWND hWnd, const RECT* pRect, BOOL bErase)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    if (toolkit::IsShown(*pWindow))
        toolkit::InvalidateArea(*pWindow, pRect ? CRect(*pRect) : toolkit::ClientRect(*pWindow), bErase != FALSE);
    return TRUE;
}

BOOL GetUpdateRect(HWND hWnd, RECT* pRect)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    const CRect bounds = pWindow ? pWindow->update.Bounds(toolkit::ClientRect(*pWindow)) : CRect();
    if (pRect)
        *pRect = bounds;
    return !bounds.IsRectEmpty();
}

bool toolkit::IsUpdateLocked(const WindowRecord& window)
{
    const WindowRecord* pLocked = s_locked.hWnd ? FindRecord(s_locked.hWnd) : nullptr;
    return pLocked && IsSelfOrChild(*pLocked, &window);
}

void toolkit::NoteDrawnWhileLocked()
{
    s_locked.bDrawn = true;
}

void toolkit::ForgetUpdateLock(HWND hWnd)
{
    if (s_locked.hWnd == hWnd)
        s_locked.hWnd = nullptr;
}

BOOL LockWindowUpdate(HWND hWnd)
{
    if (hWnd) {
        if (s_locked.hWnd || !FindRecord(hWnd))
            return FALSE;
        s_locked.hWnd = hWnd;
        s_locked.bDrawn = false;
        return TRUE;
    }
    WindowRecord* pFormer = FindRecord(std::exchange(s_locked.hWnd, nullptr));
    if (pFormer && s_locked.bDrawn)
        toolkit::InvalidateWhole(*pFormer); // where it was drawn is not known, so all of it
    toolkit::RequestPaint();                // what was held back is due now
    return TRUE;
}
