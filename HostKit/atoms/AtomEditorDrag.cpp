// The editor's drags: the active atoms, as they are copied to the clipboard, under the mouse.
#include "HostKit/atoms/AtomEditor.h"
#include "HostKit/atoms/GlobalMedium.h"
#include "HostKit/base/ErrorInfo.h"
#include "HostKit/base/Names.h"
#include "HostKit/pictures/Resources.h"
#include "Toolkit/base/Exception.h"
#include "Toolkit/message/TaskInbox.h"
#include "Views/clipboard/Archives.h"
#include "Views/host/IArchive.h"
#include "Views/host/Services.h"

#include <algorithm>
#include <utility>

namespace hostkit
{
namespace
{

void CacheAtoms(COleDataSource& source, CLIPFORMAT format, HGLOBAL hPath)
{
    GlobalMedium medium(hPath);
    medium.OwnTransferFile();
    medium.GiveTo(source, format);
}

} // namespace

ActiveMembers GetActiveMembers(IAtomEditor& editor)
{
    ActiveMembers members;
    editor.EnumActivePairs(
        [](IAtom* pAtom, IAtomContainer* pContainer, void* pContext) -> BOOL {
            static_cast<ActiveMembers*>(pContext)->push_back(
                {CStubRef<IAtom>::Share(pAtom), CStubRef<IAtomContainer>::Share(pContainer)});
            return TRUE;
        },
        &members);
    return members;
}

// What is dragged is settled when the drag begins. A drop may select what it has pasted, and much may happen while the
// mouse is down; whoever is then told of the move removes the active atoms, and these are to be the ones that went.
DROPEFFECT CAtomEditor::DoDragDrop(DWORD allowedEffects, DWORD)
try {
    m_pMoved.reset();
    ActiveMembers members = GetActiveMembers(*this);
    if (members.empty())
        return DROPEFFECT_NONE;
    const auto pData = MakeDragData(members);
    if (!pData) {
        TellOfFailedDrag();
        return DROPEFFECT_NONE;
    }
    const DWORD dwAllowed =
        std::ranges::all_of(members, &ActiveMember::MayGo) ? allowedEffects : allowedEffects & ~DROPEFFECT_MOVE;
    std::shared_ptr<void> pHeld = BeginDrag();
    const DROPEFFECT effect = pData->DoDragDrop(dwAllowed);
    if (effect == DROPEFFECT_MOVE)
        BeginMove(std::move(members), std::move(pHeld));
    return effect;
} catch (CMemoryException& exception) {
    exception.ReportError();
    return DROPEFFECT_NONE;
}

// NULL when no transfer file can be made; the archive's error may say why.
std::unique_ptr<COleDataSource> CAtomEditor::MakeDragData(const ActiveMembers& members)
{
    const auto pArchive = CStubRef<IArchive>::Adopt(ConstructMemoryArchive());
    if (!pArchive || !WriteActiveObjects(pArchive.Get()))
        return nullptr;
    auto pSource = std::make_unique<COleDataSource>();
    const HGLOBAL hPath = HGLOBALFromArchive(pArchive.Get());
    if (!hPath)
        return nullptr;
    CacheAtoms(*pSource, GetClipboardFormat(), hPath);
    OfferMore(*pSource, members);
    return pSource;
}

void CAtomEditor::TellOfFailedDrag()
{
    const std::string reason = m_archiveError.empty() ? "no file can be made for it" : m_archiveError;
    ShowAtomError(GetMainWindow(), IDS_DRAG_FAILED, CErrorInfo::Make(reason).Get());
}

// The view that began the drag removes the atoms right away; the task comes after that. What a drag is to hold is held
// until then.
void CAtomEditor::BeginMove(ActiveMembers members, std::shared_ptr<void> pHeld)
{
    m_pMoved = std::make_shared<Moved>(Moved{std::move(members), false, std::move(pHeld)});
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
    pMoved->pHeld.reset();
    if (m_pFrame)
        m_pFrame->OnMoved(pMoved->bRemoving ? WhyStillThere(pMoved->members) : std::string());
}

// One that has to stay does not hold up the others.
BOOL CAtomEditor::EnumMoved(ACTIVEPAIRPROC callback, void* context)
{
    const std::shared_ptr<Moved> pMoved = m_pMoved;
    pMoved->bRemoving = true;
    const std::shared_ptr<void> pRemoval = BeginRemoval(pMoved->members);
    BOOL bAll = TRUE;
    for (const ActiveMember& member : pMoved->members)
        bAll = callback(member.pAtom.Get(), member.pContainer.Get(), context) && bAll;
    return bAll;
}

std::string CAtomEditor::WhyStillThere(const ActiveMembers& members) const
{
    const auto left = std::ranges::find_if(members, &ActiveMember::IsThere);
    return left == members.end() ? std::string() : ShownNameOf(left->pAtom.Get()) + ": it cannot be removed";
}

} // namespace hostkit
