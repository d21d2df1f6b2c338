// The tree control under the mouse. A press shows at once which item it is on; what it does waits for the release,
// since it may become a drag, which leaves the selection alone.
#include "Toolkit/controls/tree/TreeControl.h"

#include <utility>

namespace toolkit
{

LRESULT TreeControl::OnLButtonDown(WPARAM, LPARAM lParam)
{
    Hit hit;
    Labels().StopWaiting();
    if (!EndPress() || !Focus() || !HitTest(CPoint(lParam), hit))
        return 0;
    if (hit.flags & TVHT_ONITEMBUTTON)
        static_cast<void>(Expand(hit.hItem, TVE_TOGGLE, TVC_BYMOUSE));
    else if (BeginPress(hit, CPoint(lParam), false) && m_press)
        m_press->meansLabel = (hit.flags & TVHT_ONITEMLABEL) && Labels().IsMeant(reinterpret_cast<LPARAM>(hit.hItem));
    return 0;
}

LRESULT TreeControl::OnRButtonDown(WPARAM, LPARAM lParam)
{
    Hit hit;
    Labels().StopWaiting();
    if (EndPress() && Focus() && HitTest(CPoint(lParam), hit))
        static_cast<void>(BeginPress(hit, CPoint(lParam), true));
    return 0;
}

LRESULT TreeControl::OnLButtonUp(WPARAM, LPARAM)
{
    if (!m_press || m_press->right)
        return 0;
    const Hit hit = m_press->hit;
    const bool meansLabel = m_press->meansLabel;
    LRESULT taken = 0;
    if (!EndPress() || !TellPlain(NM_CLICK, &taken) || taken != 0 || !(hit.flags & TVHT_ONITEM))
        return 0;
    if ((m_items.Find(hit.hItem) == kNoItem || Select(hit.hItem, TVC_BYMOUSE)) && meansLabel)
        Labels().BeginLater(reinterpret_cast<LPARAM>(hit.hItem));
    return 0;
}

// The selection stays as it is. A click that the owner takes makes no context menu.
LRESULT TreeControl::OnRButtonUp(WPARAM wParam, LPARAM lParam)
{
    LRESULT taken = 0;
    if (m_press && m_press->right && (!EndPress() || !TellPlain(NM_RCLICK, &taken) || taken != 0))
        return 0;
    return ::DefWindowProc(m_hWnd, WM_RBUTTONUP, wParam, lParam); // makes it a WM_CONTEXTMENU
}

// The first click has selected the item.
LRESULT TreeControl::OnLButtonDblClk(WPARAM, LPARAM lParam)
{
    Hit hit;
    Labels().StopWaiting();
    if (!EndPress() || !Focus() || !HitTest(CPoint(lParam), hit))
        return 0;
    LRESULT taken = 0;
    if (!(hit.flags & TVHT_ONITEMBUTTON) && !TellPlain(NM_DBLCLK, &taken))
        return 0;
    if (taken == 0 && (hit.flags & (TVHT_ONITEM | TVHT_ONITEMBUTTON)))
        static_cast<void>(Expand(hit.hItem, TVE_TOGGLE, TVC_BYMOUSE));
    return 0;
}

// A message box on the way, from whoever hears of the focus, may have had the release.
LRESULT TreeControl::OnMouseMove(WPARAM wParam, LPARAM lParam)
{
    if (m_press && !(wParam & (m_press->right ? MK_RBUTTON : MK_LBUTTON)))
        static_cast<void>(EndPress());
    else if (m_press && IsDrag(m_press->at, CPoint(lParam)))
        BeginDrag();
    return 0;
}

// Someone else took the mouse: the press comes to nothing.
LRESULT TreeControl::OnCaptureChanged(WPARAM, LPARAM)
{
    if (const std::optional<Press> press = std::exchange(m_press, std::nullopt)) {
        Redraw(press->hit.hItem);
        Redraw(m_hCaret);
    }
    return 0;
}

bool TreeControl::BeginPress(const Hit& hit, CPoint at, bool right)
{
    const HWND hWnd = m_hWnd;
    m_press = Press{hit, at, right};
    Redraw(hit.hItem);
    Redraw(m_hCaret);
    SetCapture(hWnd);
    return IsWindow(hWnd);
}

bool TreeControl::EndPress()
{
    const HWND hWnd = m_hWnd;
    if (m_press && GetCapture() == hWnd)
        ReleaseCapture(); // tells OnCaptureChanged
    if (!IsWindow(hWnd))
        return false;
    OnCaptureChanged(0, 0); // a derived class may have kept it
    return true;
}

// The owner runs the drag before it answers, so that nothing of the press may be left by then.
void TreeControl::BeginDrag()
{
    const Press press = *m_press;
    if (!(press.hit.flags & TVHT_ONITEM) || Is(TVS_DISABLEDRAGDROP) || !EndPress())
        return;
    if (m_items.Find(press.hit.hItem) == kNoItem)
        return;
    NMTREEVIEW drag{};
    drag.itemNew = Describe(press.hit.hItem);
    drag.ptDrag = press.at;
    static_cast<void>(Tell(press.right ? TVN_BEGINRDRAG : TVN_BEGINDRAG, drag.hdr));
}

} // namespace toolkit
