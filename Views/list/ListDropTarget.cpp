#include "Views/list/ListDropTarget.h"

#include "Views/clipboard/Commands.h"
#include "Views/list/ObjectsList.h"

CListDropTarget::CListDropTarget() : m_cfAtoms(views::AtomFormat()) {}

BOOL CListDropTarget::Register(CObjectsList* pList)
{
    m_pList = pList;
    return COleDropTarget::Register(pList);
}

bool CListDropTarget::Offers(CWnd* pWnd, COleDataObject* pDataObject) const
{
    return pWnd == m_pList && pDataObject && pDataObject->IsDataAvailable(m_cfAtoms);
}

// Of every row when none is known.
void CListDropTarget::ClearHighlight()
{
    m_pList->SetItemState(m_nDropItem, 0, LVIS_DROPHILITED);
}

DROPEFFECT CListDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    m_dwVerdict = PASTE_REFUSED;
    if (!Offers(pWnd, pDataObject))
        return DROPEFFECT_NONE;
    const DROPEFFECT effect = dwKeyState & MK_CONTROL ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
    const auto pArchive = m_atoms.LookAt(pDataObject, m_cfAtoms).pArchive;
    if (!pArchive)
        return DROPEFFECT_NONE;
    const int nRow = m_pList->HitTest(point);
    return nRow < 0 ? OverEmptySpace(pArchive.Get(), effect) : OverRow(nRow, pArchive.Get(), effect);
}

// The host is asked, and may take the list away under the drag: nothing here is touched then.
DROPEFFECT CListDropTarget::OverEmptySpace(IArchive* pArchive, DROPEFFECT effect)
{
    const HWND hList = m_pList->m_hWnd;
    const auto pContainer = m_pList->ShareContainer();
    const DWORD dwVerdict = CheckPaste(pArchive, pContainer.Get(), effect == DROPEFFECT_MOVE);
    if (!::IsWindow(hList))
        return DROPEFFECT_NONE;
    m_dwVerdict = dwVerdict;
    const bool bAccepted = dwVerdict != PASTE_REFUSED;
    if (bAccepted)
        ClearHighlight();
    m_nDropItem = -1;
    return bAccepted ? effect : DROPEFFECT_NONE;
}

DROPEFFECT CListDropTarget::OverRow(int nRow, IArchive* pArchive, DROPEFFECT effect)
{
    const HWND hList = m_pList->m_hWnd;
    if (m_nDropItem != nRow)
        ClearHighlight();
    const auto pTarget = m_pList->ContainerInRow(nRow);
    const DWORD dwVerdict = CheckPaste(pArchive, pTarget.Get(), effect == DROPEFFECT_MOVE);
    if (!::IsWindow(hList))
        return DROPEFFECT_NONE;
    m_dwVerdict = dwVerdict;
    if (dwVerdict != PASTE_REFUSED && m_nDropItem != nRow)
        m_pList->SetItemState(nRow, LVIS_DROPHILITED, LVIS_DROPHILITED);
    m_nDropItem = nRow;
    return dwVerdict == PASTE_ANY ? effect : dwVerdict;
}

BOOL CListDropTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    ClearHighlight();
    m_nDropItem = -1;
    if (!Offers(pWnd, pDataObject))
        return FALSE;
    const auto pArchive = m_atoms.TakeFrom(pDataObject, m_cfAtoms);
    if (!pArchive)
        return FALSE;
    const int nRow = m_pList->HitTest(point);
    const auto pTarget = nRow < 0 ? m_pList->ShareContainer() : m_pList->ContainerInRow(nRow);
    return PasteObjects(pArchive.Get(), pTarget.Get(), dropEffect == DROPEFFECT_MOVE);
}

void CListDropTarget::OnDragLeave(CWnd*)
{
    m_atoms.Forget();
}

void CListDropTarget::Revoke()
{
    m_atoms.Forget();
    COleDropTarget::Revoke();
}
