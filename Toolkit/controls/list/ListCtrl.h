// CListCtrl: the list control as an object. Each operation is one message to the control. Without a window each answers
// what means none: 0, FALSE or NULL, and -1 where a row is asked for.
#pragma once

#include "Toolkit/controls/list/ListView.h"
#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/window/Wnd.h"

class TOOLKIT_API CListCtrl : public CWnd
{
public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override; // names the control's class

    int GetItemCount() const { return Ask<int>(LVM_GETITEMCOUNT); }
    BOOL SetItemCount(int nItems) { return Ask<BOOL>(LVM_SETITEMCOUNT, nItems); }
    int GetNextItem(int nItem, UINT nFlags) const { return m_hWnd ? Ask<int>(LVM_GETNEXTITEM, nItem, nFlags) : -1; }
    int GetSelectedCount() const { return Ask<int>(LVM_GETSELECTEDCOUNT); }
    UINT GetItemState(int nItem, UINT nMask) const { return Ask<UINT>(LVM_GETITEMSTATE, nItem, nMask); }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);     // row -1: all rows
    BOOL GetItemRect(int nItem, RECT* pRect, int nArea) const; // client; FALSE without that row
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;      // client; the row, -1 on none
    // Between rows; see LVM_SETINSERTMARK. The number of the row that would stand behind it, with its mark: the one
    // nearest to the point.
    BOOL SetInsertMark(const LVINSERTMARK* pMark) { return Ask<BOOL>(LVM_SETINSERTMARK, 0, pMark); }
    int InsertMarkHitTest(CPoint pt, LVINSERTMARK* pMark) const;
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) { return Ask<BOOL>(LVM_ENSUREVISIBLE, nItem, bPartialOK); }
    BOOL Arrange(UINT nCode) { return Ask<BOOL>(LVM_ARRANGE, nCode); }
    BOOL Update(int nItem) { return Ask<BOOL>(LVM_UPDATE, nItem); }
    int GetTopIndex() const { return Ask<int>(LVM_GETTOPINDEX); }
    // The edit field; NULL when the editing was refused.
    HWND EditLabel(int nItem) { return Ask<HWND>(LVM_EDITLABEL, nItem); }
    HWND GetEditControl() const { return Ask<HWND>(LVM_GETEDITCONTROL); }
    // Tells where the row being edited is now, -1: gone; see LVM_MOVEEDITLABEL.
    void MoveEditLabel(int nItem) { Ask<BOOL>(LVM_MOVEEDITLABEL, nItem); }
    void SetTypeAhead(BOOL bOn) { SendMessage(LVM_SETTYPEAHEAD, static_cast<WPARAM>(bOn)); }
    // Borrowed; the former one.
    HIMAGELIST SetImageList(CImageList* pImageList, int nImageList)
    {
        return Ask<HIMAGELIST>(LVM_SETIMAGELIST, nImageList, pImageList ? pImageList->GetSafeHandle() : nullptr);
    }
};
