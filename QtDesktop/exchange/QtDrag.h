// Drags that begin in this program.
#pragma once

#include "Toolkit/desktop/DropEffect.h"
#include "Toolkit/desktop/OfferedData.h"

#include <memory>

namespace qtdesktop
{

// Runs the drag to its end. A drop in another program counts as a copy, unless the program confirms within the given
// time that it has moved the data, or refused it.
DROPEFFECT RunQtDrag(std::shared_ptr<toolkit::OfferedData> data, DROPEFFECT allowed, int nMilliseconds);

// The program's own drag was dropped in one of its own windows: what has become of it.
void NoteOwnDrop(DROPEFFECT effect);

// Is the action that the desktop proposes the only way to know whether Ctrl is held?
bool IsProposalTrusted();

} // namespace qtdesktop
