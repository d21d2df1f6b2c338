// Renaming in the tree: the label of an item is edited in place.
#include "Toolkit/base/Exception.h"
#include "Views/clipboard/Naming.h"
#include "Views/host/IAEStateHandler.h"
#include "Views/host/ReadName.h"
#include "Views/tree/ObjectsTree.h"

// What is edited is the atom's own name, whatever the label shows in its place or behind it: a name that the user
// leaves as it is stays as it is.
void CObjectsTree::OnBeginLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HTREEITEM hItem = pInfo->item.hItem;
    const HELDPAIR pair = HoldPair(hItem);
    const bool bAllowed = !m_bPassive && pair.pAtom && CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()) &&
                          Notify(&IAEStateHandler::PreRenameAtom, hItem);
    *pResult = -1;
    if (!bAllowed || !RecordOf(hItem)) // whoever was asked may have removed the item
        return;
    try {
        CString strName;
        if (views::ReadName(pair.pAtom.Get(), &IAtom::GetName, strName)) {
            m_strLabel = std::move(strName);
            pInfo->item.pszText = const_cast<LPSTR>(m_strLabel.GetString()); // read, never written
        }
        *pResult = 0;
    } catch (CMemoryException& e) {
        e.ReportError();
    }
}

// The label shows what the atom is called then, like every other label.
void CObjectsTree::OnEndLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HELDPAIR pair = HoldPair(pInfo->item.hItem);
    const bool bRenamed =
        pair.pAtom && pInfo->item.pszText && RenameObject(pair.pAtom.Get(), pair.pContainer.Get(), pInfo->item.pszText);
    *pResult = bRenamed ? 0 : -1;
}
