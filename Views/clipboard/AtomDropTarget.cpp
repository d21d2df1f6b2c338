#include "Views/clipboard/AtomDropTarget.h"

#include "Views/clipboard/Commands.h"
#include "Views/clipboard/inside/Drags.h"

CAtomDropTarget::CAtomDropTarget() : m_cfAtoms(views::AtomFormat()), m_pAtoms(std::make_unique<views::DraggedAtoms>())
{}

CAtomDropTarget::~CAtomDropTarget() = default;

BOOL CAtomDropTarget::Register(CWnd* pView)
{
    m_pView = pView;
    return COleDropTarget::Register(pView);
}

void CAtomDropTarget::Revoke()
{
    m_pAtoms->Forget();
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

std::optional<CStubRef<IArchive>> CAtomDropTarget::LookAt(COleDataObject* pDataObject)
{
    return m_pAtoms->LookAt(pDataObject, m_cfAtoms);
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

DROPEFFECT CAtomDropTarget::OverPlace(INT_PTR nPlace, IArchive* pArchive, DROPEFFECT effect)
{
    const auto verdict = Check(pArchive, ContainerAt(nPlace)->Get(), effect);
    if (!verdict)
        return DROPEFFECT_NONE;
    if (*verdict != PASTE_REFUSED && m_nPlace != nPlace)
        MarkPlace(nPlace, true);
    m_nPlace = nPlace;
    return *verdict == PASTE_ANY ? effect : *verdict;
}

void CAtomDropTarget::ForgetPlace()
{
    MarkPlace(std::exchange(m_nPlace, -1), false);
}

BOOL CAtomDropTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    if (!m_pView)
        return FALSE;
    ForgetPlace();
    if (!Offers(pWnd, pDataObject))
        return FALSE;
    const auto pArchive = m_pAtoms->TakeFrom(pDataObject, m_cfAtoms);
    const auto container = pArchive ? ContainerAt(PlaceAt(point)) : std::nullopt;
    return container && Paste(pArchive.Get(), container->Get(), dropEffect, point);
}

BOOL CAtomDropTarget::Paste(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect, CPoint)
{
    return PasteObjects(pArchive, pContainer, effect == DROPEFFECT_MOVE);
}

void CAtomDropTarget::OnDragLeave(CWnd*)
{
    m_pAtoms->Forget();
}
