// The mouse in the list view, beyond selection. What is dropped on it is in ListDropTarget.cpp.
#include "Views/clipboard/inside/Drags.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/list/ObjectsList.h"

// Opens the row under the cursor, in every view.
void CObjectsList::OnDblclk(NMHDR*, LRESULT* pResult)
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    GoToItem(static_cast<UINT>(HitTest(point)));
    *pResult = 0;
}

// Also where a key has asked for it.
void CObjectsList::OnContextMenu(CWnd*, CPoint)
{
    views::EditorLink::ShowMenu();
}

void CObjectsList::OnBeginDrag(NMHDR*, LRESULT* pResult)
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (pEditor)
        views::DragActiveAtoms(pEditor.Get());
    *pResult = pEditor ? 0 : -1;
}

void CObjectsList::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForPress())
        CListCtrl::OnLButtonDown(nFlags, point);
}

void CObjectsList::OnRButtonDown(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForPress())
        CListCtrl::OnRButtonDown(nFlags, point);
}

void CObjectsList::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForDoubleClick())
        CListCtrl::OnLButtonDblClk(nFlags, point);
}

void CObjectsList::OnRButtonDblClk(UINT nFlags, CPoint point)
{
    if (m_pEditor->TakeFocusForDoubleClick())
        CListCtrl::OnRButtonDblClk(nFlags, point);
}
