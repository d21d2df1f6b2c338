#include "Views/tree/TreeDropTarget.h"

#include "Views/clipboard/Commands.h"
#include "Views/tree/ObjectsTree.h"

CTreeDropTarget::CTreeDropTarget() : m_cfAtoms(views::AtomFormat()) {}

BOOL CTreeDropTarget::Register(CObjectsTree* pTree)
{
    m_pTree = pTree;
    return COleDropTarget::Register(pTree);
}

bool CTreeDropTarget::Offers(CWnd* pWnd, COleDataObject* pDataObject) const
{
    return pWnd == m_pTree && pDataObject && pDataObject->IsDataAvailable(m_cfAtoms);
}

// An item that is gone meanwhile has nothing to lose.
void CTreeDropTarget::ClearHighlight()
{
    m_pTree->SetItemState(m_hDropItem, 0, TVIS_DROPHILITED);
}

DROPEFFECT CTreeDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    if (!Offers(pWnd, pDataObject))
        return DROPEFFECT_NONE;
    const HTREEITEM hItem = m_pTree->HitTest(point);
    if (m_hDropItem != hItem || !hItem)
        ClearHighlight();
    if (!hItem) {
        m_hDropItem = nullptr;
        return DROPEFFECT_NONE;
    }
    return OverItem(hItem, pDataObject, dwKeyState & MK_CONTROL ? DROPEFFECT_COPY : DROPEFFECT_MOVE);
}

// The host is asked, and may take the tree away under the drag: nothing here is touched then.
DROPEFFECT CTreeDropTarget::OverItem(HTREEITEM hItem, COleDataObject* pDataObject, DROPEFFECT effect)
{
    const HWND hTree = m_pTree->m_hWnd;
    const views::DraggedAtoms::Look atoms = m_atoms.LookAt(pDataObject, m_cfAtoms);
    if (!atoms.bMedium)
        return DROPEFFECT_NONE;
    if (!atoms.pArchive) {
        m_hDropItem = hItem;
        return DROPEFFECT_NONE;
    }
    const auto pTarget = m_pTree->ContainerInItem(hItem);
    const DWORD dwVerdict = CheckPaste(atoms.pArchive.Get(), pTarget.Get(), effect == DROPEFFECT_MOVE);
    if (!::IsWindow(hTree))
        return DROPEFFECT_NONE;
    if (dwVerdict != PASTE_REFUSED && m_hDropItem != hItem)
        m_pTree->SetItemState(hItem, TVIS_DROPHILITED, TVIS_DROPHILITED);
    m_hDropItem = hItem;
    return dwVerdict == PASTE_ANY ? effect : dwVerdict;
}

BOOL CTreeDropTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    ClearHighlight();
    m_hDropItem = kNoItem;
    if (!Offers(pWnd, pDataObject))
        return FALSE;
    const auto pArchive = m_atoms.TakeFrom(pDataObject, m_cfAtoms);
    const HTREEITEM hItem = pArchive ? m_pTree->HitTest(point) : nullptr;
    if (!hItem)
        return FALSE;
    const auto pTarget = m_pTree->ContainerInItem(hItem);
    return PasteObjects(pArchive.Get(), pTarget.Get(), dropEffect == DROPEFFECT_MOVE);
}

void CTreeDropTarget::OnDragLeave(CWnd*)
{
    m_atoms.Forget();
}

void CTreeDropTarget::Revoke()
{
    m_atoms.Forget();
    COleDropTarget::Revoke();
}
