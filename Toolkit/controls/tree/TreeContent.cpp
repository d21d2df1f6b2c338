// The tree control's items: making, changing, asking, walking.
#include "Toolkit/base/Text.h"
#include "Toolkit/controls/tree/TreeControl.h"

#include <cstring>
#include <new>

namespace toolkit
{

namespace
{

constexpr UINT kSettable = TVIS_DROPHILITED | TVIS_BOLD | TVIS_EXPANDEDONCE;
constexpr UINT kSeen = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;

// Cuts between code points.
void CopyText(const std::string& text, LPSTR pszBuffer, int nBuffer)
{
    if (!pszBuffer || nBuffer <= 0)
        return;
    std::size_t length = std::min(text.size(), static_cast<std::size_t>(nBuffer) - 1);
    while (length < text.size() && length > 0 && (static_cast<BYTE>(text[length]) & 0xC0) == 0x80)
        --length;
    std::memcpy(pszBuffer, text.data(), length);
    pszBuffer[length] = '\0';
}

// As an item does that has no face of its own.
bool AsksForAll(const TVITEM& item)
{
    return (item.mask & kSeen) == kSeen && item.pszText == LPSTR_TEXTCALLBACK && item.iImage == I_IMAGECALLBACK &&
           item.iSelectedImage == I_IMAGECALLBACK && item.cChildren == I_CHILDRENCALLBACK;
}

TreeFace Changed(TreeFace face, const TVITEM& by)
{
    if (by.mask & TVIF_TEXT) {
        face.asksForText = by.pszText == LPSTR_TEXTCALLBACK;
        face.text = face.asksForText ? LPCSTR() : by.pszText;
    }
    if (by.mask & TVIF_IMAGE)
        face.image = by.iImage;
    if (by.mask & TVIF_SELECTEDIMAGE)
        face.selectedImage = by.iSelectedImage;
    if (by.mask & TVIF_CHILDREN)
        face.childrenFlag = std::clamp(by.cChildren, I_CHILDRENCALLBACK, 1);
    return face;
}

} // namespace

// An insertion that memory is lacking for is refused like any other. When it only lacked for noting what to paint, the
// item is in.
LRESULT TreeControl::OnInsertItem(WPARAM, LPARAM lParam)
{
    const auto* const pInsert = reinterpret_cast<const TVINSERTSTRUCT*>(lParam);
    HTREEITEM hNew = nullptr;
    try {
        if (!pInsert || !Insert(*pInsert, hNew))
            return 0;
    } catch (const std::bad_alloc&) {
    }
    return reinterpret_cast<LRESULT>(hNew);
}

bool TreeControl::Insert(const TVINSERTSTRUCT& insert, HTREEITEM& hNew)
{
    const bool sorted = insert.hInsertAfter == TVI_SORT;
    if (!sorted && !Settle()) // it goes before or behind the others as they stand
        return false;
    const ItemIndex parent = m_items.FindParent(insert.hParent);
    if (parent == kNoItem || IsGoing(parent))
        return true;
    if (sorted)
        m_unsettled.reserve(m_unsettled.size() + 1);
    const ItemIndex last = m_items.LastChild(parent);
    const ItemIndex item = Make(insert, parent);
    if (item == kNoItem)
        return true;
    hNew = m_items.HandleOf(item);
    if (last == kNoItem) {
        m_items[parent].order = ChildOrder::ByLabel;
    } else if (sorted) {
        Gather(item, parent, m_items[last].gathered);
        return true;
    } else {
        DoubtOrder(parent);
    }
    if (!ShowPlaced(item, parent))
        return false;
    if (m_items.Find(hNew) == kNoItem)
        hNew = nullptr;
    return true;
}

ItemIndex TreeControl::Make(const TVINSERTSTRUCT& insert, ItemIndex parent)
{
    const TVITEM& from = insert.item;
    const UINT state = from.mask & TVIF_STATE ? from.state & from.stateMask & TVIS_EXPANDED : 0;
    const ItemIndex item = m_items.Insert(parent, FindPlace(parent, insert.hInsertAfter), state);
    if (item == kNoItem)
        return kNoItem;
    try {
        if (!AsksForAll(from))
            m_items.SetFace(item, Changed(TreeFace(), from));
    } catch (...) {
        m_items.Delete(item);
        throw;
    }
    AssignRest(item, from);
    return item;
}

int TreeControl::FindPlace(ItemIndex parent, HTREEITEM hInsertAfter) const
{
    if (hInsertAfter == TVI_FIRST)
        return 0;
    const bool last = hInsertAfter == TVI_SORT || hInsertAfter == TVI_LAST;
    const ItemIndex sibling = last ? kNoItem : m_items.Find(hInsertAfter);
    return sibling != kNoItem && m_items.ParentOrRoot(sibling) == parent ? m_items.PlaceOf(sibling) + 1
                                                                         : m_items.ChildCount(parent);
}

bool TreeControl::ShowPlaced(ItemIndex item, ItemIndex parent)
{
    if (m_items.IsShown(item))
        return RowsChanged(RowAbove(item));
    if (m_items.ChildCount(parent) == 1)
        Redraw(m_items.HandleOf(parent)); // its button appears
    return true;
}

// A change of an item among its siblings is seen from here on: lines and the parent's button change, too.
int TreeControl::RowAbove(ItemIndex item) const
{
    const ItemIndex previous = m_items.Previous(item);
    return std::max(m_items.RowOf(previous != kNoItem ? previous : m_items.Parent(item)), 0);
}

void TreeControl::Assign(ItemIndex item, const TVITEM& from)
{
    if (from.mask & kSeen)
        m_items.SetFace(item, Changed(m_items.FaceOf(item), from));
    AssignRest(item, from);
}

void TreeControl::AssignRest(ItemIndex item, const TVITEM& from)
{
    if (from.mask & TVIF_PARAM)
        m_items[item].lParam = from.lParam;
    if (from.mask & TVIF_STATE)
        SetState(item, from.state, from.stateMask & kSettable);
}

LRESULT TreeControl::OnGetItem(WPARAM, LPARAM lParam)
{
    auto* const pItem = reinterpret_cast<TVITEM*>(lParam);
    if (!pItem || m_items.Find(pItem->hItem) == kNoItem)
        return FALSE;
    Face face;
    if (!AskFace(pItem->hItem, pItem->mask & kSeen, face))
        return FALSE;
    const ItemIndex index = m_items.Find(pItem->hItem);
    if (index == kNoItem)
        return FALSE;

    const TreeItem& item = m_items[index];
    if (pItem->mask & TVIF_TEXT)
        CopyText(face.text, pItem->pszText, pItem->cchTextMax);
    if (pItem->mask & TVIF_IMAGE)
        pItem->iImage = face.image;
    if (pItem->mask & TVIF_SELECTEDIMAGE)
        pItem->iSelectedImage = face.selectedImage;
    if (pItem->mask & TVIF_CHILDREN)
        pItem->cChildren = face.hasChildren;
    if (pItem->mask & TVIF_PARAM)
        pItem->lParam = item.lParam;
    if (pItem->mask & TVIF_STATE)
        pItem->state = item.state;
    return TRUE;
}

LRESULT TreeControl::OnSetItem(WPARAM, LPARAM lParam)
{
    const auto* const pItem = reinterpret_cast<const TVITEM*>(lParam);
    const ItemIndex item = pItem ? m_items.Find(pItem->hItem) : kNoItem;
    if (item == kNoItem)
        return FALSE;
    const bool asked = m_items.FaceOf(item).asksForText;
    Assign(item, *pItem);
    if (pItem->mask & TVIF_TEXT) {
        DoubtOrder(m_items.ParentOrRoot(item));
        if (!asked || !m_items.FaceOf(item).asksForText)
            ForgetWidth(); // of a label that is asked for the width is seen when it is painted
    }
    if (pItem->mask & kSeen)
        Redraw(pItem->hItem);
    return TRUE;
}

LRESULT TreeControl::OnGetItemState(WPARAM wParam, LPARAM lParam)
{
    const ItemIndex item = m_items.Find(reinterpret_cast<HTREEITEM>(wParam));
    return item == kNoItem ? 0 : m_items[item].state & static_cast<UINT>(lParam);
}

LRESULT TreeControl::OnGetNextItem(WPARAM wParam, LPARAM lParam)
{
    const auto hItem = reinterpret_cast<HTREEITEM>(lParam);
    if (wParam == TVGN_CARET)
        return reinterpret_cast<LRESULT>(m_hCaret);
    return reinterpret_cast<LRESULT>(m_items.HandleOf(Neighbour(static_cast<UINT>(wParam), hItem)));
}

ItemIndex TreeControl::Neighbour(UINT code, HTREEITEM hItem) const
{
    const ItemIndex item = m_items.Find(hItem);
    const auto nextRow = [&] {
        const int row = item == kNoItem ? -1 : m_items.RowOf(item);
        return row < 0 ? kNoItem : m_items.AtRow(row + 1);
    };
    switch (code) {
    case TVGN_ROOT:
        return m_items.FirstChild(kRootItem);
    case TVGN_CHILD:
        return m_items.FirstChild(m_items.FindParent(hItem));
    case TVGN_NEXT:
        return m_items.Next(item);
    case TVGN_PREVIOUS:
        return m_items.Previous(item);
    case TVGN_PARENT:
        return m_items.Parent(item);
    case TVGN_FIRSTVISIBLE:
        return m_items.AtRow(m_layout.TopRow());
    case TVGN_LASTVISIBLE:
        return m_items.AtRow(m_items.RowCount() - 1);
    case TVGN_NEXTVISIBLE:
        return nextRow();
    default:
        return kNoItem;
    }
}

void TreeControl::SetState(ItemIndex index, UINT state, UINT mask)
{
    TreeItem& item = m_items[index];
    const UINT former = item.state;
    item.state = static_cast<BYTE>((former & ~mask) | (state & mask));
    if (item.state == former)
        return;
    if ((item.state ^ former) & TVIS_DROPHILITED)
        CountDropMark(index);
    Redraw(m_items.HandleOf(index));
}

} // namespace toolkit
