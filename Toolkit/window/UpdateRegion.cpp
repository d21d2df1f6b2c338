// Noting what is to be painted.
#include "Toolkit/window/Painting.h"
#include "Toolkit/window/Queue.h"
#include "Toolkit/window/WindowApi.h"
#include "Toolkit/window/WindowGeometry.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

CRect ClientRect(const WindowRecord& window)
{
    return {CPoint(), toolkit::ClientBox(window).Size()};
}

// The window itself is shown; `area` is relative to its own top left corner.
void NoteTree(WindowRecord& window, const CRect& area);

void NoteClientTree(WindowRecord& window, const CRect& area)
{
    toolkit::NoteArea(window, area, true);
    for (WindowRecord* pChild : window.children) {
        const CRect common = area & pChild->rect;
        if (pChild->Is(WS_VISIBLE) && !common.IsRectEmpty())
            NoteTree(*pChild, common - pChild->rect.TopLeft());
    }
}

void NoteTree(WindowRecord& window, const CRect& area)
{
    const CRect client = toolkit::ClientBox(window);
    if (!((area & client) == area))
        toolkit::NoteFrame(window);
    NoteClientTree(window, (area & client) - client.TopLeft());
}
} // namespace

void toolkit::NoteArea(WindowRecord& window, const CRect& area, bool bErase)
{
    const CRect part = area & ClientRect(window);
    if (part.IsRectEmpty())
        return;
    window.update.Add(part);
    window.bErase |= bErase;
    NoteSomething();
}

void toolkit::NoteFrame(WindowRecord& window)
{
    const bool bHasFrame = !(ClientBox(window) == CRect(CPoint(), window.rect.Size()));
    if (!bHasFrame || window.bFrameNoted || !IsShown(window))
        return;
    window.bFrameNoted = true;
    NoteSomething();
}

void toolkit::NoteWindow(WindowRecord& window)
{
    if (IsShown(window))
        NoteTree(window, {CPoint(), window.rect.Size()});
}

void toolkit::NoteExposed(WindowRecord& parent, const CRect& area)
{
    if (IsShown(parent))
        NoteClientTree(parent, area & ClientRect(parent));
}

BOOL InvalidateRect(HWND hWnd, const RECT* pRect, BOOL bErase)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    if (toolkit::IsShown(*pWindow))
        toolkit::NoteArea(*pWindow, pRect ? CRect(*pRect) : ClientRect(*pWindow), bErase != FALSE);
    return TRUE;
}

BOOL ValidateRect(HWND hWnd, const RECT* pRect)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    if (pRect)
        pWindow->update.Subtract(*pRect);
    else
        pWindow->update.Clear();
    if (pWindow->update.IsEmpty())
        pWindow->bErase = false;
    return TRUE;
}

BOOL GetUpdateRect(HWND hWnd, RECT* pRect)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    const CRect bounds = pWindow ? pWindow->update.Bounds() : CRect();
    if (pRect)
        *pRect = bounds;
    return !bounds.IsRectEmpty();
}
