// Renaming in the tree: the label of an item is edited in place.
#include "Views/clipboard/inside/EditedName.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/tree/ObjectsTree.h"

// Whoever is asked may remove the item: then there is nothing to edit.
void CObjectsTree::OnBeginLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    TVITEM& item = pInfo->item;
    const bool bBegun =
        !m_pEditor->IsPassive() &&
        views::BeginRename(HoldPair(item.hItem), EditorToTell().Get(), this, m_strEdited, item.pszText) &&
        RecordOf(item.hItem);
    *pResult = bBegun ? 0 : -1;
}

// The label shows what the atom is called then, like every other label.
void CObjectsTree::OnEndLabelEdit(TVDISPINFO* pInfo, LRESULT* pResult)
{
    const HELDPAIR pair = HoldPair(pInfo->item.hItem);
    const BOOL bDone = views::EndRename(pair, m_strEdited, pInfo->item.pszText);
    *pResult = bDone ? 0 : -1;
    if (!bDone && pair && pInfo->item.pszText && m_hWnd)
        OnNameRefused(pair.pAtom.Get(), pInfo->item.pszText);
}
