#include "Views/tree/TreeDropTarget.h"

#include "Views/clipboard/Commands.h"
#include "Views/tree/ObjectsTree.h"

BOOL CTreeDropTarget::Register(CObjectsTree* pTree)
{
    m_pTree = pTree;
    return CAtomDropTarget::Register(pTree);
}

// An item that is gone meanwhile has nothing to lose.
void CTreeDropTarget::ClearHighlight()
{
    m_pTree->SetItemState(m_hDropItem, 0, TVIS_DROPHILITED);
}

void CTreeDropTarget::ForgetPlace()
{
    ClearHighlight();
    m_hDropItem = kNoItem;
}

std::optional<CStubRef<IAtomContainer>> CTreeDropTarget::FindContainer(CPoint point) const
{
    const HTREEITEM hItem = m_pTree->HitTest(point);
    return hItem ? std::optional(m_pTree->ContainerInItem(hItem)) : std::nullopt;
}

DROPEFFECT CTreeDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    if (!Offers(pWnd, pDataObject))
        return DROPEFFECT_NONE;
    const HTREEITEM hItem = m_pTree->HitTest(point);
    if (m_hDropItem != hItem || !hItem)
        ClearHighlight();
    if (hItem)
        return OverItem(hItem, pDataObject, WantedEffect(dwKeyState));
    m_hDropItem = nullptr;
    return DROPEFFECT_NONE;
}

DROPEFFECT CTreeDropTarget::OverItem(HTREEITEM hItem, COleDataObject* pDataObject, DROPEFFECT effect)
{
    const views::DraggedAtoms::Look atoms = LookAt(pDataObject);
    if (!atoms.bMedium)
        return DROPEFFECT_NONE;
    if (!atoms.pArchive) {
        m_hDropItem = hItem;
        return DROPEFFECT_NONE;
    }
    const auto verdict = Check(atoms.pArchive.Get(), m_pTree->ContainerInItem(hItem).Get(), effect);
    if (!verdict)
        return DROPEFFECT_NONE;
    if (*verdict != PASTE_REFUSED && m_hDropItem != hItem)
        m_pTree->SetItemState(hItem, TVIS_DROPHILITED, TVIS_DROPHILITED);
    m_hDropItem = hItem;
    return *verdict == PASTE_ANY ? effect : *verdict;
}
