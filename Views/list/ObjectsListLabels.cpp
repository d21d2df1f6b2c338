// Renaming in the list view: the label of a row is edited in place.
#include "Views/clipboard/Naming.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/ReadName.h"
#include "Views/host/Services.h"
#include "Views/list/ObjectsList.h"

// Whoever is asked may have moved or removed the row: then there is nothing to edit. What is edited is the atom's own
// name, whatever the label shows in its place: a name that the user leaves as it is stays as it is.
void CObjectsList::OnBeginLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    *pResult = -1;
    const HELDPAIR pair = HoldPair(pInfo->item.iItem);
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pair || !pEditor || !CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()))
        return;
    if (!m_bPassive && !Notify(pEditor.Get(), &IAEStateHandler::PreRenameAtom, pair))
        return;
    const OBJPAIR* pNow = PairAt(pInfo->item.iItem);
    if (!pNow || pNow->pAtom != pair.pAtom.Get())
        return;
    try {
        if (views::ReadName(pair.pAtom.Get(), &IAtom::GetName, m_strEdited))
            pInfo->item.pszText = const_cast<LPSTR>(m_strEdited.GetString()); // read, never written
    } catch (CMemoryException& e) {
        e.ReportError();
        return;
    }
    m_nEdited = pInfo->item.iItem;
    *pResult = 0;
}

// The rows change through what the editor tells of the rename, here as in every other view.
void CObjectsList::OnEndLabelEdit(NMLVDISPINFO* pInfo, LRESULT* pResult)
{
    m_nEdited = -1;
    *pResult = -1;
    const HELDPAIR pair = HoldPair(pInfo->item.iItem);
    if (!pair || !pInfo->item.pszText)
        return;
    if (RenameObject(pair.pAtom.Get(), pair.pContainer.Get(), pInfo->item.pszText))
        *pResult = 0;
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
