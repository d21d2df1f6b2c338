// Selection and focus: what the list view tells the editor of them, and what it takes from it.
#include "Views/host/FocusBlock.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/inside/Rows.h"
#include "Views/list/inside/UpdateLock.h"

namespace
{

// Has a view ignore the editor for as long as it lives. Afterwards the view reacts again, also when it did not before:
// an inner pause ends the outer one.
class SyncPause
{
public:
    explicit SyncPause(BOOL& bSync) : m_bSync(bSync) { m_bSync = FALSE; }
    ~SyncPause() { m_bSync = TRUE; }
    SyncPause(const SyncPause&) = delete;
    SyncPause& operator=(const SyncPause&) = delete;

private:
    BOOL& m_bSync;
};

bool Gains(const NMLISTVIEW& change, UINT nState)
{
    return (change.uNewState & nState) && !(change.uOldState & nState);
}

bool Loses(const NMLISTVIEW& change, UINT nState)
{
    return !(change.uNewState & nState) && (change.uOldState & nState);
}

} // namespace

// Every change of a row is asked for, also one that mirrors another view.
void CObjectsList::OnItemChanging(NMLISTVIEW* pChange, LRESULT* pResult)
{
    *pResult = 0;
    if (!IsWindowVisible() || !(pChange->uChanged & LVIF_STATE) || pChange->iItem == -1)
        return;

    m_pEditor->NoteSelChange();
    const HELDPAIR pair = HoldPair(pChange->iItem);
    const auto pEditor = m_pEditor->GetEditor();
    if (!pair || !pEditor)
        return;

    const SyncPause pause(m_bSync);
    BOOL bAllowed = TRUE;
    if (Gains(*pChange, LVIS_SELECTED))
        bAllowed = pair.Notify(pEditor.Get(), this, &IAEStateHandler::OnAtomSelecting);
    else if (Loses(*pChange, LVIS_SELECTED))
        bAllowed = pair.Notify(pEditor.Get(), this, &IAEStateHandler::OnAtomDeselecting);
    *pResult = !bAllowed;
}

void CObjectsList::OnItemChanged(NMLISTVIEW* pChange, LRESULT* pResult)
{
    *pResult = 0;
    if (!m_bSync || !IsWindowVisible() || !(pChange->uChanged & LVIF_STATE))
        return;
    const bool bSelected = Gains(*pChange, LVIS_SELECTED);
    const auto pEditor = m_pEditor->GetEditor();
    if (!pEditor || (!bSelected && !Loses(*pChange, LVIS_SELECTED)))
        return;

    const auto operation = bSelected ? &IAEStateHandler::OnAtomSelected : &IAEStateHandler::OnAtomDeselected;
    if (pChange->iItem == -1) {
        const auto pContainer = CStubRef<IAtomContainer>::Share(m_pContainer.Get());
        pEditor->NotifyHandlers(this, operation, nullptr, pContainer.Get(), 0);
        return;
    }
    const HELDPAIR pair = HoldPair(pChange->iItem);
    if (!pair)
        return;
    const SyncPause pause(m_bSync);
    if (m_pEditor->HasFocus()) // else the change mirrors another view's, which has told everyone
        pair.Notify(pEditor.Get(), this, operation);
}

BOOL CObjectsList::OnAtomSelected(IAtom* pAtom, IAtomContainer* pContainer)
{
    MirrorSelection(pAtom, pContainer, true);
    return TRUE;
}

BOOL CObjectsList::OnAtomDeselected(IAtom* pAtom, IAtomContainer* pContainer)
{
    MirrorSelection(pAtom, pContainer, false);
    return TRUE;
}

void CObjectsList::MirrorSelection(IAtom* pAtom, IAtomContainer* pContainer, bool bSelected)
{
    if (!IsListening())
        return;
    const SyncPause pause(m_bSync);
    if (!pAtom) {
        if (pContainer)
            SetAllSelected(bSelected);
        return;
    }
    const int nRow = IsShown(pContainer) ? m_pRows->Find(pAtom) : -1;
    if (nRow < 0)
        return;
    if (bSelected)
        SetItemState(nRow, LVIS_SELECTED, LVIS_SELECTED);
    else
        SetItemState(nRow, 0, LVIS_SELECTED | LVIS_FOCUSED);
    EnsureVisible(nRow, FALSE);
}

// All rows, whatever container was named.
void CObjectsList::SetAllSelected(bool bSelected)
{
    const views::UpdateLock lock(AfxGetMainWnd());
    if (bSelected) {
        for (int i = 0; i < GetItemCount(); ++i)
            SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    } else {
        for (int i = -1; (i = GetNextItem(i, LVNI_SELECTED)) >= 0;)
            SetItemState(i, 0, LVIS_SELECTED);
    }
}

// Neither selection nor focus is left, but for rows whose deselection was vetoed.
void CObjectsList::ClearSelection()
{
    int nKept = -1;
    for (int i; (i = GetNextItem(nKept, LVNI_SELECTED)) >= 0;) {
        SetItemState(i, 0, LVIS_SELECTED);
        if (GetItemState(i, LVIS_SELECTED))
            nKept = i;
    }
    const int nFocused = GetNextItem(-1, LVNI_FOCUSED);
    if (nFocused >= 0)
        SetItemState(nFocused, 0, LVIS_FOCUSED);
}

void CObjectsList::SelectRow(int nItem)
{
    if (nItem >= 0)
        SetItemState(nItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void CObjectsList::OnSetFocus(CWnd* pOldWnd)
{
    const FocusBlock block;
    if (FocusBlock::IsInFocusBlock())
        PostButtonUp();
    const auto announce = [this] {
        if (!m_pEditor->IsFocusLost())
            AnnounceSelection();
        return true; // no answer to it counts
    };
    if (m_pEditor->GainFocus(pOldWnd, announce))
        CListCtrl::OnSetFocus(pOldWnd);
}

void CObjectsList::AnnounceSelection()
{
    for (int i = -1; !m_pEditor->IsFocusFromSelChange() && (i = GetNextItem(i, LVNI_SELECTED)) >= 0;) {
        const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
        const HELDPAIR pair = HoldPair(i);
        if (!pEditor || !pair)
            continue;
        pair.Notify(pEditor.Get(), this, &IAEStateHandler::OnAtomSelecting);
        pair.Notify(pEditor.Get(), this, &IAEStateHandler::OnAtomSelected);
    }
}

void CObjectsList::OnKillFocus(CWnd* pNewWnd)
{
    CListCtrl::OnKillFocus(pNewWnd);
    m_pEditor->LoseFocus();
    PostButtonUp();
}

// Ends a press that the focus change has cut short: its release may go to another window.
void CObjectsList::PostButtonUp()
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}
