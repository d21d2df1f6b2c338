#include "Views/host/inside/EditorLink.h"

#include "Views/host/IAtom.h"
#include "Views/host/Services.h"
#include "Views/host/TopLevelAtom.h"

#include <utility>

CStubRef<IAtomEditor> views::EditorLink::GetEditor() const
{
    return CStubRef<IAtomEditor>::Adopt(m_bPassive ? nullptr : GetAtomEditor());
}

bool views::EditorLink::Join(IAtomEditor* pEditor)
{
    m_bHasFocus = m_bFocusFromSelChange = FALSE; // a former window's
    if (!pEditor)
        return true;
    const HWND hWnd = m_view.m_hWnd;
    const DWORD dwCookie = pEditor->RegisterHandler(hWnd, &m_handler);
    if (!::IsWindow(hWnd)) {
        pEditor->UnregisterHandler(dwCookie);
        return false;
    }
    m_cookie = dwCookie;
    return true;
}

void views::EditorLink::Leave()
{
    const std::optional<DWORD> cookie = std::exchange(m_cookie, std::nullopt);
    if (!cookie)
        return;
    if (const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor()))
        pEditor->UnregisterHandler(*cookie);
}

bool views::EditorLink::OfferSave()
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

bool views::EditorLink::TakeFocus()
{
    if (!HasFocus())
        m_view.SetFocus();
    return HasFocus();
}

void views::EditorLink::GiveBackFocus(HWND hOldWnd)
{
    if (hOldWnd)
        ::SetFocus(hOldWnd);
    m_view.Invalidate(); // where nobody could take the focus back it is here, and shows
}

void views::EditorLink::LoseFocus()
{
    m_bHasFocus = m_bFocusFromSelChange = FALSE;
    m_bLost = true;
}
