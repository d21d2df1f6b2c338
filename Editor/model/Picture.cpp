#include "Editor/model/Picture.h"

#include "Editor/model/LibraryContext.h"
#include "Editor/pictures/IconPainter.h"

namespace editor
{

std::string CPicture::ErrorReason() const
{
    return Context().pPictures->ErrorOf(Path());
}

toolkit::Surface CPicture::DrawIcon(CSize size)
{
    return PaintPictureIcon(Context().pPictures->Find(Path(), PictureSizeFor(size), this), size);
}

} // namespace editor
