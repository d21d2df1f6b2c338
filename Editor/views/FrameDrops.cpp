#include "Editor/views/FrameDrops.h"

#include "Editor/model/ImageLink.h"
#include "Editor/services/DroppedFiles.h"
#include "Editor/views/EditorList.h"

#include <algorithm>

namespace editor
{
namespace
{

int PositionOf(IAtom* pAtom)
{
    const auto* const pLink = dynamic_cast<const CImageLink*>(CMember::Of(pAtom));
    return pLink ? pLink->Position() : -1;
}

} // namespace

CPhase* FrameDrops::Phase() const
{
    return dynamic_cast<CPhase*>(m_list.ShownContainer());
}

bool FrameDrops::IsReordering(bool bControl) const
{
    return !bControl && Phase() && AreDraggedFrom(CAtomEditor::Current(), *Phase());
}

UINT FrameDrops::FrameAt(int nRow) const
{
    const int nBefore = PositionOf(m_list.GetAtom(nRow).Get());
    const int nLast = PositionOf(m_list.GetAtom(m_list.GetItemCount() - 1).Get());
    return nBefore >= 0 ? static_cast<UINT>(nBefore) : nLast >= 0 ? static_cast<UINT>(nLast) + 1 : Phase()->GetCount();
}

template <class Place>
std::string FrameDrops::PlaceAndSelect(int nRow, Place place)
{
    const auto pPhase = CStubRef<CPhase>::Share(Phase());
    if (!pPhase)
        return "no phase is shown";
    UINT nFirst = FrameAt(nRow), nPlaced = 0;
    std::string failure = place(CAtomEditor::Current(), *pPhase.Get(), nFirst, nPlaced);
    if (nPlaced > 0 && Phase() == pPhase.Get())
        Select(CAtomEditor::Current(), *pPhase.Get(),
               [&](UINT nFrame) { return nFrame - nFirst < nPlaced; }); // unsigned
    return failure;
}

std::string FrameDrops::Reorder(int nRow)
{
    return PlaceAndSelect(nRow, [](CAtomEditor& editor, CPhase& phase, UINT& nFirst, UINT& nPlaced) {
        const UINT nBefore = nFirst;
        nFirst = CountStaying(editor, nBefore);
        const auto pDragged = editor.GetDragged();
        std::string failure = MoveDragged(editor, phase, nBefore);
        nPlaced = failure.empty() ? static_cast<UINT>(pDragged->size()) : 0;
        return failure;
    });
}

std::string FrameDrops::Insert(IArchive* pArchive, int nRow)
{
    return PlaceAndSelect(nRow, [=](CAtomEditor& editor, CPhase& phase, UINT nFirst, UINT& nPlaced) {
        return InsertArchived(editor, phase, pArchive, nFirst, nPlaced);
    });
}

std::string FrameDrops::InsertFiles(COleDataObject& data, int nRow)
{
    return PlaceAndSelect(nRow, [&](CAtomEditor&, CPhase& phase, UINT nFirst, UINT& nPlaced) {
        return editor::InsertFiles(phase, OfferedPaths(data), nFirst, nPlaced);
    });
}

bool FrameDrops::CanShift(bool bLater) const
{
    const int nRows = m_list.GetItemCount(), nSelected = m_list.GetSelectedCount();
    if (!Phase() || nSelected == 0)
        return false;
    return bLater ? m_list.GetNextItem(-1, LVNI_SELECTED) != nRows - nSelected
                  : !m_list.GetItemState(nSelected - 1, LVIS_SELECTED) ||
                        m_list.GetNextItem(nSelected - 1, LVNI_SELECTED) >= 0;
}

std::string FrameDrops::Shift(bool bLater)
{
    const auto pPhase = CStubRef<CPhase>::Share(Phase());
    if (!pPhase)
        return "no phase is shown";
    std::vector<std::size_t> places;
    for (int i = -1; (i = m_list.GetNextItem(i, LVNI_SELECTED)) >= 0;)
        if (const int nPosition = PositionOf(m_list.GetAtom(i).Get()); nPosition >= 0)
            places.push_back(static_cast<std::size_t>(nPosition));
    std::ranges::sort(places);
    std::string failure = editor::Shift(CAtomEditor::Current(), *pPhase.Get(), places, bLater);
    if (failure.empty() && Phase() == pPhase.Get())
        Select(CAtomEditor::Current(), *pPhase.Get(),
               [&](UINT nFrame) { return std::ranges::binary_search(places, std::size_t{nFrame}); });
    return failure;
}

// The views hear of the last alone, however many.
template <class IsPlaced>
void FrameDrops::Select(CAtomEditor& editor, CPhase& phase, IsPlaced isPlaced)
{
    editor.NotifyHandlers(nullptr, &IAEStateHandler::OnAtomDeselected, nullptr, &phase, 0);
    CStubRef<IAtom> pLast;
    {
        const CAtomEditor::Silence silence(editor);
        for (int i = 0; i < m_list.GetItemCount(); ++i) {
            CStubRef<IAtom> pAtom = m_list.GetAtom(i);
            const int nPosition = PositionOf(pAtom.Get());
            if (nPosition < 0 || !isPlaced(static_cast<UINT>(nPosition)))
                continue;
            m_list.SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
            pLast = std::move(pAtom);
        }
    }
    if (pLast)
        editor.NotifyHandlers(m_list.Handler(), &IAEStateHandler::OnAtomSelected, pLast.Get(), &phase, 0);
    m_list.FocusSelection();
}

} // namespace editor
