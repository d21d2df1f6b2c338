// What the tree does when the editor asks or tells it of atoms. Atoms that come and go are in ObjectsTreeItems.cpp.
#include "Views/host/inside/HeldPair.h"
#include "Views/tree/ObjectsTree.h"
#include "Views/tree/inside/TreeIconSlots.h"

// The tree follows what is opened, not what is selected.
BOOL CObjectsTree::OnAtomEntered(IAtom* pAtom, IAtomContainer*)
{
    SelectAtom(pAtom);
    return TRUE;
}

BOOL CObjectsTree::OnChangeAtom(IAtom* pAtom, IAtomContainer*)
{
    if (!RefreshItem(pAtom))
        return FALSE;
    Invalidate(TRUE);
    UpdateWindow();
    return TRUE;
}

// The control asks for the label again, and whether the item still stands where it belongs before it looks for the
// place of another.
BOOL CObjectsTree::RefreshItem(IAtom* pAtom)
{
    const HTREEITEM hItem = pAtom ? GetItem(pAtom) : nullptr;
    if (!hItem)
        return FALSE;
    m_pIconSlots->GiveUp(hItem);
    SetItemText(hItem, LPSTR_TEXTCALLBACK);
    return TRUE;
}

BOOL CObjectsTree::OnAtomRename(IAtom* pAtom, IAtomContainer*)
{
    const HTREEITEM hItem = pAtom ? nullptr : GetSelectedItem();
    return hItem && EditLabel(hItem) != nullptr;
}

BOOL CObjectsTree::OnGetActivePairs(OBJPAIR* pPairs, DWORD* pCount)
{
    if (!pCount)
        return FALSE;
    if (const HTREEITEM hItem = GetSelectedItem()) {
        *pCount = 1;
        if (!pPairs)
            return FALSE;
        HoldPair(hItem).MoveTo(*pPairs);
    }
    return pPairs != nullptr;
}
