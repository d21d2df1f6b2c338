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

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item{};
    item.state = nState;
    item.stateMask = nMask;
    return Ask<BOOL>(LVM_SETITEMSTATE, nItem, &item);
}

BOOL CListCtrl::GetItemRect(int nItem, RECT* pRect, int nArea) const
{
    pRect->left = nArea;
    return Ask<BOOL>(LVM_GETITEMRECT, nItem, pRect);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info{pt, LVHT_NOWHERE, -1};
    Ask<int>(LVM_HITTEST, 0, &info); // the answer of a failure would be a row
    if (pFlags)
        *pFlags = info.flags;
    return info.iItem;
}

int CListCtrl::InsertMarkHitTest(CPoint pt, LVINSERTMARK* pMark) const
{
    *pMark = {sizeof *pMark, 0, -1, 0};
    if (!Ask<BOOL>(LVM_INSERTMARKHITTEST, &pt, pMark))
        return 0;
    return pMark->iItem + (pMark->dwFlags & LVIM_AFTER ? 1 : 0);
}
