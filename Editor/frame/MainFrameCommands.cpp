// What the frame does to what is selected.
#include "Editor/disk/Trash.h"
#include "Editor/frame/MainFrame.h"
#include "Editor/objects/ErrorInfo.h"
#include "Editor/resources/EditorResources.h"
#include "Toolkit/window/MessageBox.h"

#include <set>

namespace editor
{
namespace
{

constexpr UINT_PTR kLookTimer = 1;

bool IsThere(CMember* pMember)
{
    return !pMember->Container() || pMember->Container()->FindAtomByID(pMember->GetID(), nullptr, 0);
}

// The innermost container that is still there, or the member itself when all of them are.
CMember* WhatIsLeftOf(CMember* pMember)
{
    CMember* pLeft = pMember;
    for (; pMember; pMember = pMember->Container())
        if (!IsThere(pMember))
            pLeft = pMember->Container();
    return pLeft;
}

bool UserAgrees(const std::string& question)
{
    const HWND hFocus = ::GetFocus();
    const int nAnswer = AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION);
    ::SetFocus(hFocus);
    return nAnswer == IDYES;
}

} // namespace

CContainer* CMainFrame::ShownContainer() const
{
    if (auto* const pContainer = dynamic_cast<CContainer*>(Shown()))
        return pContainer;
    return Shown() ? Shown()->Container() : nullptr;
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
        RenameSelected();
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
    else if (vkey == '1')
        ShowList(ListKind::Icons);
    else if (vkey == '2')
        ShowList(ListKind::Thumbnails);
    else
        return false;
    return true;
}

void CMainFrame::CopySelection()
{
    if (m_commands.CountSelected() > 0)
        ShowFailure(IDS_COPY_FAILED, CarryAsAgreed([this] { return m_commands.Copy(); }));
}

void CMainFrame::CutSelection()
{
    if (m_commands.CountSelected() > 0)
        ShowFailure(IDS_CUT_FAILED, CarryAsAgreed([this] { return Cut(); }));
}

// What cannot be carried is named, and the rest goes when the user agrees.
template <class Carry>
std::string CMainFrame::CarryAsAgreed(Carry carry)
{
    std::string reason = carry();
    if (reason.empty() || !m_editor.CanLeaveOut())
        return reason;
    if (!UserAgrees(reason + ".\n\nGo on with the rest?"))
        return {};
    const CAtomEditor::LeavingOut agreed(m_editor);
    return carry();
}

// What goes to the trash can be fetched back; what no trash takes, the user is asked about once more.
void CMainFrame::RemoveSelection()
{
    if (m_commands.CountSelected() == 0 || !UserAgrees(m_commands.RemoveQuestion()))
        return;
    const int nMissed = CountMissedTrashes();
    std::string reason = Remove();
    if (CountMissedTrashes() > nMissed && m_commands.CountSelected() > 0) {
        if (!UserAgrees(reason + ".\n\n" + m_commands.RemoveQuestion(Removal::ForGood)))
            return;
        const PermanentRemoval agreed;
        reason = Remove();
    }
    ShowFailure(IDS_REMOVE_FAILED, std::move(reason));
}

void CMainFrame::PasteHere()
{
    bool bAny = false;
    std::string reason = Paste(&bAny);
    ShowFailure(bAny ? IDS_PASTE_FAILED : IDS_NOTHING_PASTED, std::move(reason));
}

std::string CMainFrame::Cut()
{
    return ChangeSelection([this] { return m_commands.Cut(); });
}

std::string CMainFrame::Remove()
{
    return ChangeSelection([this] { return m_commands.Remove(); });
}

std::string CMainFrame::Paste(bool* pAny)
{
    const auto pTarget = CStubRef<CContainer>::Share(ShownContainer());
    std::vector<CStubRef<IAtom>> arrived;
    std::string reason = m_commands.Paste(pTarget.Get(), arrived);
    if (!arrived.empty())
        SelectJust(arrived);
    if (pAny)
        *pAny = !arrived.empty();
    return reason;
}

// A view that is told of an atom takes one of the same name in another case for it: the list's rows are those of the
// atoms themselves. New ones are the last.
void CMainFrame::SelectJust(const std::vector<CStubRef<IAtom>>& atoms)
{
    CContainer* const pContainer = ShownContainer();
    m_commands.Select({}, pContainer);
    std::set<IAtom*> wanted;
    for (const CStubRef<IAtom>& pAtom : atoms)
        wanted.insert(pAtom.Get());
    {
        const CAtomEditor::Silence silence(m_editor);
        for (int i = m_pList->GetItemCount() - 1; i >= 0 && !wanted.empty(); --i)
            if (wanted.erase(m_pList->GetAtom(i).Get()) > 0)
                m_pList->SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    }
    if (!atoms.empty())
        m_editor.NotifyHandlers(m_pList->Handler(), &IAEStateHandler::OnAtomSelected, atoms.back().Get(), pContainer,
                                0);
    m_pList->FocusSelection();
    UpdateStatus();
}

// The list loads its rows anew: the user goes on where the selection was.
template <class Change>
std::string CMainFrame::ChangeSelection(Change change)
{
    const Position position = RememberPosition();
    std::string reason = change();
    GoOnAt(position);
    return reason;
}

CMainFrame::Position CMainFrame::RememberPosition()
{
    return {CStubRef<CMember>::Share(Shown()), m_pList->Remember()};
}

// What was not saved of a phase that went has gone with it: in the archive that took it away, or by the user's wish.
void CMainFrame::GoOnAt(const Position& position)
{
    std::erase_if(m_modified, [](const auto& pPhase) { return WhatIsLeftOf(pPhase.Get()) != pPhase.Get(); });
    LeaveWhatIsGone();
    if (Shown() == position.pShown.Get() && !IsPictureShown())
        m_pList->Restore(position.list);
    UpdateStatus();
}

// What a drop has pasted into the list is selected by then, and stays so.
void CMainFrame::OnMoving()
{
    m_beforeMove = RememberPosition();
}

void CMainFrame::OnMoved(const std::string& reason)
{
    GoOnAt(std::exchange(m_beforeMove, {}));
    ShowFailure(IDS_MOVE_FAILED, reason);
}

void CMainFrame::LeaveWhatIsGone()
{
    CMember* const pStay = WhatIsLeftOf(Shown());
    if (pStay && pStay != Shown())
        GoTo(pStay);
}

void CMainFrame::OnCopied(const ActiveMembers& members)
{
    m_draggedOut = DraggedOut(members);
    AwaitNextLook();
}

void CMainFrame::AwaitNextLook()
{
    if (const unsigned nPause = m_draggedOut.NextLook())
        SetTimer(kLookTimer, nPause);
    else
        KillTimer(kLookTimer);
}

void CMainFrame::OnTimer(UINT_PTR)
{
    const auto changed = m_draggedOut.Look();
    for (const auto& pContainer : changed)
        ReadAgain(*pContainer.Get());
    if (!changed.empty()) {
        LeaveWhatIsGone();
        UpdateStatus();
    }
    AwaitNextLook();
}

// The frame may be gone by the time that a drop's failure is told.
DropFailed CMainFrame::ReportDrop()
{
    return [this, pAlive = std::weak_ptr<int>(m_pAlive)](std::string reason) {
        if (!pAlive.expired())
            ShowFailure(IDS_DROP_FAILED, std::move(reason));
    };
}

void CMainFrame::ShowFailure(UINT nCaptionID, std::string reason)
{
    if (!reason.empty())
        ShowAtomError(m_hWnd, nCaptionID, CErrorInfo::Make(std::move(reason)).Get());
}

} // namespace editor
