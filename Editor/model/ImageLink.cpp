#include "Editor/model/ImageLink.h"

#include "Editor/model/FileText.h"
#include "Editor/model/LibraryContext.h"
#include "Editor/model/Phase.h"
#include "Editor/model/PhaseText.h"
#include "Editor/pictures/IconPainter.h"

namespace editor
{
CImageLink::CImageLink(CPhase* pPhase, UINT nIndex) : CMember(pPhase, nIndex) {}

std::string_view CImageLink::Name() const
{
    return BaseName(Line());
}

// Where no picture is found, the one beside the phase is the one that is missed.
std::string CImageLink::Path() const
{
    return FindPicture(Line(), Container()->Container()->Path(), Context().rootPath).path;
}

std::string CImageLink::ErrorReason() const
{
    const std::string path = Path();
    return path.empty() ? "lies outside the library" : Context().pPictures->ErrorOf(path);
}

void* CImageLink::FindInterface(DWORD id)
{
    return id == IID_IImageLink ? static_cast<IImageLink*>(this) : CMember::FindInterface(id);
}

toolkit::Surface CImageLink::DrawIcon(CSize size)
{
    const std::string path = Path();
    if (path.empty())
        return PaintPictogram(Pictogram::BrokenPicture, size);
    return PaintPictureIcon(Context().pPictures->Find(path, PictureSizeFor(size), this), size);
}

std::string_view CImageLink::Line() const
{
    return static_cast<CPhase*>(Container())->LineOf(*this);
}

} // namespace editor
