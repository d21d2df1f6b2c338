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
    return TakesBetweenRows() ? -1 : m_pList->HitTest(point);
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
    if (nRow < 0) {
        const DROPEFFECT effect = OverEmptySpace(archive->Get(), WantedEffect(dwKeyState));
        if (TakesBetweenRows())
            MarkGap(point, effect != DROPEFFECT_NONE);
        return effect;
    }
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

int CListDropTarget::GapAt(CPoint point) const
{
    LVINSERTMARK mark;
    return m_pList->InsertMarkHitTest(point, &mark);
}

void CListDropTarget::MarkGap(CPoint point, bool bOn)
{
    if (!bOn && !m_bGapMarked)
        return;
    LVINSERTMARK mark{sizeof mark, 0, -1, 0};
    if (bOn)
        m_pList->InsertMarkHitTest(point, &mark);
    m_bGapMarked = bOn;
    m_pList->SetInsertMark(&mark);
}

void CListDropTarget::OnDragLeave(CWnd* pWnd)
{
    MarkGap({}, false);
    CAtomDropTarget::OnDragLeave(pWnd);
}

BOOL CListDropTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    MarkGap({}, false);
    return CAtomDropTarget::OnDrop(pWnd, pDataObject, dropEffect, point);
}
