#include "Toolkit/controls/tree/TreeContent.h"

#include <cstring>
#include <new>

namespace toolkit
{

namespace
{

constexpr UINT kSettable = TVIS_DROPHILITED | TVIS_BOLD | TVIS_EXPANDEDONCE;

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
    return (item.mask & TreeFace::kParts) == TreeFace::kParts && item.pszText == LPSTR_TEXTCALLBACK &&
           item.iImage == I_IMAGECALLBACK && item.iSelectedImage == I_IMAGECALLBACK &&
           item.cChildren == I_CHILDRENCALLBACK;
}

} // namespace

// An insertion that memory is lacking for is refused like any other. When it only lacked for noting what to paint, the
// item is in.
HTREEITEM TreeContent::OnInsertItem(WPARAM, const TVINSERTSTRUCT* pInsert)
{
    HTREEITEM hNew = nullptr;
    try {
        if (pInsert)
            Insert(*pInsert, hNew);
    } catch (const std::bad_alloc&) {
    }
    return hNew;
}

void TreeContent::Insert(const TVINSERTSTRUCT& insert, HTREEITEM& hNew)
{
    const bool sorted = insert.hInsertAfter == TVI_SORT;
    if (!sorted)
        m_order.Settle(); // it goes before or behind the others as they stand
    const ItemIndex parent = m_items.FindParent(insert.hParent);
    if (!m_control.IsAlive() || parent == kNoItem || m_items.Goes(parent))
        return; // nobody would hear of the item's end
    if (sorted)
        m_order.MakeRoom();
    const ItemIndex last = m_items.LastChild(parent);
    const ItemIndex item = Make(insert, parent);
    if (item == kNoItem)
        return;
    hNew = m_items.HandleOf(item);
    if (last == kNoItem)
        m_items[parent].order = ChildOrder::ByLabel;
    else if (sorted)
        return m_order.Gather(item, parent, m_items[last].gathered);
    else
        m_order.Doubt(parent);
    m_viewport.ItemIsPlaced(item);
    if (m_items.Find(hNew) == kNoItem)
        hNew = nullptr;
}

ItemIndex TreeContent::Make(const TVINSERTSTRUCT& insert, ItemIndex parent)
{
    const TVITEM& from = insert.item;
    const UINT state = from.mask & TVIF_STATE ? from.state & from.stateMask & TVIS_EXPANDED : 0;
    const ItemIndex item = m_items.Insert(parent, FindPlace(parent, insert.hInsertAfter), state);
    if (item == kNoItem)
        return kNoItem;
    try {
        if (!AsksForAll(from))
            m_items.SetFace(item, TreeFace().With(from));
    } catch (...) {
        m_items.Delete(item);
        throw;
    }
    AssignRest(item, from);
    return item;
}

int TreeContent::FindPlace(ItemIndex parent, HTREEITEM hInsertAfter) const
{
    if (hInsertAfter == TVI_FIRST)
        return 0;
    const bool last = hInsertAfter == TVI_SORT || hInsertAfter == TVI_LAST;
    const ItemIndex sibling = last ? kNoItem : m_items.Find(hInsertAfter);
    return sibling != kNoItem && m_items.ParentOrRoot(sibling) == parent ? m_items.PlaceOf(sibling) + 1
                                                                         : m_items.ChildCount(parent);
}

void TreeContent::AssignRest(ItemIndex item, const TVITEM& from)
{
    if (from.mask & TVIF_PARAM)
        m_items[item].lParam = from.lParam;
    if (from.mask & TVIF_STATE)
        m_selection.SetState(item, from.state, from.stateMask & kSettable);
}

BOOL TreeContent::OnGetItem(WPARAM, TVITEM* pItem) const
{
    if (!pItem)
        return FALSE;
    const ItemFace face = m_owner.AskFace(pItem->hItem, pItem->mask & TreeFace::kParts);
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

BOOL TreeContent::OnSetItem(WPARAM, const TVITEM* pItem)
{
    const ItemIndex item = pItem ? m_items.Find(pItem->hItem) : kNoItem;
    if (item == kNoItem)
        return FALSE;
    const bool asked = m_items.FaceOf(item).asksForText;
    if (pItem->mask & TreeFace::kParts)
        m_items.SetFace(item, m_items.FaceOf(item).With(*pItem));
    AssignRest(item, *pItem);
    if (pItem->mask & TVIF_TEXT) {
        m_order.Doubt(m_items.ParentOrRoot(item));
        m_viewport.TellAccess(EVENT_OBJECT_NAMECHANGE, pItem->hItem);
        if (!asked || !m_items.FaceOf(item).asksForText)
            m_viewport.ForgetWidth(); // of a label that is asked for the width is seen when it is painted
    }
    if (pItem->mask & TreeFace::kParts)
        m_viewport.Redraw(pItem->hItem);
    return TRUE;
}

UINT TreeContent::OnGetItemState(HTREEITEM hItem, UINT mask) const
{
    const ItemIndex item = m_items.Find(hItem);
    return item == kNoItem ? 0 : m_items[item].state & mask;
}

// What the owner keeps itself it is told to change.
void TreeContent::TakeLabel(HTREEITEM hItem, std::string& text)
{
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return;
    if (m_items.FaceOf(item).asksForText)
        return m_owner.TellText(hItem, text);
    TVITEM change{};
    change.mask = TVIF_TEXT;
    change.hItem = hItem;
    change.pszText = text.data();
    OnSetItem(0, &change);
}

} // namespace toolkit
