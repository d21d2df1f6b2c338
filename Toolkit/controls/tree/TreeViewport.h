// The tree control's view on its rows: client area, scroll bars, wheel, where each item's parts lie, and what is drawn
// anew.
//
// How wide the content is would take every label to know. So the bar below knows the rows that were painted, and
// learns as others come into sight.
#pragma once

#include "Toolkit/access/WinEvents.h"
#include "Toolkit/controls/tree/TreeLayout.h"
#include "Toolkit/controls/tree/TreeOwner.h"
#include "Toolkit/graphics/TextEngine.h"

namespace toolkit
{

class TreeViewport
{
public:
    struct Hit
    {
        HTREEITEM hItem = nullptr;
        UINT flags = TVHT_NOWHERE;
    };

    TreeViewport(ItemControl& control, TreeItems& items, TreeLayout& layout, const TreeOwner& owner)
        : m_control(control), m_items(items), m_layout(layout), m_owner(owner)
    {}

    Hit HitTest(CPoint client) const;
    FontStyle FontOf(ItemIndex item) const;
    int TextWidth(ItemIndex item, const std::string& text) const;
    bool HasLinesAt(int level) const { return level > 0 || m_control.Is(TVS_LINESATROOT); }
    bool HasButtonAt(int level) const { return m_control.Is(TVS_HASBUTTONS) && HasLinesAt(level); }

    void Redraw(HTREEITEM hItem) const;
    void TellAccess(DWORD event, HTREEITEM hItem) const // NULL: it is the tree's own
    {
        NotifyWinEvent(event, m_control.m_hWnd, OBJID_CLIENT, reinterpret_cast<LPARAM>(hItem));
    }
    void Measure();  // the text's and the pictures' size are new
    void Relayout(); // the client area, the rows or a measure are new
    // From that row on; keeps the item at the top where it is, as long as that is not the first row.
    void RowsChanged(int from);
    void ItemIsPlaced(ItemIndex item); // among its siblings
    int RowAbove(ItemIndex item) const;
    void ForgetWidth(); // what made the content as wide as it is may be gone
    void TakeWidth(int width, bool complete);

    HTREEITEM Top() const { return m_hTop; }
    void KeepTop(HTREEITEM hItem) { m_hTop = hItem; }
    void KeepPlace(); // whatever has come to lie there
    void ScrollToRow(int row);
    void ScrollToX(int x);
    void ScrollIntoView(HTREEITEM hItem);

    void OnVScroll(WPARAM wParam);
    void OnHScroll(WPARAM wParam);
    void OnMouseWheel(WPARAM wParam);
    int OnGetVisibleCount() const { return m_layout.FullRows(); }
    BOOL OnGetItemRect(BOOL label, RECT* pRect) const;
    HTREEITEM OnHitTest(WPARAM, TVHITTESTINFO* pInfo) const;
    bool OnSize(); // was there nothing to see before?

private:
    Hit HitTestRow(CPoint client, int row) const;
    UINT Outside(CPoint client) const; // TVHT_ABOVE and its like; 0 inside
    void UpdateBarAtSide(int height);
    void UpdateBarBelow();
    void UpdateBar(int nBar, const SCROLLINFO& info);
    void FollowPlace(); // the window shows another one: all is drawn anew

    ItemControl& m_control;
    TreeItems& m_items;
    TreeLayout& m_layout;
    const TreeOwner& m_owner;
    HTREEITEM m_hTop = nullptr; // in the top row, as the window shows it
    int m_nLeft = 0;            // the content's x at the left edge, likewise
    int m_relayouts = 0;        // under way, and of scroll bars
    bool m_bWidthStale = false;
};

} // namespace toolkit
