#include "Toolkit/controls/tree/TreeMouse.h"

#include <utility>

namespace toolkit
{

TreeViewport::Hit TreeMouse::TakeHit(CPoint at)
{
    m_control.Labels().StopWaiting();
    Cancel();
    m_control.TakeFocus();
    return m_viewport.HitTest(at);
}

void TreeMouse::OnLButtonDown(WPARAM, CPoint at)
{
    const TreeViewport::Hit hit = TakeHit(at);
    const bool meansLabel =
        (hit.flags & TVHT_ONITEMLABEL) && m_control.Labels().IsMeant(reinterpret_cast<LPARAM>(hit.hItem));
    if (hit.flags & TVHT_ONITEMBUTTON)
        m_selection.Expand(hit.hItem, TVE_TOGGLE, TVC_BYMOUSE);
    else
        BeginPress({hit, at, false, meansLabel});
}

void TreeMouse::OnLButtonUp()
{
    if (!m_press || m_press->right)
        return;
    const Press press = *m_press;
    Cancel();
    if (m_control.Notify(NM_CLICK) != 0 || !(press.hit.flags & TVHT_ONITEM))
        return;
    if (m_items.Find(press.hit.hItem) != kNoItem)
        m_selection.Select(press.hit.hItem, TVC_BYMOUSE);
    if (press.meansLabel)
        m_control.Labels().BeginLater(reinterpret_cast<LPARAM>(press.hit.hItem));
}

// The selection stays as it is. A click that the owner takes makes no context menu.
LRESULT TreeMouse::OnRButtonUp(WPARAM wParam, LPARAM lParam)
{
    if (m_press && m_press->right) {
        Cancel();
        if (m_control.Notify(NM_RCLICK) != 0)
            return 0;
    }
    return ::DefWindowProc(m_control.m_hWnd, WM_RBUTTONUP, wParam, lParam); // makes it a WM_CONTEXTMENU
}

// The first click has selected the item.
void TreeMouse::OnLButtonDblClk(WPARAM, CPoint at)
{
    const TreeViewport::Hit hit = TakeHit(at);
    const bool onButton = (hit.flags & TVHT_ONITEMBUTTON) != 0;
    if (onButton || (m_control.Notify(NM_DBLCLK) == 0 && (hit.flags & TVHT_ONITEM)))
        m_selection.Expand(hit.hItem, TVE_TOGGLE, TVC_BYMOUSE);
}

// A message box on the way, from whoever hears of the focus, may have had the release.
void TreeMouse::OnMouseMove(WPARAM keys, CPoint at)
{
    if (m_press && !(keys & (m_press->right ? MK_RBUTTON : MK_LBUTTON)))
        Cancel();
    else if (m_press && ItemControl::IsDrag(m_press->at, at))
        BeginDrag();
}

// Someone else took the mouse: the press comes to nothing.
void TreeMouse::OnCaptureChanged()
{
    if (const std::optional<Press> press = std::exchange(m_press, std::nullopt)) {
        m_viewport.Redraw(press->hit.hItem);
        m_viewport.Redraw(m_selection.Caret());
    }
}

HTREEITEM TreeMouse::Pressed() const
{
    return m_press && (m_press->hit.flags & TVHT_ONITEM) ? m_press->hit.hItem : nullptr;
}

void TreeMouse::BeginPress(const Press& press)
{
    m_press = press;
    m_viewport.Redraw(press.hit.hItem);
    m_viewport.Redraw(m_selection.Caret());
    SetCapture(m_control.m_hWnd);
}

void TreeMouse::Cancel()
{
    if (m_press && GetCapture() == m_control.m_hWnd)
        ReleaseCapture(); // tells OnCaptureChanged
    OnCaptureChanged();   // a derived class may have kept it
}

// The owner runs the drag before it answers, so that nothing of the press may be left by then.
void TreeMouse::BeginDrag()
{
    const Press press = *m_press;
    if (!(press.hit.flags & TVHT_ONITEM))
        return;
    Cancel();
    if (m_items.Find(press.hit.hItem) != kNoItem)
        m_owner.TellDrag(press.right ? TVN_BEGINRDRAG : TVN_BEGINDRAG, press.hit.hItem, press.at);
}

} // namespace toolkit
