// The editor's drags: the active atoms, as they are copied to the clipboard, under the mouse.
#include "Editor/resources/EditorResources.h"
#include "Editor/services/AtomEditor.h"
#include "Editor/services/DragData.h"
#include "HostKit/ErrorInfo.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/message/TaskInbox.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

bool CanAllGo(const ActiveMembers& members)
{
    return std::all_of(members.begin(), members.end(), [](const ActiveMember& member) {
        return (member.pContainer->GetPermissions(member.pAtom.Get()) & APF_REMOVE) != 0;
    });
}

} // namespace

// What is dragged is settled when the drag begins. A drop may select what it has pasted, and much may happen while the
// mouse is down; whoever is then told of the move removes the active atoms, and these are to be the ones that went.
DROPEFFECT CAtomEditor::DoDragDrop(DWORD allowedEffects, DWORD)
try {
    m_pMoved.reset();
    ActiveMembers members = GetActiveMembers(*this);
    if (members.empty())
        return DROPEFFECT_NONE;
    const auto pData = [&] {
        const LongWork::Command command(&m_work, "Copying", Progress::Unit::Bytes);
        return MakeDragData(*this, members);
    }();
    if (!pData) {
        TellOfFailedDrag();
        return DROPEFFECT_NONE;
    }
    const DWORD dwAllowed = CanAllGo(members) ? allowedEffects : allowedEffects & ~DROPEFFECT_MOVE;
    auto pStep = std::make_unique<History::Step>(&m_history);
    const DROPEFFECT effect = pData->DoDragDrop(dwAllowed);
    if (effect == DROPEFFECT_MOVE)
        BeginMove(std::move(members), std::move(pStep));
    return effect;
} catch (CMemoryException& exception) {
    exception.ReportError();
    return DROPEFFECT_NONE;
}

void CAtomEditor::TellOfFailedDrag()
{
    if (m_work.TakeCancelled())
        return;
    const std::string reason = m_archiveError.empty() ? "no file can be made for it" : m_archiveError;
    ShowAtomError(GetFrameWindow(), IDS_DRAG_FAILED, CErrorInfo::Make(reason).Get());
}

// The view that began the drag removes the atoms right away; the task comes after that. Until then all is one step.
void CAtomEditor::BeginMove(ActiveMembers members, std::unique_ptr<History::Step> pStep)
{
    m_pMoved = std::make_shared<Moved>(Moved{std::move(members), false, std::move(pStep)});
    if (m_pFrame)
        m_pFrame->OnMoving();
    toolkit::PostTask([this, pWatched = std::weak_ptr<Moved>(m_pMoved)] {
        if (!pWatched.expired())
            EndMove();
    });
}

void CAtomEditor::EndMove()
{
    const auto pMoved = std::exchange(m_pMoved, nullptr);
    pMoved->pStep.reset();
    if (m_pFrame)
        m_pFrame->OnMoved(pMoved->bRemoving ? WhyStillThere(pMoved->members) : std::string());
}

// One that has to stay does not hold up the others.
BOOL CAtomEditor::EnumMoved(ACTIVEPAIRPROC callback, void* context)
{
    const std::shared_ptr<Moved> pMoved = m_pMoved;
    pMoved->bRemoving = true;
    const LongWork::Command command(&m_work, "Moving", Progress::Unit::Objects);
    m_work.GetMeter().SetTotal(pMoved->members.size());
    const JointRemoval joint(pMoved->members);
    ForgetWhatStayed(pMoved->members);
    BOOL bAll = TRUE;
    for (const ActiveMember& member : pMoved->members)
        bAll = callback(member.pAtom.Get(), member.pContainer.Get(), context) && bAll;
    return bAll;
}

} // namespace editor
