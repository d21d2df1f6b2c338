// How the tree control's items go: the selection leaves first, then each item is announced, children first.
#include "Toolkit/controls/tree/TreeControl.h"

namespace toolkit
{

LRESULT TreeControl::OnDeleteItem(WPARAM, LPARAM lParam)
{
    const auto hItem = reinterpret_cast<HTREEITEM>(lParam);
    // First: the selection takes the focus along, and what was typed would be taken for the name of what goes.
    if (!CancelLabelWithin(hItem))
        return TRUE;
    const ItemIndex item = hItem == TVI_ROOT ? kRootItem : m_items.Find(hItem);
    if (item == kNoItem)
        return FALSE;
    if (!MoveSelectionOutOf(item))
        return TRUE;
    static_cast<void>(item == kRootItem ? DeleteChildren(kRootItem) : DeleteBranch(hItem));
    return TRUE;
}

// Where the selection may not leave, it goes with its item, without a word.
bool TreeControl::MoveSelectionOutOf(ItemIndex item)
{
    if (!m_hCaret || !m_items.IsWithin(item, m_items.Find(m_hCaret)))
        return true;
    ItemIndex heir = kNoItem;
    if (item != kRootItem) {
        heir = m_items.Next(item);
        if (heir == kNoItem)
            heir = m_items.Parent(item);
        if (heir == kNoItem)
            heir = m_items.Previous(item);
    }
    return Select(m_items.HandleOf(heir), TVC_UNKNOWN);
}

bool TreeControl::DeleteChildren(ItemIndex parent)
{
    const HTREEITEM hParent = m_items.HandleOf(parent);
    const UnderWay deleting(m_nDeleting);
    const bool went = m_items[parent].goes;
    m_items[parent].goes = true; // nothing is to be inserted meanwhile
    for (;;) {
        const ItemIndex parentNow = m_items.FindParent(hParent);
        if (parentNow == kNoItem)
            return true;
        const ItemIndex child = m_items.FirstChild(parentNow);
        if (child == kNoItem) {
            m_items[parentNow].goes = went;
            return true;
        }
        if (!DeleteBranch(m_items.HandleOf(child)))
            return false;
    }
}

// Down to a leaf, which goes, and on from its parent. No recursion: a branch may be deep. Nothing is inserted into
// what goes, and nothing of it selected. A handler may delete the rest of it, or what it is a branch of: each item is
// announced once.
bool TreeControl::DeleteBranch(HTREEITEM hTop)
{
    const UnderWay deleting(m_nDeleting);
    if (!CancelLabelWithin(hTop))
        return false;
    for (HTREEITEM hItem = hTop;;) {
        const ItemIndex item = m_items.Find(hItem);
        if (item == kNoItem)
            return true;
        m_items[item].goes = true;
        const ItemIndex child = m_items.FirstChild(item);
        if (child != kNoItem) {
            hItem = m_items.HandleOf(child);
            continue;
        }
        const HTREEITEM hParent = m_items.HandleOf(m_items.Parent(item));
        const bool announced = m_items[item].announced;
        m_items[item].announced = true;
        if ((!announced && !TellItem(TVN_DELETEITEM, hItem, 0)) || !Remove(hItem))
            return false;
        if (hItem == hTop)
            return true;
        hItem = hParent;
    }
}

bool TreeControl::Remove(HTREEITEM hItem)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return true;
    const ItemIndex parent = m_items.Parent(item);
    const int row = m_items.RowOf(item);
    const int from = RowAbove(item);
    if (m_hCaret == hItem)
        m_hCaret = nullptr;
    SetState(item, 0, TVIS_DROPHILITED);
    m_items.Delete(item);

    if (row < 0) {
        if (parent != kNoItem && m_items.ChildCount(parent) == 0)
            Redraw(m_items.HandleOf(parent)); // its button goes
        return true;
    }
    ForgetWidth();
    return RowsChanged(from);
}

} // namespace toolkit
