#include "Toolkit/controls/tree/TreeSelection.h"

#include <utility>

namespace toolkit
{

BOOL TreeSelection::OnSelectItem(UINT code, HTREEITEM hItem)
{
    if (hItem && m_items.Find(hItem) == kNoItem)
        return FALSE;
    switch (code) {
    case TVGN_CARET:
        return Select(hItem, TVC_UNKNOWN);
    case TVGN_FIRSTVISIBLE:
        ExpandAncestors(hItem);
        if (m_items.Find(hItem) == kNoItem)
            return FALSE;
        m_viewport.ScrollToRow(m_items.RowOf(m_items.Find(hItem)));
        return TRUE;
    default:
        return FALSE;
    }
}

// A handler may change the selection itself, while it is asked or while ancestors are expanded. What is told is what
// happened: the item that was really left, and nothing when the new one has been left again.
bool TreeSelection::Select(HTREEITEM hItem, UINT cause)
{
    if (hItem == m_hCaret)
        return true;
    if (!MaySelect(hItem))
        return false;

    const UnderWay change(m_changes);
    const bool refused = m_owner.TellSelection(TVN_SELCHANGING, m_hCaret, hItem, cause) != 0;
    if (refused || !MaySelect(hItem))
        return false;
    const HTREEITEM hFormer = m_hCaret;
    if (hFormer == hItem)
        return true;

    SetCaret(hItem);
    if (hItem)
        Reveal(hItem);
    if (m_hCaret == hItem)
        m_owner.TellSelection(TVN_SELCHANGED, hFormer, hItem, cause);
    return true;
}

// None may be, and an item that stays.
bool TreeSelection::MaySelect(HTREEITEM hItem) const
{
    const ItemIndex item = m_items.Find(hItem);
    return !hItem || (item != kNoItem && !m_items.Goes(item));
}

void TreeSelection::SetCaret(HTREEITEM hItem)
{
    const HTREEITEM hFormer = std::exchange(m_hCaret, hItem);
    if (const ItemIndex former = m_items.Find(hFormer))
        m_items[former].state &= static_cast<BYTE>(~TVIS_SELECTED);
    if (const ItemIndex item = m_items.Find(hItem))
        m_items[item].state |= TVIS_SELECTED;
    for (const HTREEITEM hChanged : {hFormer, hItem}) {
        m_viewport.Redraw(hChanged);
        if (hChanged)
            m_viewport.TellAccess(hChanged == hItem ? EVENT_OBJECT_SELECTIONADD : EVENT_OBJECT_SELECTIONREMOVE,
                                  hChanged);
    }
    m_viewport.TellAccess(EVENT_OBJECT_FOCUS, hItem);
}

void TreeSelection::SetState(ItemIndex index, UINT state, UINT mask)
{
    TreeItem& item = m_items[index];
    const UINT former = item.state;
    item.state = static_cast<BYTE>((former & ~mask) | (state & mask));
    if (item.state == former)
        return;
    if ((item.state ^ former) & TVIS_DROPHILITED) {
        m_dropMarks += item.state & TVIS_DROPHILITED ? 1 : -1;
        m_viewport.Redraw(m_hCaret); // it steps back while something else is marked
    }
    m_viewport.Redraw(m_items.HandleOf(index));
}

bool TreeSelection::Expand(HTREEITEM hItem, UINT code, UINT cause)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem || m_items.Goes(item))
        return false;
    const bool open = m_items.IsExpanded(item);
    const UINT way = (code & TVE_TOGGLE) == TVE_TOGGLE ? (open ? TVE_COLLAPSE : TVE_EXPAND) : code & TVE_TOGGLE;
    if (way == 0 || (way == TVE_EXPAND) == open)
        return false;

    const bool mayBeEmpty = way == TVE_EXPAND && m_items.ChildCount(item) == 0;
    if (mayBeEmpty && !m_owner.AskFace(hItem, TVIF_CHILDREN).hasChildren)
        return false;
    const bool refused = m_owner.TellItem(TVN_ITEMEXPANDING, hItem, way) != 0;
    if (refused || !ShowChildren(hItem, way == TVE_EXPAND, cause))
        return false;
    if (m_items.Find(hItem) != kNoItem)
        m_owner.TellItem(TVN_ITEMEXPANDED, hItem, way);
    return true;
}

// An owner may fill an item, or leave it empty, when it is asked.
bool TreeSelection::ShowChildren(HTREEITEM hItem, bool expanded, UINT cause)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem || m_items.IsExpanded(item) == expanded || (expanded && m_items.ChildCount(item) == 0))
        return false;

    const bool holdsTop = !expanded && m_items.IsWithin(item, m_items.Find(m_viewport.Top()));
    const bool holdsCaret =
        !expanded && m_hCaret && m_hCaret != hItem && m_items.IsWithin(item, m_items.Find(m_hCaret));
    m_items.SetExpanded(item, expanded);
    if (expanded)
        m_items[item].state |= TVIS_EXPANDEDONCE;
    else
        m_viewport.ForgetWidth();
    if (holdsTop && m_items.IsShown(item))
        m_viewport.KeepTop(hItem);
    const int row = m_items.RowOf(item);
    if (row >= 0)
        m_viewport.RowsChanged(row);
    m_viewport.TellAccess(EVENT_OBJECT_STATECHANGE, hItem);
    if (holdsCaret)
        Select(hItem, cause);
    return true;
}

bool TreeSelection::ExpandAncestors(HTREEITEM hItem)
{
    std::vector<HTREEITEM> closed;
    for (ItemIndex item = m_items.Parent(m_items.Find(hItem)); item != kNoItem; item = m_items.Parent(item))
        if (!m_items.IsExpanded(item))
            closed.push_back(m_items.HandleOf(item));

    bool any = false;
    for (; !closed.empty(); closed.pop_back()) { // from the top down
        if (!Expand(closed.back(), TVE_EXPAND, TVC_UNKNOWN))
            break; // someone wants it closed
        any = true;
    }
    return any;
}

bool TreeSelection::Reveal(HTREEITEM hItem)
{
    const bool expanded = ExpandAncestors(hItem);
    m_order.Settle();
    m_viewport.ScrollIntoView(hItem);
    return expanded;
}

BOOL TreeSelection::OnEnsureVisible(WPARAM, HTREEITEM hItem)
{
    const int top = m_layout.TopRow();
    return !Reveal(hItem) && m_layout.TopRow() != top;
}

void TreeSelection::ExpandBranch(HTREEITEM hTop)
{
    for (HTREEITEM hItem = hTop; hItem;) {
        Expand(hItem, TVE_EXPAND, TVC_BYKEYBOARD);
        const ItemIndex top = m_items.Find(hTop);
        ItemIndex item = m_items.Find(hItem);
        if (top == kNoItem || item == kNoItem)
            return;
        ItemIndex next = m_items.FirstChild(item);
        for (; next == kNoItem && item != top && item != kNoItem; item = m_items.Parent(item))
            next = m_items.Next(item);
        hItem = m_items.HandleOf(next);
    }
}

} // namespace toolkit
