// Renaming in the list view: the label of a row is edited in place.
#include "Views/clipboard/inside/EditedName.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/list/ObjectsList.h"

// Whoever is asked may have moved or removed the row: then there is nothing to edit.
void CObjectsList::OnBeginLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    *pResult = -1;
    const int nItem = pInfo->item.iItem;
    const HELDPAIR pair = HoldPair(nItem);
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor || !views::BeginRename(pair, m_pEditor->GetEditor().Get(), this, m_strEdited, pInfo->item.pszText))
        return;
    const OBJPAIR* const pNow = PairAt(nItem);
    if (!pNow || pNow->pAtom != pair.pAtom.Get())
        return;
    m_nEdited = nItem;
    *pResult = 0;
}

// The rows change through what the editor tells of the rename, here as in every other view.
void CObjectsList::OnEndLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    m_nEdited = -1;
    const HELDPAIR pair = HoldPair(pInfo->item.iItem);
    const BOOL bDone = views::EndRename(pair, m_strEdited, pInfo->item.pszText);
    *pResult = bDone ? 0 : -1;
    if (!bDone && pair && pInfo->item.pszText && m_hWnd)
        OnNameRefused(pair.pAtom.Get(), pInfo->item.pszText);
}

// The control knows rows by their numbers alone: it is told where the edited one is, so that the name that is being
// typed goes to the atom that it was meant for.
void CObjectsList::MoveLabelEdit(int nItem)
{
    if (m_nEdited < 0)
        return;
    m_nEdited = nItem;
    MoveEditLabel(nItem);
}
