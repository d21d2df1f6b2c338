// What the frame does to what is selected.
#include "Editor/frame/MainFrame.h"
#include "Editor/model/ErrorInfo.h"
#include "Editor/resources/EditorResources.h"
#include "Toolkit/window/MessageBox.h"

namespace editor
{
namespace
{

bool IsThere(CMember* pMember)
{
    return !pMember->Container() || pMember->Container()->FindAtomByID(pMember->GetID(), nullptr, 0);
}

} // namespace

CContainer* CMainFrame::ShownContainer() const
{
    if (auto* const pContainer = dynamic_cast<CContainer*>(Shown()))
        return pContainer;
    return Shown() ? Shown()->Container() : nullptr;
}

BOOL CMainFrame::OnGetActivePairs(OBJPAIR* pairs, DWORD* pCount)
{
    if (!pCount || !IsPictureShown())
        return CStateHandler::OnGetActivePairs(pairs, pCount);
    if (!pairs || *pCount < 1) {
        *pCount = 1;
        return FALSE;
    }
    views::HeldPair::Share(Shown(), Shown()->Container()).MoveTo(*pairs);
    return TRUE;
}

bool CMainFrame::HandleCommandKey(UINT vkey)
{
    if (::GetKeyState(VK_CONTROL) < 0)
        return HandleControlKey(vkey);
    if (::GetKeyState(VK_SHIFT) < 0)
        return false;
    if (vkey == VK_DELETE)
        RemoveSelection();
    else if (vkey == VK_F2)
        m_editor.BeginRename();
    else
        return false;
    return true;
}

bool CMainFrame::HandleControlKey(UINT vkey)
{
    if (vkey == 'C')
        CopySelection();
    else if (vkey == 'X')
        CutSelection();
    else if (vkey == 'V')
        PasteHere();
    else
        return false;
    return true;
}

void CMainFrame::CopySelection()
{
    if (m_commands.CountSelected() > 0)
        ShowFailure(IDS_COPY_FAILED, m_commands.Copy());
}

void CMainFrame::CutSelection()
{
    if (m_commands.CountSelected() > 0)
        ChangeSelection(IDS_CUT_FAILED, [this] { return m_commands.Cut(); });
}

void CMainFrame::RemoveSelection()
{
    if (m_commands.CountSelected() == 0)
        return;
    const HWND hFocus = ::GetFocus();
    const int nAnswer = AfxMessageBox(m_commands.RemoveQuestion().c_str(), MB_YESNO | MB_ICONQUESTION);
    ::SetFocus(hFocus);
    if (nAnswer == IDYES)
        ChangeSelection(IDS_REMOVE_FAILED, [this] { return m_commands.Remove(); });
}

void CMainFrame::PasteHere()
{
    const auto pTarget = CStubRef<CContainer>::Share(ShownContainer());
    if (!pTarget)
        return;
    ShowFailure(IDS_PASTE_FAILED, m_commands.Paste(pTarget.Get()));
    m_list.FocusSelection();
}

// The list loads its rows anew: the user goes on where the selection was.
template <class Change>
void CMainFrame::ChangeSelection(UINT nFailedID, Change change)
{
    const auto pShown = CStubRef<CMember>::Share(Shown());
    const CEditorList::State state = m_list.Remember();
    const std::string reason = change();
    LeaveWhatIsGone();
    if (Shown() == pShown.Get() && !IsPictureShown())
        m_list.Restore(state);
    UpdateStatus();
    ShowFailure(nFailedID, reason);
}

// For the innermost container that is still there.
void CMainFrame::LeaveWhatIsGone()
{
    CMember* pStay = Shown();
    for (CMember* pMember = Shown(); pMember; pMember = pMember->Container())
        if (!IsThere(pMember))
            pStay = pMember->Container();
    if (pStay && pStay != Shown())
        GoTo(pStay);
}

void CMainFrame::ShowFailure(UINT nCaptionID, std::string reason)
{
    if (!reason.empty())
        ShowAtomError(m_hWnd, nCaptionID, CErrorInfo::Make(std::move(reason)).Get());
}

} // namespace editor
