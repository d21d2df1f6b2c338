#include "Views/list/ListDropTarget.h"

#include "Views/clipboard/Commands.h"
#include "Views/list/ObjectsList.h"

BOOL CListDropTarget::Register(CObjectsList* pList)
{
    m_pList = pList;
    return CAtomDropTarget::Register(pList);
}

// Of every row when none is known.
void CListDropTarget::ClearHighlight()
{
    m_pList->SetItemState(m_nDropItem, 0, LVIS_DROPHILITED);
}

void CListDropTarget::ForgetPlace()
{
    ClearHighlight();
    m_nDropItem = -1;
}

std::optional<CStubRef<IAtomContainer>> CListDropTarget::FindContainer(CPoint point) const
{
    const int nRow = m_pList->HitTest(point);
    return nRow < 0 ? m_pList->ShareContainer() : m_pList->ContainerInRow(nRow);
}

DROPEFFECT CListDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    const auto pArchive = Offers(pWnd, pDataObject) ? LookAt(pDataObject).pArchive : nullptr;
    if (!pArchive)
        return DROPEFFECT_NONE;
    const DROPEFFECT effect = WantedEffect(dwKeyState);
    const int nRow = m_pList->HitTest(point);
    return nRow < 0 ? OverEmptySpace(pArchive.Get(), effect) : OverRow(nRow, pArchive.Get(), effect);
}

DROPEFFECT CListDropTarget::OverEmptySpace(IArchive* pArchive, DROPEFFECT effect)
{
    const auto verdict = Check(pArchive, m_pList->ShareContainer().Get(), effect);
    if (!verdict)
        return DROPEFFECT_NONE;
    if (*verdict != PASTE_REFUSED)
        ClearHighlight();
    m_nDropItem = -1;
    return *verdict != PASTE_REFUSED ? effect : DROPEFFECT_NONE;
}

DROPEFFECT CListDropTarget::OverRow(int nRow, IArchive* pArchive, DROPEFFECT effect)
{
    if (m_nDropItem != nRow)
        ClearHighlight();
    const auto verdict = Check(pArchive, m_pList->ContainerInRow(nRow).Get(), effect);
    if (!verdict)
        return DROPEFFECT_NONE;
    if (*verdict != PASTE_REFUSED && m_nDropItem != nRow)
        m_pList->SetItemState(nRow, LVIS_DROPHILITED, LVIS_DROPHILITED);
    m_nDropItem = nRow;
    return *verdict == PASTE_ANY ? effect : *verdict;
}
