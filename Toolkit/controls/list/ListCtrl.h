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

    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    BOOL SetItemCount(int nItems) { return SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(nItems)) != 0; }
    int GetNextItem(int nItem, UINT nFlags) const;
    int GetSelectedCount() const { return static_cast<int>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    UINT GetItemState(int nItem, UINT nMask) const;
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);     // row -1: all rows
    BOOL GetItemRect(int nItem, RECT* pRect, int nArea) const; // client; FALSE without that row
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;      // client; the row, -1 on none
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL Arrange(UINT nCode) { return SendMessage(LVM_ARRANGE, nCode) != 0; }
    BOOL Update(int nItem) { return SendMessage(LVM_UPDATE, static_cast<WPARAM>(nItem)) != 0; }
    int GetTopIndex() const { return static_cast<int>(SendMessage(LVM_GETTOPINDEX)); }
    HWND EditLabel(int nItem); // the edit field; NULL when the editing was refused
    HWND GetEditControl() const { return reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL)); }
    // Tells where the row being edited is now, -1: gone; see LVM_MOVEEDITLABEL.
    void MoveEditLabel(int nItem) { SendMessage(LVM_MOVEEDITLABEL, static_cast<WPARAM>(nItem)); }
    HIMAGELIST SetImageList(CImageList* pImageList, int nImageList); // borrowed; the former one
};
