// Frames of a phase, put where the user wants them.
#pragma once

#include "Editor/services/AtomEditor.h"

#include <string>
#include <vector>

namespace editor
{

// All come before that frame, counted from 0, or behind the last one: in the order they are given in, with one change
// of the phase, of which every view hears. Empty, or the reason why not all were placed, for each of them.

// Those of the phase that are being dragged.
std::string MoveDragged(CAtomEditor& editor, CPhase& phase, UINT nBefore);
// Each of these, which are in order, one place earlier or later; `places` become where they are then.
std::string Shift(CAtomEditor& editor, CPhase& phase, std::vector<std::size_t>& places, bool bLater);
// The pictures and lines in an archive. `nPlaced`: so many.
std::string InsertArchived(CAtomEditor& editor, CPhase& phase, IArchive* pArchive, UINT nBefore, UINT& nPlaced);
// Those of the files that are pictures of the same library.
std::string InsertFiles(CPhase& phase, const std::vector<std::string>& paths, UINT nBefore, UINT& nPlaced);

// Is all that is being dragged in this phase? How many frames are before that one, and not among these?
bool AreDraggedFrom(const CAtomEditor& editor, const CPhase& phase);
UINT CountStaying(const CAtomEditor& editor, UINT nBefore);

} // namespace editor
