// Renaming in the list view: the label of a row is edited in place.
#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/list/ObjectsList.h"

// Whoever is asked may have moved or removed the row: then there is nothing to edit.
void CObjectsList::OnBeginLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    *pResult = -1;
    const HELDPAIR pair = HoldPair(pInfo->item.iItem);
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pair || !pEditor || !CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()))
        return;
    if (!m_bPassive && !Notify(pEditor.Get(), &IAEStateHandler::PreRenameAtom, pair))
        return;
    try {
        if (const LPSTR pszName = m_editedName.Begin(pair.pAtom.Get()))
            pInfo->item.pszText = pszName;
    } catch (CMemoryException& e) {
        e.ReportError();
        return;
    }
    const OBJPAIR* pNow = PairAt(pInfo->item.iItem);
    if (!pNow || pNow->pAtom != pair.pAtom.Get())
        return;
    m_nEdited = pInfo->item.iItem;
    *pResult = 0;
}

// The rows change through what the editor tells of the rename, here as in every other view.
void CObjectsList::OnEndLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    m_nEdited = -1;
    const HELDPAIR pair = HoldPair(pInfo->item.iItem);
    *pResult = m_editedName.End(pair.pAtom.Get(), pair.pContainer.Get(), pInfo->item.pszText) ? 0 : -1;
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
