#include "Editor/model/ImageLink.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/Phase.h"
#include "Editor/model/PhaseText.h"

namespace editor
{
CImageLink::CImageLink(CPhase* pPhase, UINT nIndex) : With(pPhase, nIndex) {}

std::string_view CImageLink::Name() const
{
    return BaseName(Line());
}

// Where no picture is found, the one beside the phase is the one that is missed.
std::string CImageLink::Path() const
{
    return FindPicture(Line(), Container()->Container()->Path(), Context().rootPath).path;
}

std::string_view CImageLink::Line() const
{
    return static_cast<CPhase*>(Container())->LineOf(*this);
}

} // namespace editor
