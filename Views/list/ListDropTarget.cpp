#include "Views/list/ListDropTarget.h"

#include "Views/clipboard/Commands.h"
#include "Views/list/ObjectsList.h"

BOOL CListDropTarget::Register(CObjectsList* pList)
{
    m_pList = pList;
    return CAtomDropTarget::Register(pList);
}

INT_PTR CListDropTarget::PlaceAt(CPoint point) const
{
    return m_pList->HitTest(point);
}

// Every row when none is known.
void CListDropTarget::MarkPlace(INT_PTR nPlace, bool bMarked)
{
    m_pList->SetItemState(static_cast<int>(nPlace), bMarked ? LVIS_DROPHILITED : 0, LVIS_DROPHILITED);
}

std::optional<CStubRef<IAtomContainer>> CListDropTarget::ContainerAt(INT_PTR nPlace) const
{
    return nPlace < 0 ? m_pList->ShareContainer() : m_pList->ContainerInRow(static_cast<int>(nPlace));
}

DROPEFFECT CListDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    const auto archive = Offers(pWnd, pDataObject) ? LookAt(pDataObject) : std::nullopt;
    if (!archive || !*archive)
        return DROPEFFECT_NONE;
    const INT_PTR nRow = PlaceAt(point);
    if (nRow < 0)
        return OverEmptySpace(archive->Get(), WantedEffect(dwKeyState));
    if (m_nPlace != nRow)
        MarkPlace(m_nPlace, false);
    return OverPlace(nRow, archive->Get(), WantedEffect(dwKeyState));
}

DROPEFFECT CListDropTarget::OverEmptySpace(IArchive* pArchive, DROPEFFECT effect)
{
    const auto verdict = Check(pArchive, m_pList->ShareContainer().Get(), effect);
    if (!verdict)
        return DROPEFFECT_NONE;
    if (*verdict != PASTE_REFUSED)
        MarkPlace(m_nPlace, false);
    m_nPlace = -1;
    return *verdict != PASTE_REFUSED ? effect : DROPEFFECT_NONE;
}
