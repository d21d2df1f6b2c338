// Where the user goes in the frame.
#include "Editor/frame/MainFrame.h"

namespace editor
{

void CMainFrame::GoUp()
{
    if (Shown() && Shown()->Container())
        GoBackTo(Shown()->Container());
}

void CMainFrame::OpenFocused()
{
    const CStubRef<IAtom> pAtom = m_list.GetAtom(m_list.GetFocusedRow());
    if (CMember* const pMember = CMember::Of(pAtom.Get()))
        GoTo(pMember);
}

void CMainFrame::Refresh()
{
    m_pictures.Recheck();
    if (IsPictureShown())
        return m_picture.OnPictureArrived();
    const auto pContainer = CStubRef<CContainer>::Share(dynamic_cast<CContainer*>(Shown()));
    if (!pContainer)
        return;
    const CEditorList::State state = m_list.Remember();
    pContainer->ReadAgain();
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, nullptr, pContainer.Get(), 0);
    m_list.Restore(state);
    UpdateStatus();
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg)
{
    const bool bKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    const bool bOurs = pMsg->hwnd == m_hWnd || pMsg->hwnd == m_list.m_hWnd || pMsg->hwnd == m_picture.m_hWnd;
    if (bKey && bOurs && HandleKey(static_cast<UINT>(pMsg->wParam), pMsg->message == WM_SYSKEYDOWN))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

bool CMainFrame::HandleKey(UINT vkey, bool bAlt)
{
    if (bAlt ? vkey == VK_UP : vkey == VK_BACK || (IsPictureShown() && (vkey == VK_ESCAPE || vkey == VK_RETURN)))
        GoUp();
    else if (!bAlt && vkey == VK_RETURN)
        OpenFocused();
    else if (!bAlt && vkey == VK_F5)
        Refresh();
    else
        return false;
    return true;
}

void CMainFrame::GoTo(CMember* pMember)
{
    const auto pHeld = CStubRef<CMember>::Share(pMember);
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomEntered, pMember, pMember->Container(), 0);
}

// What one came from is selected there.
void CMainFrame::GoBackTo(CContainer* pContainer)
{
    CMember* pFrom = Shown();
    while (pFrom && pFrom->Container() != pContainer)
        pFrom = pFrom->Container();
    const auto pHeld = CStubRef<CMember>::Share(pFrom);
    GoTo(pContainer);
    if (!pFrom)
        return;
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomSelected, pFrom, pContainer, 0);
    m_list.FocusSelection();
}

void CMainFrame::GoToPart(int nPart)
{
    std::vector<CContainer*> holders; // from the inside
    for (CMember* pMember = Shown(); pMember && pMember->Container(); pMember = pMember->Container())
        holders.push_back(pMember->Container());
    if (nPart < static_cast<int>(holders.size()))
        GoBackTo(holders[holders.size() - 1 - static_cast<std::size_t>(nPart)]);
}

} // namespace editor
