#include "Views/tree/TreeDropTarget.h"

#include "Views/tree/ObjectsTree.h"

BOOL CTreeDropTarget::Register(CObjectsTree* pTree)
{
    m_pTree = pTree;
    return CAtomDropTarget::Register(pTree);
}

INT_PTR CTreeDropTarget::PlaceAt(CPoint point) const
{
    return reinterpret_cast<INT_PTR>(m_pTree->HitTest(point));
}

// An item that is gone meanwhile has nothing to lose, and -1 is none of any tree.
void CTreeDropTarget::MarkPlace(INT_PTR nPlace, bool bMarked)
{
    m_pTree->SetItemState(reinterpret_cast<HTREEITEM>(nPlace), bMarked ? TVIS_DROPHILITED : 0, TVIS_DROPHILITED);
}

std::optional<CStubRef<IAtomContainer>> CTreeDropTarget::ContainerAt(INT_PTR nPlace) const
{
    return nPlace ? std::optional(m_pTree->ContainerInItem(reinterpret_cast<HTREEITEM>(nPlace))) : std::nullopt;
}

DROPEFFECT CTreeDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    if (!Offers(pWnd, pDataObject))
        return DROPEFFECT_NONE;
    const INT_PTR nItem = PlaceAt(point);
    if (m_nPlace != nItem || !nItem)
        MarkPlace(m_nPlace, false);
    const auto archive = nItem ? LookAt(pDataObject) : CStubRef<IArchive>(); // outside all items nobody looks
    if (archive && *archive)
        return OverPlace(nItem, archive->Get(), WantedEffect(dwKeyState));
    if (archive)
        m_nPlace = nItem;
    return DROPEFFECT_NONE;
}
