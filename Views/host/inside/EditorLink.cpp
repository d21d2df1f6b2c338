#include "Views/host/inside/EditorLink.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/base/String.h"
#include "Toolkit/graphics/Resources.h"
#include "Toolkit/menu/Menu.h"
#include "Views/host/IAtom.h"
#include "Views/host/Services.h"
#include "Views/host/TopLevelAtom.h"
#include "Views/host/inside/GdiHolders.h"
#include "Views/host/inside/WhatIsMissing.h"

#include <cstdio>
#include <memory>
#include <utility>

namespace
{

views::IconHolder LoadPaneIcon(UINT nIconID)
{
    try {
        return views::IconHolder(::LoadIcon(LOWORD(nIconID)));
    } catch (CMemoryException& e) {
        e.ReportError();
        return nullptr;
    }
}

// A host that has forgotten something sees nothing wrong but that nothing happens: whoever debugs it is told, once.
void SayWhatIsMissing()
{
#ifndef NDEBUG
    static bool s_bSaid = false;
    try {
        const std::string missing = std::exchange(s_bSaid, true) ? std::string() : views::WhatIsMissing();
        if (!missing.empty())
            std::fprintf(stderr, "Views: the host has no %s (Views/host/Services.h, Resources.h)\n", missing.c_str());
    } catch (const CMemoryException&) {
        return; // there is more to worry about
    }
#endif
}

} // namespace

CStubRef<IAtomEditor> views::EditorLink::GetEditor() const
{
    return CStubRef<IAtomEditor>::Adopt(m_bPassive ? nullptr : GetAtomEditor());
}

bool views::EditorLink::Join(IAtomEditor* pEditor)
{
    m_bHasFocus = m_bFocusFromSelChange = FALSE; // a former window's
    if (!m_bPassive)
        SayWhatIsMissing();
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

void views::EditorLink::AddPane(IAtomEditor* pEditor, DWORD dwKind, UINT nCaptionID, UINT nIconID,
                                LPCSTR pszOtherCaption) const
{
    const IconHolder hIcon = LoadPaneIcon(nIconID);
    try {
        CString strCaption;
        strCaption.LoadString(nCaptionID);
        pEditor->AddPane(dwKind, m_view.m_hWnd, strCaption, hIcon.get());
    } catch (CMemoryException& e) {
        e.ReportError();
        pEditor->AddPane(dwKind, m_view.m_hWnd, pszOtherCaption, hIcon.get());
    }
}

void views::EditorLink::ShowMenu()
{
    const auto pEditor = CStubRef<IAtomEditor>::Adopt(GetAtomEditor());
    const std::unique_ptr<CMenu> pMenu(pEditor ? pEditor->CreateContextMenu() : nullptr);
    if (!pMenu)
        return;
    CPoint point;
    ::GetCursorPos(&point);
    CWnd* const pOwner = CWnd::FromHandle(pEditor->GetMainWindow());
    pMenu->TrackPopupMenu(TPM_LEFTALIGN | TPM_LEFTBUTTON, point.x, point.y, pOwner);
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
