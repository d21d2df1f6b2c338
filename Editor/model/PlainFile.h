// A file that is neither a picture nor a phase.
#pragma once

#include "Editor/model/Member.h"
#include "Editor/pictures/IconPainter.h"

namespace editor
{

// It is shown with a sign of its own and travels like the others. What is in it only other programs know.
class CPlainFile : public CMember
{
public:
    CPlainFile(CContainer* pContainer, UINT nIndex) : CMember(pContainer, nIndex) {}

protected:
    toolkit::Surface DrawIcon(CSize size) override { return PaintPictogram(hostkit::Pictogram::File, size); }
};

} // namespace editor
