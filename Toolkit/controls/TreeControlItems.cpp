// The tree control's items: making, changing, asking, walking.
#include "Toolkit/base/Text.h"
#include "Toolkit/controls/TreeControl.h"

#include <cstring>
#include <new>

namespace toolkit
{

namespace
{

constexpr UINT kSettable = TVIS_CUT | TVIS_DROPHILITED | TVIS_BOLD | TVIS_EXPANDEDONCE;
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

} // namespace

// An item that has no place yet, and goes when it gets none.
class TreeControl::NewItem
{
public:
    explicit NewItem(TreeControl& tree)
        : m_hWnd(tree.m_hWnd), m_tree(tree), m_handle(tree.m_items.HandleOf(tree.m_items.Make()))
    {}
    ~NewItem()
    {
        if (!IsWindow(m_hWnd))
            return; // and with it all items
        const ItemIndex item = m_tree.m_items.Find(m_handle);
        if (item == kNoItem || m_tree.m_items[item].placed)
            return;
        m_tree.SetState(item, 0, TVIS_DROPHILITED);
        m_tree.m_items.Delete(item);
    }
    NewItem(const NewItem&) = delete;
    NewItem& operator=(const NewItem&) = delete;

    HTREEITEM Handle() const { return m_handle; } // NULL: there was no room

private:
    const HWND m_hWnd;
    TreeControl& m_tree;
    const HTREEITEM m_handle;
};

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
    const ItemIndex parent = m_items.FindParent(insert.hParent);
    if (parent == kNoItem || !m_items[parent].placed)
        return true;
    const HTREEITEM hParent = m_items.HandleOf(parent);
    const NewItem made(*this);
    if (!made.Handle())
        return true;
    Assign(m_items.Find(made.Handle()), insert.item);

    int place = 0;
    if (!FindPlace(made.Handle(), hParent, insert.hInsertAfter, place))
        return false;
    const ItemIndex item = m_items.Find(made.Handle()), parentNow = m_items.FindParent(hParent);
    if (item == kNoItem || parentNow == kNoItem || IsGoing(parentNow))
        return true; // it was taken away, or is to go
    if (insert.hInsertAfter != TVI_SORT && m_items.ChildCount(parentNow) > 0)
        DoubtOrder(parentNow);
    m_items.Place(item, parentNow, std::min(place, m_items.ChildCount(parentNow)));
    hNew = made.Handle();
    return ShowPlaced(item, parentNow);
}

bool TreeControl::FindPlace(HTREEITEM hNew, HTREEITEM hParent, HTREEITEM hInsertAfter, int& place)
{
    if (hInsertAfter == TVI_SORT)
        return FindSortedPlace(hNew, hParent, place);
    const ItemIndex parent = m_items.FindParent(hParent), sibling = m_items.Find(hInsertAfter);
    if (hInsertAfter == TVI_FIRST)
        place = 0;
    else if (sibling != kNoItem && m_items[sibling].placed && m_items[sibling].parent == parent)
        place = m_items.PlaceOf(sibling) + 1;
    else
        place = m_items.ChildCount(parent);
    return true;
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

void TreeControl::Assign(ItemIndex index, const TVITEM& from)
{
    TreeItem& item = m_items[index];
    if (from.mask & TVIF_TEXT) {
        item.asksForText = from.pszText == LPSTR_TEXTCALLBACK;
        item.text = item.asksForText ? LPCSTR() : from.pszText;
    }
    if (from.mask & TVIF_IMAGE)
        item.image = from.iImage;
    if (from.mask & TVIF_SELECTEDIMAGE)
        item.selectedImage = from.iSelectedImage;
    if (from.mask & TVIF_CHILDREN)
        item.childrenFlag = static_cast<std::int8_t>(std::clamp(from.cChildren, I_CHILDRENCALLBACK, 1));
    if (from.mask & TVIF_PARAM)
        item.lParam = from.lParam;
    if (!(from.mask & TVIF_STATE))
        return;
    SetState(index, from.state, from.stateMask & kSettable);
    if (!item.placed)
        item.state |= static_cast<BYTE>(from.state & from.stateMask & TVIS_EXPANDED);
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
    const bool asked = m_items[item].asksForText;
    Assign(item, *pItem);
    if (pItem->mask & TVIF_TEXT) {
        DoubtOrder(m_items[item].parent);
        if (!asked || !m_items[item].asksForText)
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
    switch (wParam) {
    case TVGN_CARET:
        return reinterpret_cast<LRESULT>(m_hCaret);
    case TVGN_DROPHILITE:
        return reinterpret_cast<LRESULT>(m_hDropTarget);
    default:
        return reinterpret_cast<LRESULT>(m_items.HandleOf(Neighbour(static_cast<UINT>(wParam), hItem)));
    }
}

ItemIndex TreeControl::Neighbour(UINT code, HTREEITEM hItem) const
{
    const ItemIndex item = m_items.Find(hItem);
    const auto atRow = [&](int offset) {
        const int row = item == kNoItem ? -1 : m_items.RowOf(item);
        return row < 0 ? kNoItem : m_items.AtRow(row + offset);
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
        return atRow(1);
    case TVGN_PREVIOUSVISIBLE:
        return atRow(-1);
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
