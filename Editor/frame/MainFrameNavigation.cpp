// Where the user goes in the frame.
#include "Editor/frame/MainFrame.h"

namespace editor
{

void CMainFrame::GoUp()
{
    if (Shown() && Shown()->Container())
        GoBackTo(Shown()->Container());
}

void CMainFrame::GoToTop()
{
    GoTo(m_pLibrary.Get());
}

void CMainFrame::OpenFocused()
{
    const CStubRef<IAtom> pAtom = m_pList->GetAtom(m_pList->GetFocusedRow());
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
    ReadAgain(*pContainer.Get());
    UpdateStatus();
}

void CMainFrame::ReadAgain(CContainer& container)
{
    const CEditorList::State state = m_pList->Remember();
    container.ReadAgain();
    m_editor.NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, nullptr, &container, 0);
    m_pList->Restore(state);
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg)
{
    const bool bAlt = pMsg->message == WM_SYSKEYDOWN;
    if ((bAlt || pMsg->message == WM_KEYDOWN) && HandleKey(pMsg->hwnd, static_cast<UINT>(pMsg->wParam), bAlt))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

bool CMainFrame::HandleKey(HWND hWnd, UINT vkey, bool bAlt)
{
    const bool bTree = hWnd == m_tree.m_hWnd;
    const bool bContent = hWnd == m_hWnd || hWnd == m_pList->GetSafeHwnd() || hWnd == m_picture.m_hWnd;
    if (vkey == VK_ESCAPE && m_splitter.IsDragged())
        return m_splitter.CancelDrag(), true;
    if (bAlt)
        return vkey == VK_UP && (bTree || bContent) && (GoUp(), true);
    if (vkey == 'S' && ::GetKeyState(VK_CONTROL) < 0)
        return SaveByKey(), true;
    return (bTree && HandleTreeKey(vkey)) || (bContent && HandleContentKey(vkey)) ||
           ((bTree || bContent) && (HandleFrameKey(vkey) || HandleCommandKey(vkey)));
}

bool CMainFrame::HandleFrameKey(UINT vkey)
{
    if (vkey == VK_F4)
        m_properties.FocusFields();
    else if (vkey == VK_F6 || vkey == VK_TAB)
        FocusNextPane();
    else if (vkey == VK_F5)
        Refresh();
    else
        return false;
    return true;
}

bool CMainFrame::HandleContentKey(UINT vkey)
{
    if (vkey == VK_BACK || (IsPictureShown() && (vkey == VK_ESCAPE || vkey == VK_RETURN)))
        GoUp();
    else if (vkey == VK_RETURN)
        OpenFocused();
    else
        return false;
    return true;
}

// What is selected in the tree is open already: the user goes on with what it holds.
bool CMainFrame::HandleTreeKey(UINT vkey)
{
    if (vkey == VK_RETURN)
        FocusContent();
    return vkey == VK_RETURN;
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
    m_pList->FocusSelection();
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
