#include "Toolkit/controls/list/ListCtrl.h"

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID)
{
    return CreateEx(0, WC_LISTVIEW, nullptr, dwStyle, rect, pParent, nID);
}

BOOL CListCtrl::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = WC_LISTVIEW;
    return CWnd::PreCreateWindow(cs);
}

int CListCtrl::GetNextItem(int nItem, UINT nFlags) const
{
    if (!m_hWnd)
        return -1;
    return static_cast<int>(SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(nItem), static_cast<LPARAM>(nFlags)));
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const
{
    return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, static_cast<WPARAM>(nItem), static_cast<LPARAM>(nMask)));
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item{};
    item.state = nState;
    item.stateMask = nMask;
    return SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)) != 0;
}

BOOL CListCtrl::GetItemRect(int nItem, RECT* pRect, int nArea) const
{
    pRect->left = nArea;
    return SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pRect)) != 0;
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info{pt, LVHT_NOWHERE, -1};
    SendMessage(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&info)); // the answer of a failure would be a row
    if (pFlags)
        *pFlags = info.flags;
    return info.iItem;
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK)
{
    return SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(nItem), bPartialOK) != 0;
}

HWND CListCtrl::EditLabel(int nItem)
{
    return reinterpret_cast<HWND>(SendMessage(LVM_EDITLABEL, static_cast<WPARAM>(nItem)));
}

HIMAGELIST CListCtrl::SetImageList(CImageList* pImageList, int nImageList)
{
    const HIMAGELIST hImages = pImageList ? pImageList->GetSafeHandle() : nullptr;
    return reinterpret_cast<HIMAGELIST>(
        SendMessage(LVM_SETIMAGELIST, static_cast<WPARAM>(nImageList), reinterpret_cast<LPARAM>(hImages)));
}
