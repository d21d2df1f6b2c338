// Selection and focus: what the tree asks and tells the editor of them.
#include "Views/host/FocusBlock.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/tree/ObjectsTree.h"
#include "Views/tree/inside/TreeIconSlots.h"

// Nothing is sent for the item that is selected already: an announcement of the tree's own that comes back ends here.
BOOL CObjectsTree::SelectAtom(IAtom* pAtom)
{
    const HTREEITEM hItem = pAtom ? GetItem(pAtom) : nullptr;
    if (!hItem)
        return FALSE;
    return hItem == GetSelectedItem() || SelectItem(hItem);
}

BOOL CObjectsTree::GetSelectedAtom(void** ppOut, DWORD dwInterfaceId)
{
    if (!ppOut)
        return FALSE;
    *ppOut = nullptr;
    const HELDPAIR pair = HoldPair(GetSelectedItem());
    if (pair.pAtom)
        static_cast<CStubBaseInterface*>(pair.pAtom.Get())->GetInterface(dwInterfaceId, ppOut);
    return *ppOut != nullptr;
}

// A tree that has taken its leave of the editor asks and tells nothing: as its items go, the selection wanders over
// those that are left, and is no news to anyone.
CStubRef<IAtomEditor> CObjectsTree::EditorToTell() const
{
    return m_bClosing ? nullptr : m_pEditor->GetEditor();
}

BOOL CObjectsTree::Notify(AEStateOperation operation, HTREEITEM hItem)
{
    const HELDPAIR pair = HoldPair(hItem);
    return !pair || pair.Notify(EditorToTell().Get(), this, operation);
}

void CObjectsTree::OnSelChanging(NMTREEVIEW* pChange, LRESULT* pResult)
{
    m_pEditor->NoteSelChange();
    if (IsWithin(pChange->itemNew.hItem, pChange->itemOld.hItem))
        m_pIconSlots->ItemsHidden(); // it may have been collapsed: that is told only when this has been told
    if (!m_pEditor->IsPassive() && !MayChangeSelection(*pChange)) {
        m_pEditor->EndSelChange(); // there is no change that the focus could come with
        *pResult = -1;
        return;
    }
    // Whoever was asked may have selected another item than the outgoing one, the incoming one even.
    if (const HTREEITEM hSelected = GetSelectedItem(); hSelected != pChange->itemNew.hItem)
        SetBoldRoot(hSelected, FALSE);
    *pResult = 0;
}

// Whoever is asked may move the focus, so it is taken twice; and may remove the incoming item.
bool CObjectsTree::MayChangeSelection(const NMTREEVIEW& change)
{
    const HTREEITEM hNew = change.itemNew.hItem;
    m_pEditor->TakeFocus();
    if (!Notify(&IAEStateHandler::OnAtomDeselecting, change.itemOld.hItem))
        return false;
    m_pEditor->TakeFocus();
    return Notify(&IAEStateHandler::OnAtomSelecting, hNew) && (!hNew || IsItem(hNew));
}

BOOL CObjectsTree::OnSelChanged(NMTREEVIEW* pChange, LRESULT* pResult)
{
    Notify(&IAEStateHandler::OnAtomDeselected, pChange->itemOld.hItem);
    GoOnSelected(pChange->itemNew.hItem);
    m_pEditor->EndSelChange(); // the change is over; a refused focus may have left it set
    *pResult = 0;
    return FALSE; // the parent window hears of it, too
}

// Whoever is told may select something else, which is then told and shown in its own turn: nothing more is said of
// this item.
void CObjectsTree::GoOnSelected(HTREEITEM hItem)
{
    for (const auto operation : {&IAEStateHandler::OnAtomEntered, &IAEStateHandler::OnAtomSelected}) {
        if (GetSelectedItem() != hItem)
            return;
        Notify(operation, hItem);
    }
    if (GetSelectedItem() == hItem)
        SetBoldRoot(hItem, TRUE);
}

void CObjectsTree::OnSetFocus(CWnd* pOldWnd)
{
    const FocusBlock block;
    if (m_pEditor->GainFocus(pOldWnd, [this] { return AnnounceSelection(); }))
        CTreeCtrl::OnSetFocus(pOldWnd);
}

// False: someone refused.
bool CObjectsTree::AnnounceSelection()
{
    const HTREEITEM hItem = m_pEditor->IsFocusFromSelChange() ? nullptr : GetSelectedItem();
    if (!Notify(&IAEStateHandler::OnAtomSelecting, hItem))
        return false;
    Notify(&IAEStateHandler::OnAtomSelected, hItem);
    return true;
}

void CObjectsTree::OnKillFocus(CWnd* pNewWnd)
{
    CTreeCtrl::OnKillFocus(pNewWnd);
    m_pEditor->LoseFocus();
}
