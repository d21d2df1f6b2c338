#include "Editor/frame/FrameKeys.h"

namespace editor
{

bool FrameKeys::Handle(HWND hWnd, UINT vkey, bool bAlt)
{
    const bool bTree = hWnd == m_parts.tree.m_hWnd;
    const bool bContent = hWnd == m_parts.frame.m_hWnd || m_parts.content.Is(hWnd);
    if (vkey == VK_ESCAPE && m_parts.splitter.IsDragged())
        return m_parts.splitter.CancelDrag(), true;
    if (bAlt)
        return vkey == VK_UP && (bTree || bContent) && (m_parts.navigation.GoUp(), true);
    if (vkey == 'S' && ::GetKeyState(VK_CONTROL) < 0)
        return SaveByKey(), true;
    return (bTree && HandleTreeKey(vkey)) || (bContent && HandleContentKey(vkey)) ||
           ((bTree || bContent) && HandleFrameKey(vkey));
}

bool FrameKeys::HandleFrameKey(UINT vkey)
{
    if (vkey == VK_F4)
        m_parts.properties.FocusFields();
    else if (vkey == VK_F6 || vkey == VK_TAB)
        FocusNextPane();
    else if (const CommandEntry* const pCommand =
                 FindCommandOfKey(vkey, ::GetKeyState(VK_CONTROL) < 0, ::GetKeyState(VK_SHIFT) < 0))
        (m_parts.commands.*pCommand->run)();
    else
        return false;
    return true;
}

bool FrameKeys::HandleContentKey(UINT vkey)
{
    const bool bPicture = m_parts.content.IsPictureShown();
    if (vkey == VK_BACK || (bPicture && (vkey == VK_ESCAPE || vkey == VK_RETURN)))
        m_parts.navigation.GoUp();
    else if (vkey == VK_RETURN)
        OpenFocused();
    else
        return false;
    return true;
}

// What is selected in the tree is open already: the user goes on with what it holds.
bool FrameKeys::HandleTreeKey(UINT vkey)
{
    if (vkey == VK_RETURN)
        m_parts.content.TakeFocus();
    return vkey == VK_RETURN;
}

void FrameKeys::OpenFocused()
{
    const CStubRef<IAtom> pAtom = m_parts.content.GetList().GetAtom(m_parts.content.GetList().GetFocusedRow());
    if (CMember* const pMember = CMember::Of(pAtom.Get()))
        m_parts.navigation.GoTo(pMember);
}

void FrameKeys::SaveByKey()
{
    LeaveFields();
    m_parts.commands.SaveOrTell();
}

void FrameKeys::LeaveFields()
{
    if (m_parts.properties.HasFocus())
        m_parts.content.TakeFocus();
}

void FrameKeys::FocusNextPane()
{
    CRect tree;
    m_parts.treePane.GetClientRect(&tree);
    if (::GetFocus() == m_parts.tree.m_hWnd || tree.IsRectEmpty())
        m_parts.content.TakeFocus();
    else
        m_parts.tree.SetFocus();
}

} // namespace editor
