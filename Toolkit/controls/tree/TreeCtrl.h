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
    UINT GetCount() const { return static_cast<UINT>(SendMessage(TVM_GETCOUNT)); }
    UINT GetVisibleCount() const { return static_cast<UINT>(SendMessage(TVM_GETVISIBLECOUNT)); }
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const; // TVGN_*
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
    BOOL GetItem(TVITEM* pItem) const { return SendMessage(TVM_GETITEM, 0, reinterpret_cast<LPARAM>(pItem)) != 0; }
    BOOL SetItem(const TVITEM* pItem) { return SendMessage(TVM_SETITEM, 0, reinterpret_cast<LPARAM>(pItem)) != 0; }
    CString GetItemText(HTREEITEM hItem) const; // cut after 4,095 bytes
    BOOL SetItemText(HTREEITEM hItem, LPCSTR pszText);
    UINT GetItemState(HTREEITEM hItem, UINT nMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nMask);
    LPARAM GetItemData(HTREEITEM hItem) const; // 0 for no item
    BOOL SetItemData(HTREEITEM hItem, LPARAM lParam);

    // Places, in client coordinates.
    BOOL GetItemRect(HTREEITEM hItem, RECT* pRect, BOOL bTextOnly) const; // FALSE inside a collapsed branch
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;           // NULL where no item's row is
    HTREEITEM HitTest(TVHITTESTINFO* pInfo) const;
    BOOL EnsureVisible(HTREEITEM hItem); // TRUE when it only had to scroll

    HTREEITEM InsertItem(TVINSERTSTRUCT* pInsert);
    HTREEITEM InsertItem(LPCSTR pszText, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem) { return SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(hItem)) != 0; }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL Expand(HTREEITEM hItem, UINT nCode);                              // TVE_*; FALSE when nothing changed
    BOOL Select(HTREEITEM hItem, UINT nCode);                              // TVGN_CARET or TVGN_FIRSTVISIBLE
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); } // FALSE when refused
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    BOOL SortChildren(HTREEITEM hParent);
    BOOL SortChildrenCB(TVSORTCB* pSort);
    // All of them, in their new order; bByLabel: which is known to be that of their labels.
    BOOL ArrangeChildren(HTREEITEM hParent, std::span<const HTREEITEM> children, BOOL bByLabel = FALSE);
    HWND EditLabel(HTREEITEM hItem); // the edit field; NULL when the editing was refused
    HWND GetEditControl() const { return reinterpret_cast<HWND>(SendMessage(TVM_GETEDITCONTROL)); }

    HIMAGELIST GetImageList(UINT nImageList = TVSIL_NORMAL) const;
    HIMAGELIST SetImageList(CImageList* pImageList, UINT nImageList); // borrowed; the former one
};
