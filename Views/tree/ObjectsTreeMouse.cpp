// The mouse in the tree, beyond selection. What is dropped on it is in TreeDropTarget.cpp.
#include "Views/clipboard/inside/Drags.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/tree/ObjectsTree.h"

// Also where a key has asked for it.
void CObjectsTree::OnContextMenu(CWnd*, CPoint)
{
    if (!m_pEditor->IsPassive())
        views::EditorLink::ShowMenu();
}

// The item under the cursor is selected first, so that its atom is the one that the editor drags.
void CObjectsTree::OnBeginDrag(NMTREEVIEW*, LRESULT* pResult)
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    *pResult = pEditor ? 0 : -1;
    if (!pEditor)
        return;
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    const HTREEITEM hItem = HitTest(point);
    if (hItem && SelectItem(hItem))
        views::DragActiveAtoms(pEditor.Get());
}

void CObjectsTree::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForPress())
        CTreeCtrl::OnLButtonDown(nFlags, point);
}

void CObjectsTree::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForDoubleClick())
        CTreeCtrl::OnLButtonDblClk(nFlags, point);
}

void CObjectsTree::OnRButtonDblClk(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForDoubleClick())
        CTreeCtrl::OnRButtonDblClk(nFlags, point);
}

// A tree that has the focus selects what the button is pressed on; the control is not asked.
void CObjectsTree::OnRButtonDown(UINT nFlags, CPoint point)
{
    const bool bFocused = m_pEditor->HasFocus();
    if (!m_pEditor->TakeFocusForPress())
        return;
    if (!bFocused)
        return CTreeCtrl::OnRButtonDown(nFlags, point);
    UINT nPart = 0;
    const HTREEITEM hItem = HitTest(point, &nPart);
    if (!hItem || !(nPart & TVHT_ONITEM))
        return;
    SetFocus();
    SelectItem(hItem);
}
