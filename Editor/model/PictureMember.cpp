#include "Editor/model/PictureMember.h"

#include "Editor/model/LibraryContext.h"
#include "Editor/model/PhaseText.h"
#include "Editor/pictures/IconPainter.h"

#include <algorithm>

namespace editor
{

std::string CPictureMember::ErrorReason() const
{
    const std::string path = Path();
    return path.empty() ? "lies outside the library" : Context().pPictures->ErrorOf(path);
}

std::string CPicture::LineIn(const std::string& folder, int& error) const
{
    return LineFor(Path(), folder, Context().rootPath, error);
}

UINT CPictureMember::GetFrameCount()
{
    return static_cast<UINT>(std::max(1, Context().pPictures->FrameCountOf(Path())));
}

BOOL CPictureMember::Draw(HDC hdc, CRect& rect, DWORD, DWORD, UINT nFrame)
{
    const std::string path = Path();
    if (path.empty())
        return DrawThumbnail(hdc, rect, {nullptr, true});
    PictureStore& pictures = *Context().pPictures;
    const int frames = pictures.FrameCountOf(path);
    if (frames > 0 && nFrame >= static_cast<UINT>(frames))
        return FALSE;
    const int frame = frames > 0 ? static_cast<int>(nFrame) : 0; // the first read tells how many there are
    const CSize size = toolkit::ScaleOf(hdc).ToPixels(rect.Size());
    return DrawThumbnail(hdc, rect, pictures.Find(path, size, this, frame), pictures.IsEnlarging());
}

toolkit::Surface CPictureMember::DrawIcon(CSize size)
{
    const std::string path = Path();
    if (path.empty())
        return PaintPictogram(hostkit::Pictogram::BrokenPicture, size);
    return PaintPictureIcon(Context().pPictures->Find(path, PictureSizeFor(size), this), size);
}

} // namespace editor
