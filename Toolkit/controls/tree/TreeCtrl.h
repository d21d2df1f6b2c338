// CTreeCtrl: the tree control as an object. Each operation is one message to the control.
#pragma once

#include "Toolkit/controls/tree/TreeView.h"
#include "Toolkit/graphics/ImageList.h"
#include "Toolkit/window/Wnd.h"

#include <span>

class TOOLKIT_API CTreeCtrl : public CWnd
{
public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override; // names the control's class

    // Walks. NULL when there is no such item.
    UINT GetCount() const { return Ask<UINT>(TVM_GETCOUNT); }
    UINT GetVisibleCount() const { return Ask<UINT>(TVM_GETVISIBLECOUNT); }
    // TVGN_*.
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const { return Ask<HTREEITEM>(TVM_GETNEXTITEM, nCode, hItem); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    BOOL ItemHasChildren(HTREEITEM hItem) const; // asks the owner when that is left to it

    // An item's parts.
    BOOL GetItem(TVITEM* pItem) const { return Ask<BOOL>(TVM_GETITEM, 0, pItem); }
    BOOL SetItem(const TVITEM* pItem) { return Ask<BOOL>(TVM_SETITEM, 0, pItem); }
    CString GetItemText(HTREEITEM hItem) const; // cut after 4,095 bytes
    BOOL SetItemText(HTREEITEM hItem, LPCSTR pszText);
    UINT GetItemState(HTREEITEM hItem, UINT nMask) const { return Ask<UINT>(TVM_GETITEMSTATE, hItem, nMask); }
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nMask);
    LPARAM GetItemData(HTREEITEM hItem) const; // 0 for no item

    // Places, in client coordinates.
    BOOL GetItemRect(HTREEITEM hItem, RECT* pRect, BOOL bTextOnly) const; // FALSE inside a collapsed branch
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;           // NULL where no item's row is
    HTREEITEM HitTest(TVHITTESTINFO* pInfo) const { return Ask<HTREEITEM>(TVM_HITTEST, 0, pInfo); }
    // TRUE when it only had to scroll.
    BOOL EnsureVisible(HTREEITEM hItem) { return Ask<BOOL>(TVM_ENSUREVISIBLE, 0, hItem); }

    HTREEITEM InsertItem(TVINSERTSTRUCT* pInsert) { return Ask<HTREEITEM>(TVM_INSERTITEM, 0, pInsert); }
    HTREEITEM InsertItem(LPCSTR pszText, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem) { return Ask<BOOL>(TVM_DELETEITEM, 0, hItem); }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    // TVE_*; FALSE when nothing changed.
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return Ask<BOOL>(TVM_EXPAND, nCode, hItem); }
    // TVGN_CARET or TVGN_FIRSTVISIBLE; FALSE when refused.
    BOOL Select(HTREEITEM hItem, UINT nCode) { return Ask<BOOL>(TVM_SELECTITEM, nCode, hItem); }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SortChildren(HTREEITEM hParent) { return Ask<BOOL>(TVM_SORTCHILDREN, 0, hParent); }
    BOOL SortChildrenCB(TVSORTCB* pSort) { return Ask<BOOL>(TVM_SORTCHILDRENCB, 0, pSort); }
    void SetOrderKey(PFNTVORDERKEY makeKey) { SendMessage(TVM_SETORDERKEY, 0, reinterpret_cast<LPARAM>(makeKey)); }
    // All of them, in their new order; bByLabel: which is known to be that of their labels.
    BOOL ArrangeChildren(HTREEITEM hParent, std::span<const HTREEITEM> children, BOOL bByLabel = FALSE);
    // The edit field; NULL when the editing was refused.
    HWND EditLabel(HTREEITEM hItem) { return Ask<HWND>(TVM_EDITLABEL, 0, hItem); }
    HWND GetEditControl() const { return Ask<HWND>(TVM_GETEDITCONTROL); }

    // Borrowed; the former one.
    HIMAGELIST SetImageList(CImageList* pImageList, UINT nImageList)
    {
        return Ask<HIMAGELIST>(TVM_SETIMAGELIST, nImageList, pImageList ? pImageList->GetSafeHandle() : nullptr);
    }
};
