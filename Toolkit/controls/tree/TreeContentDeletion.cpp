// How the tree control's items go: the selection leaves first, then each item is announced, children first.
#include "Toolkit/controls/tree/TreeContent.h"

namespace toolkit
{

BOOL TreeContent::OnDeleteItem(WPARAM, HTREEITEM hItem)
{
    // First: the selection takes the focus along, and what was typed would be taken for the name of what goes.
    CancelLabelWithin(hItem);
    const ItemIndex item = hItem == TVI_ROOT ? kRootItem : m_items.Find(hItem);
    if (item == kNoItem)
        return FALSE;
    MoveSelectionOutOf(item);
    if (item == kRootItem)
        DeleteChildren(kRootItem);
    else
        DeleteBranch(hItem);
    return TRUE;
}

// Where the selection may not leave, it goes with its item, without a word.
void TreeContent::MoveSelectionOutOf(ItemIndex item)
{
    const HTREEITEM hCaret = m_selection.Caret();
    if (!hCaret || !m_items.IsWithin(item, m_items.Find(hCaret)))
        return;
    ItemIndex heir = kNoItem;
    if (item != kRootItem) {
        heir = m_items.Next(item);
        if (heir == kNoItem)
            heir = m_items.Parent(item);
        if (heir == kNoItem)
            heir = m_items.Previous(item);
    }
    m_selection.Select(m_items.HandleOf(heir), TVC_UNKNOWN);
}

void TreeContent::DeleteChildren(ItemIndex parent)
{
    const HTREEITEM hParent = m_items.HandleOf(parent);
    const UnderWay deleting(m_items.Deletions());
    const bool went = m_items[parent].goes;
    m_items[parent].goes = true; // nothing is to be inserted meanwhile
    for (;;) {
        const ItemIndex parentNow = m_items.FindParent(hParent);
        if (parentNow == kNoItem)
            return;
        const ItemIndex child = m_items.FirstChild(parentNow);
        if (child == kNoItem) {
            m_items[parentNow].goes = went;
            return;
        }
        DeleteBranch(m_items.HandleOf(child));
    }
}

// Down to a leaf, which goes, and on from its parent. No recursion: a branch may be deep. Nothing is inserted into
// what goes, and nothing of it selected. A handler may delete the rest of it, or what it is a branch of: each item is
// announced once.
void TreeContent::DeleteBranch(HTREEITEM hTop)
{
    const UnderWay deleting(m_items.Deletions());
    CancelLabelWithin(hTop);
    for (HTREEITEM hItem = hTop;;) {
        const ItemIndex item = m_items.Find(hItem);
        if (item == kNoItem && hItem == hTop)
            return;
        if (item == kNoItem) {
            hItem = hTop; // a handler has deleted what it was to go on from
            continue;
        }
        m_items[item].goes = true;
        const ItemIndex child = m_items.FirstChild(item);
        if (child != kNoItem) {
            hItem = m_items.HandleOf(child);
            continue;
        }
        const HTREEITEM hParent = m_items.HandleOf(m_items.Parent(item));
        const bool announced = m_items[item].announced;
        m_items[item].announced = true;
        if (!announced)
            m_owner.TellItem(TVN_DELETEITEM, hItem, 0);
        Remove(hItem);
        if (hItem == hTop)
            return;
        hItem = hParent;
    }
}

void TreeContent::Remove(HTREEITEM hItem)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return;
    const ItemIndex parent = m_items.Parent(item);
    const int row = m_items.RowOf(item);
    const int from = m_viewport.RowAbove(item);
    if (m_selection.Caret() == hItem)
        m_selection.Forget();
    m_selection.SetState(item, 0, TVIS_DROPHILITED);
    m_items.Delete(item);

    if (row >= 0) {
        m_viewport.ForgetWidth();
        m_viewport.RowsChanged(from);
    } else if (parent != kNoItem && m_items.ChildCount(parent) == 0) {
        m_viewport.Redraw(m_items.HandleOf(parent)); // its button goes
    }
}

void TreeContent::CancelLabelWithin(HTREEITEM hTop)
{
    LabelEditing& labels = m_control.Labels();
    const ItemIndex top = m_items.Find(hTop);
    const ItemIndex edited = labels.Field() ? m_items.Find(reinterpret_cast<HTREEITEM>(labels.Item())) : kNoItem;
    if (top != kNoItem && m_items.IsWithin(top, edited))
        labels.Finish(false);
}

} // namespace toolkit
