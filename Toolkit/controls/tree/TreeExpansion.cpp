// How the tree control's items open and close: asked, done, told.
#include "Toolkit/controls/tree/TreeControl.h"

namespace toolkit
{

LRESULT TreeControl::OnExpand(WPARAM wParam, LPARAM lParam)
{
    bool changed = false;
    const auto hItem = reinterpret_cast<HTREEITEM>(lParam);
    return Expand(hItem, static_cast<UINT>(wParam), TVC_UNKNOWN, &changed) && changed;
}

bool TreeControl::Expand(HTREEITEM hItem, UINT code, UINT cause, bool* pChanged)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem || IsGoing(item))
        return true;
    const bool open = m_items.IsExpanded(item);
    const UINT way = (code & TVE_TOGGLE) == TVE_TOGGLE ? (open ? TVE_COLLAPSE : TVE_EXPAND) : code & TVE_TOGGLE;
    if (way == 0 || (way == TVE_EXPAND) == open)
        return true;

    Face face;
    if (way == TVE_EXPAND && m_items.ChildCount(item) == 0) {
        if (!AskFace(hItem, TVIF_CHILDREN, face))
            return false;
        if (!face.hasChildren)
            return true;
    }
    LRESULT refused = 0;
    if (!TellItem(TVN_ITEMEXPANDING, hItem, way, &refused))
        return false;
    if (refused != 0)
        return true;
    bool changed = false;
    if (!ShowChildren(hItem, way == TVE_EXPAND, cause, changed))
        return false;
    if (pChanged)
        *pChanged = changed;
    return !changed || m_items.Find(hItem) == kNoItem || TellItem(TVN_ITEMEXPANDED, hItem, way);
}

// An owner may fill an item, or leave it empty, when it is asked.
bool TreeControl::ShowChildren(HTREEITEM hItem, bool expanded, UINT cause, bool& changed)
{
    const ItemIndex item = m_items.Find(hItem);
    changed = item != kNoItem && m_items.IsExpanded(item) != expanded && (!expanded || m_items.ChildCount(item) > 0);
    if (!changed)
        return true;

    const bool holdsTop = !expanded && m_items.IsWithin(item, m_items.Find(m_hTop));
    const bool holdsCaret =
        !expanded && m_hCaret && m_hCaret != hItem && m_items.IsWithin(item, m_items.Find(m_hCaret));
    m_items.SetExpanded(item, expanded);
    if (expanded)
        m_items[item].state |= TVIS_EXPANDEDONCE;
    else
        ForgetWidth();
    if (holdsTop && m_items.IsShown(item))
        m_hTop = hItem;
    const int row = m_items.RowOf(item);
    if (row >= 0 && !RowsChanged(row))
        return false;
    return !holdsCaret || Select(hItem, cause);
}

bool TreeControl::ExpandAncestors(HTREEITEM hItem, bool* pExpanded)
{
    std::vector<HTREEITEM> closed;
    for (ItemIndex item = m_items.Parent(m_items.Find(hItem)); item != kNoItem; item = m_items.Parent(item))
        if (!m_items.IsExpanded(item))
            closed.push_back(m_items.HandleOf(item));

    for (; !closed.empty(); closed.pop_back()) { // from the top down
        bool changed = false;
        if (!Expand(closed.back(), TVE_EXPAND, TVC_UNKNOWN, &changed))
            return false;
        if (pExpanded)
            *pExpanded |= changed;
        if (!changed)
            break; // someone wants it closed
    }
    return true;
}

bool TreeControl::ExpandBranch(HTREEITEM hTop)
{
    for (HTREEITEM hItem = hTop; hItem;) {
        if (!Expand(hItem, TVE_EXPAND, TVC_BYKEYBOARD))
            return false;
        const ItemIndex top = m_items.Find(hTop);
        ItemIndex item = m_items.Find(hItem);
        if (top == kNoItem || item == kNoItem)
            return true;
        ItemIndex next = m_items.FirstChild(item);
        for (; next == kNoItem && item != top && item != kNoItem; item = m_items.Parent(item))
            next = m_items.Next(item);
        hItem = m_items.HandleOf(next);
    }
    return true;
}

} // namespace toolkit
