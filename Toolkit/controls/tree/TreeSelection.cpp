// The tree control's selection: every change asks, changes, shows and tells. And the drop highlight, which does not.
#include "Toolkit/controls/tree/TreeControl.h"

#include <utility>

namespace toolkit
{

LRESULT TreeControl::OnSelectItem(WPARAM wParam, LPARAM lParam)
{
    const auto hItem = reinterpret_cast<HTREEITEM>(lParam);
    if (hItem && m_items.Find(hItem) == kNoItem)
        return FALSE;
    bool done = false;
    switch (wParam) {
    case TVGN_CARET:
        return Select(hItem, TVC_UNKNOWN, &done) && done;
    case TVGN_FIRSTVISIBLE:
        if (!hItem || !ExpandAncestors(hItem))
            return FALSE;
        return m_items.Find(hItem) != kNoItem && ScrollToRow(m_items.RowOf(m_items.Find(hItem)));
    default:
        return FALSE;
    }
}

// A handler may change the selection itself, while it is asked or while ancestors are expanded. What is told is what
// happened: the item that was really left, and nothing when the new one has been left again.
bool TreeControl::Select(HTREEITEM hItem, UINT cause, bool* pDone)
{
    bool ignored = false;
    bool& done = pDone ? *pDone : ignored;
    done = hItem == m_hCaret;
    if (done || !MaySelect(hItem))
        return true;

    const UnderWay selecting(m_nSelecting);
    LRESULT refused = 0;
    if (!TellSelection(TVN_SELCHANGING, m_hCaret, hItem, cause, &refused))
        return false;
    if (refused != 0 || !MaySelect(hItem))
        return true;
    done = true;
    const HTREEITEM hFormer = m_hCaret;
    if (hFormer == hItem)
        return true;

    SetCaret(hItem);
    if (hItem && !Reveal(hItem))
        return false;
    if (m_hCaret != hItem)
        return true;
    return TellSelection(TVN_SELCHANGED, hFormer, hItem, cause, nullptr);
}

// None may be, and an item that stays.
bool TreeControl::MaySelect(HTREEITEM hItem) const
{
    const ItemIndex item = m_items.Find(hItem);
    return !hItem || (item != kNoItem && !IsGoing(item));
}

void TreeControl::SetCaret(HTREEITEM hItem)
{
    const HTREEITEM hFormer = std::exchange(m_hCaret, hItem);
    if (const ItemIndex former = m_items.Find(hFormer))
        m_items[former].state &= static_cast<BYTE>(~TVIS_SELECTED);
    if (const ItemIndex item = m_items.Find(hItem))
        m_items[item].state |= TVIS_SELECTED;
    Redraw(hFormer);
    Redraw(hItem);
}

void TreeControl::CountDropMark(ItemIndex item)
{
    m_nDropMarks += m_items[item].state & TVIS_DROPHILITED ? 1 : -1;
    Redraw(m_hCaret); // it steps back while something else is marked
}

} // namespace toolkit
