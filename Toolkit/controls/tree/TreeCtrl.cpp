#include "Toolkit/controls/tree/TreeCtrl.h"

#include <array>
#include <cstring>

namespace
{

TVITEM ItemWith(UINT mask, HTREEITEM hItem)
{
    TVITEM item{};
    item.mask = mask;
    item.hItem = hItem;
    return item;
}

} // namespace

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID)
{
    return CreateEx(0, WC_TREEVIEW, nullptr, dwStyle, rect, pParent, nID);
}

BOOL CTreeCtrl::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = WC_TREEVIEW;
    return CWnd::PreCreateWindow(cs);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item = ItemWith(TVIF_CHILDREN, hItem);
    return GetItem(&item) && item.cChildren != 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    std::array<char, 4096> buffer{};
    TVITEM item = ItemWith(TVIF_TEXT, hItem);
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    return GetItem(&item) ? CString(item.pszText) : CString();
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCSTR pszText)
{
    TVITEM item = ItemWith(TVIF_TEXT, hItem);
    item.pszText = const_cast<LPSTR>(pszText);
    return SetItem(&item);
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nMask)
{
    TVITEM item = ItemWith(TVIF_STATE, hItem);
    item.state = nState;
    item.stateMask = nMask;
    return SetItem(&item);
}

LPARAM CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item = ItemWith(TVIF_PARAM, hItem);
    return GetItem(&item) ? item.lParam : 0;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, RECT* pRect, BOOL bTextOnly) const
{
    std::memcpy(static_cast<void*>(pRect), &hItem, sizeof(hItem));
    return Ask<BOOL>(TVM_GETITEMRECT, bTextOnly, pRect);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info{pt, TVHT_NOWHERE, nullptr};
    const HTREEITEM hItem = HitTest(&info);
    if (pFlags)
        *pFlags = info.flags;
    return hItem;
}

HTREEITEM CTreeCtrl::InsertItem(LPCSTR pszText, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert{hParent, hInsertAfter, ItemWith(TVIF_TEXT, nullptr)};
    insert.item.pszText = const_cast<LPSTR>(pszText);
    return InsertItem(&insert);
}

BOOL CTreeCtrl::ArrangeChildren(HTREEITEM hParent, std::span<const HTREEITEM> children, BOOL bByLabel)
{
    const TVARRANGECHILDREN arrange{hParent, children.data(), static_cast<int>(children.size()), bByLabel};
    return Ask<BOOL>(TVM_ARRANGECHILDREN, 0, &arrange);
}
