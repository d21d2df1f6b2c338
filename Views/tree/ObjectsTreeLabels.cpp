// Renaming in the tree: the label of an item is edited in place.
#include "Views/clipboard/Naming.h"
#include "Views/host/IAEStateHandler.h"
#include "Views/tree/ObjectsTree.h"
#include "Views/tree/TreeLabel.h"

// The mark of a modified atom, which the label has, is no part of the name to begin with.
void CObjectsTree::OnBeginLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HTREEITEM hItem = pInfo->item.hItem;
    const HELDPAIR pair = HoldPair(hItem);
    if (pair.pAtom && pInfo->item.pszText && pair.pAtom->IsModified())
        views::CutMark(pInfo->item.pszText);
    const bool bAllowed = !m_bPassive && pair.pAtom && CanRenameObject(pair.pAtom.Get(), pair.pContainer.Get()) &&
                          Notify(&IAEStateHandler::PreRenameAtom, hItem);
    *pResult = bAllowed && RecordOf(hItem) ? 0 : -1; // whoever was asked may have removed the item
}

// The label shows what the atom is called then, like every other label.
void CObjectsTree::OnEndLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HELDPAIR pair = HoldPair(pInfo->item.hItem);
    const bool bRenamed =
        pair.pAtom && pInfo->item.pszText && RenameObject(pair.pAtom.Get(), pair.pContainer.Get(), pInfo->item.pszText);
    *pResult = bRenamed ? 0 : -1;
}
