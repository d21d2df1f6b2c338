// What the user's keys and menu commands mean in the frame.
#include "Editor/frame/MainFrame.h"

namespace editor
{

CMenu* CMainFrame::CreateContextMenu()
{
    return MakeContextMenu(m_commands.GetState()).release();
}

BOOL CMainFrame::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const CommandEntry* const pCommand = lParam == 0 ? FindCommand(LOWORD(wParam)) : nullptr;
    if (!pCommand)
        return CWnd::OnCommand(wParam, lParam);
    (m_commands.*pCommand->run)();
    return TRUE;
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg)
{
    ForgetNews(*pMsg);
    const bool bAlt = pMsg->message == WM_SYSKEYDOWN;
    if ((bAlt || pMsg->message == WM_KEYDOWN) && HandleKey(pMsg->hwnd, static_cast<UINT>(pMsg->wParam), bAlt))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

// They tell of keys, and stay while these are looked for.
void CMainFrame::ForgetNews(const MSG& message)
{
    const bool bModifier = message.wParam == VK_CONTROL || message.wParam == VK_SHIFT;
    const bool bInput = (message.message == WM_KEYDOWN && !bModifier) || message.message == WM_LBUTTONDOWN ||
                        message.message == WM_RBUTTONDOWN;
    if (!bInput || m_news.empty())
        return;
    m_news.clear();
    m_statusBar.Invalidate();
}

bool CMainFrame::HandleKey(HWND hWnd, UINT vkey, bool bAlt)
{
    const bool bTree = hWnd == m_tree.m_hWnd;
    const bool bContent = hWnd == m_hWnd || m_content.Is(hWnd);
    if (vkey == VK_ESCAPE && m_splitter.IsDragged())
        return m_splitter.CancelDrag(), true;
    if (bAlt)
        return vkey == VK_UP && (bTree || bContent) && (m_navigation.GoUp(), true);
    if (vkey == 'S' && ::GetKeyState(VK_CONTROL) < 0)
        return SaveByKey(), true;
    return (bTree && HandleTreeKey(vkey)) || (bContent && HandleContentKey(vkey)) ||
           ((bTree || bContent) && HandleFrameKey(vkey));
}

bool CMainFrame::HandleFrameKey(UINT vkey)
{
    if (vkey == VK_F4)
        m_properties.FocusFields();
    else if (vkey == VK_F6 || vkey == VK_TAB)
        FocusNextPane();
    else if (const CommandEntry* const pCommand =
                 FindCommandOfKey(vkey, ::GetKeyState(VK_CONTROL) < 0, ::GetKeyState(VK_SHIFT) < 0))
        (m_commands.*pCommand->run)();
    else
        return false;
    return true;
}

bool CMainFrame::HandleContentKey(UINT vkey)
{
    const bool bPicture = m_content.IsPictureShown();
    if (vkey == VK_BACK || (bPicture && (vkey == VK_ESCAPE || vkey == VK_RETURN)))
        m_navigation.GoUp();
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
        m_content.TakeFocus();
    return vkey == VK_RETURN;
}

void CMainFrame::OpenFocused()
{
    const CStubRef<IAtom> pAtom = GetList().GetAtom(GetList().GetFocusedRow());
    if (CMember* const pMember = CMember::Of(pAtom.Get()))
        m_navigation.GoTo(pMember);
}

void CMainFrame::SaveByKey()
{
    LeaveFields();
    m_commands.SaveOrTell();
}

void CMainFrame::LeaveFields()
{
    if (m_properties.HasFocus())
        m_content.TakeFocus();
}

void CMainFrame::FocusNextPane()
{
    CRect tree;
    m_treePane.GetClientRect(&tree);
    if (::GetFocus() == m_tree.m_hWnd || tree.IsRectEmpty())
        m_content.TakeFocus();
    else
        m_tree.SetFocus();
}

} // namespace editor
