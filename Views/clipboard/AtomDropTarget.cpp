#include "Views/clipboard/AtomDropTarget.h"

#include "Views/clipboard/Commands.h"

CAtomDropTarget::CAtomDropTarget() : m_cfAtoms(views::AtomFormat()) {}

BOOL CAtomDropTarget::Register(CWnd* pView)
{
    m_pView = pView;
    return COleDropTarget::Register(pView);
}

void CAtomDropTarget::Revoke()
{
    m_atoms.Forget();
    COleDropTarget::Revoke();
}

DROPEFFECT CAtomDropTarget::WantedEffect(DWORD dwKeyState)
{
    return dwKeyState & MK_CONTROL ? DROPEFFECT_COPY : DROPEFFECT_MOVE;
}

bool CAtomDropTarget::Offers(CWnd* pWnd, COleDataObject* pDataObject) const
{
    return m_pView && pWnd == m_pView && pDataObject && pDataObject->IsDataAvailable(m_cfAtoms);
}

std::optional<DWORD> CAtomDropTarget::Check(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect)
{
    const HWND hView = m_pView->m_hWnd;
    const DWORD dwVerdict = CheckPaste(pArchive, pContainer, effect == DROPEFFECT_MOVE);
    if (!::IsWindow(hView))
        return std::nullopt;
    m_dwVerdict = dwVerdict;
    return dwVerdict;
}

BOOL CAtomDropTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    if (!m_pView)
        return FALSE;
    ForgetPlace();
    if (!Offers(pWnd, pDataObject))
        return FALSE;
    const auto pArchive = m_atoms.TakeFrom(pDataObject, m_cfAtoms);
    const auto container = pArchive ? FindContainer(point) : std::nullopt;
    return container && PasteObjects(pArchive.Get(), container->Get(), dropEffect == DROPEFFECT_MOVE);
}

void CAtomDropTarget::OnDragLeave(CWnd*)
{
    m_atoms.Forget();
}
