// Renaming in the tree: the label of an item is edited in place.
#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/IAEStateHandler.h"
#include "Views/tree/ObjectsTree.h"

// Whoever is asked may remove the item: then there is nothing to edit.
void CObjectsTree::OnBeginLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HTREEITEM hItem = pInfo->item.hItem;
    const HELDPAIR pair = HoldPair(hItem);
    *pResult = -1;
    if (m_bPassive || !pair.pAtom || !CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()))
        return;
    if (!Notify(&IAEStateHandler::PreRenameAtom, hItem))
        return;
    try {
        if (const LPSTR pszName = m_editedName.Begin(pair.pAtom.Get()))
            pInfo->item.pszText = pszName;
        *pResult = RecordOf(hItem) ? 0 : -1;
    } catch (CMemoryException& e) {
        e.ReportError();
    }
}

// The label shows what the atom is called then, like every other label.
void CObjectsTree::OnEndLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HELDPAIR pair = HoldPair(pInfo->item.hItem);
    *pResult = m_editedName.End(pair.pAtom.Get(), pair.pContainer.Get(), pInfo->item.pszText) ? 0 : -1;
}
