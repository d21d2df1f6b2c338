#include "Editor/commands/FrameKeys.h"

#include "Editor/model/PlainFile.h"

namespace editor
{
namespace
{

// What is seen moves against the picture.
CSize PanOf(UINT vkey)
{
    constexpr int kStep = 64;
    const int x = vkey == VK_LEFT ? kStep : vkey == VK_RIGHT ? -kStep : 0;
    return {x, vkey == VK_UP ? kStep : vkey == VK_DOWN ? -kStep : 0};
}

} // namespace

bool FrameKeys::Handle(HWND hWnd, UINT vkey, bool bAlt)
{
    const bool bTree = hWnd == m_parts.tree.m_hWnd;
    const bool bContent = hWnd == m_parts.frame.m_hWnd || m_parts.content.Is(hWnd);
    const bool bControl = ::GetKeyState(VK_CONTROL) < 0, bShift = ::GetKeyState(VK_SHIFT) < 0;
    if (vkey == VK_ESCAPE && m_parts.splitter.IsDragged())
        return m_parts.splitter.CancelDrag(), true;
    const bool bPlain = !bControl && !bAlt;
    if (bPlain && bTree && vkey == VK_RETURN) // what is selected there is open already: one goes on with what it holds
        return m_parts.content.TakeFocus(), true;
    if (bPlain && bContent && HandleContentKey(vkey))
        return true;
    const CommandEntry* const pCommand = FindCommandOfKey(vkey, bControl, bShift, bAlt);
    if (!pCommand || !(bTree || bContent || pCommand->reach == CommandEntry::Reach::OfFrame))
        return false;
    m_parts.desk.Run(*pCommand);
    return true;
}

// Of a picture, whether it moves or not: larger, smaller, and with Shift another part of it.
bool FrameKeys::HandleZoomKey(UINT vkey)
{
    CZoomView& view = m_parts.content.GetZoomed();
    if (::GetKeyState(VK_SHIFT) < 0 && PanOf(vkey) != CSize() && view.PanBy(PanOf(vkey)))
        return true;
    if (vkey == VK_ADD || vkey == VK_OEM_PLUS || vkey == VK_SUBTRACT || vkey == VK_OEM_MINUS)
        return view.ZoomBy(vkey == VK_ADD || vkey == VK_OEM_PLUS ? 1 : -1), true;
    if (vkey == '0' || vkey == '1')
        return vkey == '0' ? view.Fit() : view.ShowOwnSize(), true;
    return false;
}

// The arrows lead to the pictures beside it.
bool FrameKeys::HandlePictureKey(UINT vkey)
{
    const bool bBack = vkey == VK_LEFT || vkey == VK_UP || vkey == VK_PRIOR;
    if (!bBack && vkey != VK_RIGHT && vkey != VK_DOWN && vkey != VK_NEXT && vkey != VK_SPACE)
        return false;
    const CStubRef<IAtom> pBeside = m_parts.tree.Beside(m_parts.content.GetPicture().GetAtom(), bBack ? -1 : 1);
    if (CMember* const pMember = CMember::Of(pBeside.Get()))
        m_parts.navigation.GoTo(pMember);
    return true;
}

// The arrows, where a phase's frames are not the list's.
bool FrameKeys::HandlePlayerKey(UINT vkey)
{
    CPlayerView& player = m_parts.content.GetPlayer();
    if (!player.HasFrames())
        return false;
    if (vkey == VK_SPACE)
        return player.TogglePlay(), true;
    const bool bBack = vkey == VK_LEFT || vkey == VK_UP;
    const bool bStep = bBack || vkey == VK_RIGHT || vkey == VK_DOWN;
    if (!bStep || ::GetFocus() != player.m_hWnd || m_parts.content.IsPictureShown())
        return false;
    player.Step(bBack ? -1 : 1);
    return true;
}

bool FrameKeys::HandleContentKey(UINT vkey)
{
    const bool bPicture = m_parts.content.IsPictureShown();
    if ((bPicture || ::GetFocus() == m_parts.content.GetPlayer().m_hWnd) && HandleZoomKey(vkey))
        return true;
    if (HandlePlayerKey(vkey))
        return true;
    if (bPicture && HandlePictureKey(vkey))
        return true;
    auto* const pFile = dynamic_cast<CPlainFile*>(m_parts.navigation.Shown());
    if (pFile && vkey == VK_RETURN)
        return m_parts.navigation.Open(pFile), true;
    if (vkey == VK_BACK || (bPicture && (vkey == VK_ESCAPE || vkey == VK_RETURN)))
        m_parts.navigation.GoUp();
    else if (vkey == VK_ESCAPE && m_parts.filter.IsOn())
        m_parts.filter.End();
    else if (vkey == VK_RETURN)
        OpenFocused();
    else
        return false;
    return true;
}

void FrameKeys::OpenFocused()
{
    const CStubRef<IAtom> pAtom = m_parts.content.GetList().GetAtom(m_parts.content.GetList().GetFocusedRow());
    if (CMember* const pMember = CMember::Of(pAtom.Get()))
        m_parts.navigation.Open(pMember);
}

} // namespace editor
