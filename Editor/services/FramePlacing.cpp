#include "Editor/services/FramePlacing.h"

#include "Editor/archive/ArchivedAtom.h"
#include "Editor/disk/FileText.h"
#include "Editor/model/ImageLink.h"
#include "Editor/services/MemberBroadcast.h"
#include "Editor/services/Troubles.h"

#include <algorithm>

namespace editor
{
namespace
{

// The frames that are dragged, by their places.
std::vector<std::size_t> DraggedPlaces(const CAtomEditor& editor)
{
    std::vector<std::size_t> places;
    if (const auto pDragged = editor.GetDragged())
        for (const CImageLink* const pLink : OwnOf<CImageLink>(*pDragged))
            if (pLink->Position() >= 0)
                places.push_back(static_cast<std::size_t>(pLink->Position()));
    std::sort(places.begin(), places.end());
    return places;
}

struct Lines
{
    const CPhase& phase;
    std::vector<std::string> lines{};
    Troubles troubles{}; // of what has none

    void Note(std::string line, std::string trouble)
    {
        troubles.Add(line.empty() ? std::move(trouble) : std::string());
        if (!line.empty())
            lines.push_back(std::move(line));
    }
};

BOOL NoteLine(IAtom* pAtom, void* pContext)
{
    auto& noted = *static_cast<Lines*>(pContext);
    const CArchivedAtom* const pArchived = CArchivedAtom::Of(pAtom);
    if (!pArchived)
        return FALSE;
    std::string trouble;
    std::string line = noted.phase.LineOf(pArchived->Record(), trouble);
    if (trouble.empty())
        trouble = ToShown(pArchived->Record().name) + CPhase::kNoPictureOfIt;
    noted.Note(std::move(line), std::move(trouble));
    return TRUE;
}

std::string Insert(CAtomEditor& editor, CPhase& phase, const Lines& noted, UINT nBefore, UINT& nPlaced)
{
    nPlaced = 0;
    if (noted.lines.empty())
        return noted.troubles.Text();
    const History::Step step(&editor.GetHistory(), "new frames");
    if (std::string failure = phase.InsertLines(noted.lines, nBefore); !failure.empty())
        return failure;
    nPlaced = static_cast<UINT>(noted.lines.size());
    ReadAgainAndTell(editor, phase);
    return noted.troubles.Text();
}

template <class Change>
std::string Order(CAtomEditor& editor, CPhase& phase, Change change)
{
    const History::Step step(&editor.GetHistory(), "order of frames");
    std::string failure = change();
    if (failure.empty())
        ReadAgainAndTell(editor, phase);
    return failure;
}

} // namespace

bool AreDraggedFrom(const CAtomEditor& editor, const CPhase& phase)
{
    const auto pDragged = editor.GetDragged();
    return pDragged && std::ranges::all_of(
                           *pDragged, [&](const ActiveMember& member) { return member.pContainer.Get() == &phase; });
}

UINT CountStaying(const CAtomEditor& editor, UINT nBefore)
{
    const std::vector<std::size_t> places = DraggedPlaces(editor);
    return nBefore - static_cast<UINT>(std::ranges::count_if(places, [=](std::size_t n) { return n < nBefore; }));
}

std::string MoveDragged(CAtomEditor& editor, CPhase& phase, UINT nBefore)
{
    return Order(editor, phase, [&] { return phase.MoveLines(DraggedPlaces(editor), nBefore); });
}

std::string Shift(CAtomEditor& editor, CPhase& phase, std::vector<std::size_t>& places, bool bLater)
{
    return Order(editor, phase, [&] { return phase.ShiftLines(places, bLater); });
}

std::string InsertArchived(CAtomEditor& editor, CPhase& phase, IArchive* pArchive, UINT nBefore, UINT& nPlaced)
{
    Lines noted{phase};
    nPlaced = 0;
    if (!editor.ReadArchive(&NoteLine, pArchive, &noted))
        return editor.GetArchiveError();
    return Insert(editor, phase, noted, nBefore, nPlaced);
}

std::string InsertFiles(CPhase& phase, const std::vector<std::string>& paths, UINT nBefore, UINT& nPlaced)
{
    Lines noted{phase};
    for (const std::string& path : paths) {
        std::string trouble;
        std::string line = phase.LineOfFile(path, trouble);
        noted.Note(std::move(line), std::move(trouble));
    }
    return Insert(CAtomEditor::Current(), phase, noted, nBefore, nPlaced);
}

} // namespace editor
