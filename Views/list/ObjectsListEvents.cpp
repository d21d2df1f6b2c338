// What the list view does when the editor tells it of atoms. Selections that come from the editor are in
// ObjectsListSelection.cpp, OnAtomEntered is in ObjectsList.cpp.
#include "Toolkit/base/Exception.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/inside/EditorLink.h"
#include "Views/host/inside/HeldPair.h"
#include "Views/list/ObjectsList.h"
#include "Views/list/inside/ObjectsListCache.h"
#include "Views/list/inside/Rows.h"
#include "Views/list/inside/UpdateLock.h"

#include <algorithm>

// New atoms come last, whatever the order of the others, unless the host wishes otherwise. They are what the user goes
// on with.
BOOL CObjectsList::OnCreateAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    if (!IsListening() || !pAtom || !IsShown(pContainer) || NoteWhileLoading())
        return TRUE;
    if (m_bPlacesNew)
        ClearSelection(); // while the rows have their numbers
    const int nRow = IsShown(pContainer) ? InsertRow(pAtom) : -1;
    if (nRow < 0)
        return TRUE;
    const UINT nCount = pContainer->GetCount();
    if (!IsShown(pContainer))
        return TRUE;
    SetItemCount(static_cast<int>(nCount));
    const views::UpdateLock lock(this);
    ClearSelection();
    if (IsShown(pContainer))
        SelectRow(m_bPlacesNew ? nRow : GetItemCount() - 1);
    return TRUE;
}

int CObjectsList::InsertRow(IAtom* pAtom)
try {
    const int nRow = m_bPlacesNew ? m_pRows->Place(pAtom) : m_pRows->Append(pAtom);
    if (nRow == m_pRows->GetCount() - 1)
        return nRow;
    ForgetCache();
    Invalidate();
    if (nRow <= m_nEdited)
        MoveLabelEdit(m_nEdited + 1);
    return nRow;
} catch (CMemoryException& e) {
    e.ReportError();
    return -1;
}

BOOL CObjectsList::OnDeleteAtom(IAtom* pAtom, IAtomContainer* pContainer)
{
    if (!IsListening() || !IsShown(pContainer))
        return TRUE;
    if (!pAtom) {
        ReloadContainer(pContainer);
        return TRUE;
    }
    if (NoteWhileLoading())
        return TRUE;
    const int nRow = m_pRows->Find(pAtom);
    if (nRow < 0)
        return TRUE;

    RemoveRow(nRow);
    const UINT nCount = pContainer->GetCount();
    if (!IsShown(pContainer)) // whoever heard of it has had something else shown
        return TRUE;
    SetItemCount(static_cast<int>(nCount));
    ClearSelection();
    if (IsShown(pContainer))
        SelectRow(std::min(nRow, GetItemCount() - 1));
    return TRUE;
}

// True when the members are just being read, and so will be once more.
bool CObjectsList::NoteWhileLoading()
{
    m_bMembersChanged |= m_bLoading;
    return m_bLoading;
}

void CObjectsList::ReloadContainer(IAtomContainer* pContainer)
{
    const auto pHeld = CStubRef<IAtomContainer>::Share(pContainer); // reloading gives up the view's own reference
    const views::UpdateLock lock(this);
    const auto pEditor = m_pEditor->GetEditor();
    OnAtomEntered(pContainer, nullptr);
    if (pEditor && m_hWnd)
        pEditor->NotifyHandlers(this, &IAEStateHandler::OnAtomDeselected, nullptr, pContainer, 0);
}

void CObjectsList::RemoveRow(int nItem)
{
    UncacheRow(nItem);
    m_pCache->Remove(nItem);
    RekeyCache(nItem);
    const CStubRef<IAtom> pRemoved = m_pRows->Remove(nItem); // released when all is in step again
    if (nItem <= m_nEdited)
        MoveLabelEdit(nItem == m_nEdited ? -1 : m_nEdited - 1);
}

// Only a cached row can show what is out of date; others are read when they are next hinted.
BOOL CObjectsList::OnChangeAtom(IAtom* pAtom, IAtomContainer*)
{
    if (!pAtom)
        return TRUE;
    m_pRows->Doubt(pAtom, FindCachedRow(pAtom)); // also when nothing else is done: rows must be found afterwards
    const int nRow = IsListening() ? FindCachedRow(pAtom) : -1;
    if (nRow < 0)
        return TRUE;
    UncacheRow(nRow);
    m_pCache->Remove(nRow);
    Update(nRow); // draws it, which hints it, which reads it
    return TRUE;
}

BOOL CObjectsList::OnAtomRename(IAtom*, IAtomContainer*)
{
    if (!IsListening())
        return FALSE;
    const int nFocused = GetNextItem(-1, LVNI_FOCUSED);
    return nFocused >= 0 && EditLabel(nFocused) != nullptr;
}

BOOL CObjectsList::OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount)
{
    if (!pCount)
        return FALSE;

    // A focused row that is not selected is counted, though never filled in: callers skip empty pairs.
    const int nFocused = GetNextItem(-1, LVNI_FOCUSED);
    const bool bFocusedOnly = nFocused >= 0 && !GetItemState(nFocused, LVIS_SELECTED);
    const DWORD nCount = static_cast<DWORD>(GetSelectedCount()) + (bFocusedOnly ? 1 : 0);
    if (!pairs || *pCount < nCount) {
        *pCount = nCount;
        return FALSE;
    }
    // What a slot gives back may end there, and have more rows selected than there is room for.
    OBJPAIR* const pEnd = pairs + *pCount;
    for (int nRow = -1; pairs != pEnd && (nRow = GetNextItem(nRow, LVNI_SELECTED)) >= 0;) {
        HELDPAIR pair = HoldPair(nRow);
        if (pair)
            pair.MoveTo(*pairs++);
    }
    return TRUE;
}
