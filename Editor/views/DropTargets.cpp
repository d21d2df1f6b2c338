#include "Editor/views/DropTargets.h"

#include "Editor/model/Folder.h"
#include "Editor/services/ActiveMembers.h"
#include "Editor/services/AtomEditor.h"
#include "Editor/views/EditorList.h"
#include "Editor/views/EditorTree.h"
#include "Toolkit/message/TaskInbox.h"
#include "Views/clipboard/Commands.h"

#include <utility>

namespace editor
{
namespace
{

bool HasAtoms(COleDataObject* pData)
{
    return pData && pData->IsDataAvailable(CAtomEditor::Current().GetClipboardFormat());
}

// Once the drag is over: nobody waits for an answer in the middle of one.
void TellLater(const DropFailed& failed, std::string reason)
{
    if (!reason.empty())
        toolkit::PostTask([failed, reason = std::move(reason)] { failed(reason); });
}

// One step, however much comes, and a command that shows how far it is.
struct Dropping
{
    const History::Step step{&CAtomEditor::Current().GetHistory()};
    const LongWork::Command command{CAtomEditor::Current().GetWork(), "Pasting", Progress::Unit::Bytes};
};

BOOL DropFiles(COleDataObject* pData, IAtomContainer* pContainer, const DropFailed& failed)
{
    if (!pData || !OffersFilesFor(*pData, pContainer))
        return FALSE;
    std::string reason = PasteFiles(*pData, pContainer);
    const BOOL bAll = reason.empty();
    TellLater(failed, std::move(reason));
    return bAll;
}

// `dropAtoms` is what the view's own target does. The target may be gone afterwards: `failed` is a copy.
template <class DropAtoms>
BOOL Drop(COleDataObject* pData, const CStubRef<IAtomContainer>& pContainer, const DropFailed failed,
          DropAtoms dropAtoms)
{
    const Dropping dropping;
    if (!HasAtoms(pData))
        return DropFiles(pData, pContainer.Get(), failed);
    if (dropAtoms())
        return TRUE;
    TellLater(failed, DropError());
    return FALSE;
}

// A folder takes no second object of a name by a move, and the mouse alone does not tell why.
std::string WhyNotMoved(IAtomContainer* pContainer)
{
    auto* const pFolder = dynamic_cast<CFolder*>(pContainer);
    if (!pFolder)
        return {};
    for (const ActiveMember& member : GetActiveMembers(CAtomEditor::Current())) {
        const CMember* const pMember = CMember::Of(member.pAtom.Get());
        if (!pMember || member.pContainer.Get() == pContainer || CStubRef<IImageLink>::From(member.pAtom.Get()))
            continue;
        if (pContainer->FindAtom(std::string(pMember->Name()).c_str(), nullptr, 0))
            return pFolder->ShownName() + ": there is a \"" + pMember->ShownName() +
                   "\" already. With Ctrl a copy comes beside it";
    }
    return {};
}

void TellIfRefused(HoveredPlace& place, DROPEFFECT effect, bool bControl, IAtomContainer* pContainer,
                   const DropRefused& refused)
{
    if (place.TakeNew())
        refused(effect == DROPEFFECT_NONE && !bControl ? WhyNotMoved(pContainer) : std::string());
}

} // namespace

DROPEFFECT CEditorListTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    const auto pContainer = TargetAt(point);
    if (!HasAtoms(pDataObject)) {
        const bool bTaken = pDataObject && OffersFilesFor(*pDataObject, pContainer.Get());
        MarkGap(point, bTaken && TakesBetweenRows());
        return bTaken ? DROPEFFECT_COPY : DROPEFFECT_NONE;
    }
    const bool bControl = dwKeyState & MK_CONTROL;
    const DROPEFFECT effect = m_hovered.EffectAt(PlaceAt(point), pContainer, bControl,
                                                 [&] { return FindEffect(pWnd, pDataObject, dwKeyState, point); });
    MarkGap(point, effect != DROPEFFECT_NONE && TakesBetweenRows());
    TellIfRefused(m_hovered, effect, bControl, pContainer.Get(), m_refused);
    return effect;
}

DROPEFFECT CEditorListTarget::FindEffect(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    if (TakesBetweenRows())
        return FindFrameEffect(pWnd, pDataObject, dwKeyState);
    if (m_list.RowAt(point) >= 0)
        return CListDropTarget::OnDragOver(pWnd, pDataObject, dwKeyState, point);
    ForgetPlace();
    const DROPEFFECT effect = CListDropTarget::OnDragOver(pWnd, pDataObject, dwKeyState, point);
    return effect == DROPEFFECT_MOVE && GetVerdict() != PASTE_ANY ? DROPEFFECT_COPY : effect;
}

CStubRef<IAtomContainer> CEditorListTarget::TargetAt(CPoint point) const
{
    return TakesBetweenRows() ? CStubRef<IAtomContainer>::Share(m_list.ShownContainer()) : m_list.ContainerAt(point);
}

// Objects of another library may still be files of this one. A phase may show a picture any number of times: what comes
// is looked at like a copy, whose name may be there already.
DROPEFFECT CEditorListTarget::FindFrameEffect(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState)
{
    if (m_frames.IsReordering(dwKeyState & MK_CONTROL))
        return DROPEFFECT_MOVE;
    const auto archive = Offers(pWnd, pDataObject) ? LookAt(pDataObject) : std::nullopt;
    const auto verdict =
        archive && *archive ? Check(archive->Get(), m_list.ShownContainer(), DROPEFFECT_COPY) : std::nullopt;
    const DWORD dwVerdict = verdict.value_or(PASTE_REFUSED);
    m_bAsFiles = dwVerdict == PASTE_REFUSED && !CAtomEditor::Current().GetDragged() &&
                 OffersFilesFor(*pDataObject, m_list.ShownContainer());
    if (m_bAsFiles)
        return DROPEFFECT_COPY;
    return dwVerdict == PASTE_ANY ? WantedEffect(dwKeyState) : dwVerdict;
}

DROPEFFECT CEditorListTarget::OnDropEx(CWnd*, COleDataObject*, DROPEFFECT dropDefault, DROPEFFECT, CPoint point)
{
    if (dropDefault != DROPEFFECT_MOVE || !m_frames.IsReordering(false))
        return kNotHandled;
    const int nGap = GapAt(point);
    MarkGap({}, false);
    m_hovered.Forget();
    const DropFailed failed = m_failed;
    TellLater(failed, m_frames.Reorder(nGap));
    return DROPEFFECT_COPY;
}

BOOL CEditorListTarget::Paste(IArchive* pArchive, IAtomContainer* pContainer, DROPEFFECT effect, CPoint point)
{
    if (!TakesBetweenRows())
        return CListDropTarget::Paste(pArchive, pContainer, effect, point);
    const DropFailed failed = m_failed;
    std::string reason = m_frames.Insert(pArchive, GapAt(point));
    const BOOL bAll = reason.empty();
    TellLater(failed, std::move(reason));
    return bAll;
}

BOOL CEditorListTarget::DropBetween(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    const Dropping dropping;
    if (HasAtoms(pDataObject) && !std::exchange(m_bAsFiles, false))
        return CListDropTarget::OnDrop(pWnd, pDataObject, dropEffect, point); // which calls Paste
    const int nGap = GapAt(point);
    MarkGap({}, false);
    const DropFailed failed = m_failed;
    std::string reason = pDataObject ? m_frames.InsertFiles(*pDataObject, nGap) : std::string();
    const BOOL bAll = pDataObject && reason.empty();
    TellLater(failed, std::move(reason));
    return bAll;
}

BOOL CEditorListTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    m_hovered.Forget();
    if (TakesBetweenRows())
        return DropBetween(pWnd, pDataObject, dropEffect, point);
    return Drop(pDataObject, m_list.ContainerAt(point), m_failed,
                [&] { return CListDropTarget::OnDrop(pWnd, pDataObject, dropEffect, point); });
}

void CEditorListTarget::OnDragLeave(CWnd* pWnd)
{
    m_hovered.Forget();
    ForgetPlace();
    CListDropTarget::OnDragLeave(pWnd);
}

DROPEFFECT CEditorTreeTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point)
{
    const auto pContainer = m_tree.ContainerAt(point);
    if (HasAtoms(pDataObject)) {
        const bool bControl = dwKeyState & MK_CONTROL;
        const auto nItem = reinterpret_cast<INT_PTR>(m_tree.HitTest(point));
        const DROPEFFECT effect = m_hovered.EffectAt(nItem, pContainer, bControl, [&] {
            return CTreeDropTarget::OnDragOver(pWnd, pDataObject, dwKeyState, point);
        });
        TellIfRefused(m_hovered, effect, bControl, pContainer.Get(), m_refused);
        return effect;
    }
    const bool bTaken = pDataObject && OffersFilesFor(*pDataObject, pContainer.Get());
    Highlight(bTaken ? m_tree.HitTest(point) : nullptr);
    return bTaken ? DROPEFFECT_COPY : DROPEFFECT_NONE;
}

BOOL CEditorTreeTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point)
{
    Highlight(nullptr);
    m_hovered.Forget();
    return Drop(pDataObject, m_tree.ContainerAt(point), m_failed,
                [&] { return CTreeDropTarget::OnDrop(pWnd, pDataObject, dropEffect, point); });
}

void CEditorTreeTarget::OnDragLeave(CWnd* pWnd)
{
    Highlight(nullptr);
    m_hovered.Forget();
    ForgetPlace();
    CTreeDropTarget::OnDragLeave(pWnd);
}

void CEditorTreeTarget::Highlight(HTREEITEM hItem)
{
    if (hItem == m_hHighlighted)
        return;
    m_tree.SetItemState(m_hHighlighted, 0, TVIS_DROPHILITED);
    m_hHighlighted = hItem;
    m_tree.SetItemState(hItem, TVIS_DROPHILITED, TVIS_DROPHILITED);
}

} // namespace editor
