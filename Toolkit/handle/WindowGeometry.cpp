#include "Toolkit/handle/WindowGeometry.h"

#include "Toolkit/paint/Painting.h"
#include "Toolkit/window/DesktopNews.h"
#include "Toolkit/window/WindowApi.h"

#include <algorithm>
#include <utility>

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

void toolkit::SendSize(HWND hWnd)
{
    if (const WindowRecord* pWindow = FindRecord(hWnd)) {
        const CSize size = ClientBox(*pWindow).Size();
        SendMessage(hWnd, WM_SIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
}

void toolkit::PlaceWindow(HWND hWnd, const CRect& rect)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->rect == rect)
        return;
    const CRect former = std::exchange(pWindow->rect, rect);
    const bool bSized = !(former.Size() == rect.Size());
    if (pWindow->pParent && IsShown(*pWindow))
        InvalidateExposed(*pWindow->pParent, former);
    if (bSized || pWindow->pParent)
        InvalidateWhole(*pWindow);

    if (!(former.TopLeft() == rect.TopLeft()))
        SendMessage(hWnd, WM_MOVE, 0, MAKELPARAM(rect.left, rect.top));
    if (bSized)
        SendSize(hWnd);
}

BOOL MoveWindow(HWND hWnd, int x, int y, int cx, int cy)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    const CRect rect({x, y}, {std::max(cx, 0), std::max(cy, 0)});
    if (pWindow->rect == rect)
        return TRUE;
    toolkit::PlaceWindow(hWnd, rect);
    toolkit::TellDesktopOfPlace(hWnd);
    return TRUE;
}

BOOL GetWindowRect(HWND hWnd, RECT* pRect)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pRect = toolkit::WindowArea(*pWindow) + toolkit::SurfaceToScreen(*pWindow);
    return TRUE;
}

BOOL GetClientRect(HWND hWnd, RECT* pRect)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pRect = toolkit::ClientRect(*pWindow);
    return TRUE;
}

BOOL ClientToScreen(HWND hWnd, POINT* pPoint)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pPoint = CPoint(*pPoint) + toolkit::ClientToScreenOffset(*pWindow);
    return TRUE;
}

BOOL ScreenToClient(HWND hWnd, POINT* pPoint)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return FALSE;
    *pPoint = CPoint(*pPoint) - toolkit::ClientToScreenOffset(*pWindow);
    return TRUE;
}
