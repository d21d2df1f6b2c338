#include "Views/host/inside/ViewFocus.h"

#include "Views/host/IAtom.h"
#include "Views/host/IAtomEditor.h"
#include "Views/host/Services.h"
#include "Views/host/StubRef.h"
#include "Views/host/TopLevelAtom.h"

bool views::ViewFocus::OfferSave()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    if (!pEditor)
        return true;
    CStubRef<IAtom> pActive, pTop;
    pEditor->GetActiveAtom(pActive.Receive(), IID_IAtom);
    if (!GetTopLevelAtom(pActive.Get(), pTop.Receive(), IID_IAtom))
        return true;
    return pEditor->NotifyHandlers(nullptr, &IAEStateHandler::PreSaveAtom, pTop.Get(), nullptr, 0) != FALSE;
}

bool views::ViewFocus::Take()
{
    if (!IsHere())
        m_view.SetFocus();
    return IsHere();
}

void views::ViewFocus::GiveBack(HWND hOldWnd)
{
    if (hOldWnd)
        ::SetFocus(hOldWnd);
    m_view.Invalidate(); // where nobody could take the focus back it is here, and shows
}

void views::ViewFocus::Lose()
{
    m_bHas = m_bFromSelChange = FALSE;
    m_bLost = true;
}
