#include "Toolkit/controls/tree/TreeCtrl.h"

#include <array>
#include <cstring>

namespace
{

WPARAM ToWParam(HTREEITEM hItem)
{
    return reinterpret_cast<WPARAM>(hItem);
}

LPARAM ToLParam(const void* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

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

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, nCode, ToLParam(hItem)));
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

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nMask) const
{
    return static_cast<UINT>(SendMessage(TVM_GETITEMSTATE, ToWParam(hItem), static_cast<LPARAM>(nMask)));
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

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, LPARAM lParam)
{
    TVITEM item = ItemWith(TVIF_PARAM, hItem);
    item.lParam = lParam;
    return SetItem(&item);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, RECT* pRect, BOOL bTextOnly) const
{
    std::memcpy(static_cast<void*>(pRect), &hItem, sizeof(hItem));
    return SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(bTextOnly), ToLParam(pRect)) != 0;
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info{pt, TVHT_NOWHERE, nullptr};
    const HTREEITEM hItem = HitTest(&info);
    if (pFlags)
        *pFlags = info.flags;
    return hItem;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pInfo) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_HITTEST, 0, ToLParam(pInfo)));
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM hItem)
{
    return SendMessage(TVM_ENSUREVISIBLE, 0, ToLParam(hItem)) != 0;
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCT* pInsert)
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_INSERTITEM, 0, ToLParam(pInsert)));
}

HTREEITEM CTreeCtrl::InsertItem(LPCSTR pszText, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert{hParent, hInsertAfter, ItemWith(TVIF_TEXT, nullptr)};
    insert.item.pszText = const_cast<LPSTR>(pszText);
    return InsertItem(&insert);
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode)
{
    return SendMessage(TVM_EXPAND, nCode, ToLParam(hItem)) != 0;
}

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode)
{
    return SendMessage(TVM_SELECTITEM, nCode, ToLParam(hItem)) != 0;
}

BOOL CTreeCtrl::SortChildren(HTREEITEM hParent)
{
    return SendMessage(TVM_SORTCHILDREN, 0, ToLParam(hParent)) != 0;
}

BOOL CTreeCtrl::SortChildrenCB(TVSORTCB* pSort)
{
    return SendMessage(TVM_SORTCHILDRENCB, 0, ToLParam(pSort)) != 0;
}

BOOL CTreeCtrl::ArrangeChildren(HTREEITEM hParent, std::span<const HTREEITEM> children, BOOL bByLabel)
{
    const TVARRANGECHILDREN arrange{hParent, children.data(), static_cast<int>(children.size()), bByLabel};
    return SendMessage(TVM_ARRANGECHILDREN, 0, ToLParam(&arrange)) != 0;
}

HWND CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return reinterpret_cast<HWND>(SendMessage(TVM_EDITLABEL, 0, ToLParam(hItem)));
}

HIMAGELIST CTreeCtrl::GetImageList(UINT nImageList) const
{
    return reinterpret_cast<HIMAGELIST>(SendMessage(TVM_GETIMAGELIST, nImageList));
}

HIMAGELIST CTreeCtrl::SetImageList(CImageList* pImageList, UINT nImageList)
{
    const HIMAGELIST hImages = pImageList ? pImageList->GetSafeHandle() : nullptr;
    return reinterpret_cast<HIMAGELIST>(SendMessage(TVM_SETIMAGELIST, nImageList, ToLParam(hImages)));
}
