#include "Editor/model/ImageLink.h"

#include "Editor/disk/FileText.h"
#include "Editor/model/Phase.h"
#include "Editor/model/PhaseText.h"

namespace editor
{
CImageLink::CImageLink(CPhase* pPhase, UINT nIndex) : With(pPhase, nIndex)
{
    Context().links.insert(this);
}

std::string_view CImageLink::Name() const
{
    return BaseName(Line());
}

// Where no picture is found, the one beside the phase is the one that is missed.
std::string CImageLink::Path() const
{
    return Place().path;
}

PicturePlace CImageLink::Place() const
{
    return FindPicture(Line(), Container()->Container()->Path(), Context().rootPath);
}

std::string CImageLink::ErrorReason() const
{
    const PicturePlace place = Place();
    if (place.isThere || place.error != 0 || place.path.empty())
        return CPictureMember::ErrorReason();
    return "there is no \"" + ToShown(PathInLibrary()) + "\" in the library";
}

std::string_view CImageLink::Line() const
{
    return static_cast<CPhase*>(Container())->LineOf(*this);
}

} // namespace editor
