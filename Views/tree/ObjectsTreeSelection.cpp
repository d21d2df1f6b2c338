// Selection and focus: what the tree asks and tells the editor of them.
#include "Views/host/FocusBlock.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/OfferSave.h"
#include "Views/tree/ObjectsTree.h"

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
BOOL CObjectsTree::Notify(AEStateOperation operation, HTREEITEM hItem)
{
    if (m_bClosing)
        return TRUE;
    const HELDPAIR pair = HoldPair(hItem);
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pair.pAtom || !pEditor)
        return TRUE;
    return pEditor->NotifyHandlers(this, operation, pair.pAtom.Get(), pair.pContainer.Get(), 0);
}

void CObjectsTree::OnSelChanging(NMTREEVIEW* pChange, LRESULT* pResult)
{
    m_bFocusFromSelChange = !m_bHasFocus;
    if (IsWithin(pChange->itemNew.hItem, pChange->itemOld.hItem))
        m_iconSlots.ItemsHidden(); // it may have been collapsed: that is told only when this has been told
    if (!m_bPassive && !MayChangeSelection(*pChange)) {
        m_bFocusFromSelChange = FALSE; // there is no change that the focus could come with
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
    TakeFocus();
    if (!Notify(&IAEStateHandler::OnAtomDeselecting, change.itemOld.hItem))
        return false;
    TakeFocus();
    return Notify(&IAEStateHandler::OnAtomSelecting, hNew) && (!hNew || IsItem(hNew));
}

BOOL CObjectsTree::OnSelChanged(NMTREEVIEW* pChange, LRESULT* pResult)
{
    if (!m_bPassive)
        Notify(&IAEStateHandler::OnAtomDeselected, pChange->itemOld.hItem);
    GoOnSelected(pChange->itemNew.hItem);
    m_bFocusFromSelChange = FALSE; // the change is over; a refused focus may have left it set
    *pResult = 0;
    return FALSE; // the parent window hears of it, too
}

// Whoever is told may select something else, which is then told and shown in its own turn: nothing more is said of
// this item.
void CObjectsTree::GoOnSelected(HTREEITEM hItem)
{
    if (!m_bPassive) {
        for (const auto operation : {&IAEStateHandler::OnAtomEntered, &IAEStateHandler::OnAtomSelected}) {
            if (GetSelectedItem() != hItem)
                return;
            Notify(operation, hItem);
        }
    }
    if (GetSelectedItem() == hItem)
        SetBoldRoot(hItem, TRUE);
}

void CObjectsTree::OnSetFocus(CWnd* pOldWnd)
{
    m_bFocusLost = false;
    const FocusBlock block;
    if (!FocusBlock::IsInFocusBlock()) {
        if (!m_bPassive && !WelcomesFocus(pOldWnd))
            return;
        m_bFocusFromSelChange = FALSE;
        m_bHasFocus = !m_bFocusLost; // whoever was asked may have moved it on
    }
    CTreeCtrl::OnSetFocus(pOldWnd);
}

// False when it was refused, and given back. A selection that nobody accepts is no reason to refuse when there is no
// window to give it back to.
bool CObjectsTree::WelcomesFocus(CWnd* pOldWnd)
{
    const HWND hOldWnd = pOldWnd ? pOldWnd->m_hWnd : nullptr;
    const BOOL bFromSelChange = m_bFocusFromSelChange;
    if (views::OfferSave() && (AnnounceSelection() || !hOldWnd))
        return true;
    if (hOldWnd)
        ::SetFocus(hOldWnd);
    Invalidate();                           // where nobody could take the focus back it is here, and shows
    m_bFocusFromSelChange = bFromSelChange; // the focus never was here, whatever losing it has done
    return false;
}

// The view that has the focus is the one whose selection counts. Nothing to tell when the focus comes with a change of
// the selection. False: someone refused.
bool CObjectsTree::AnnounceSelection()
{
    const HTREEITEM hItem = m_bFocusFromSelChange ? nullptr : GetSelectedItem();
    if (!Notify(&IAEStateHandler::OnAtomSelecting, hItem))
        return false;
    Notify(&IAEStateHandler::OnAtomSelected, hItem);
    return true;
}

void CObjectsTree::OnKillFocus(CWnd* pNewWnd)
{
    CTreeCtrl::OnKillFocus(pNewWnd);
    m_bFocusLost = true;
    m_bHasFocus = FALSE;
    m_bFocusFromSelChange = FALSE;
}
