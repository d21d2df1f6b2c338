#include "Editor/model/PlainFile.h"

#include "Editor/pictures/IconPainter.h"

namespace editor
{

toolkit::Surface CPlainFile::DrawIcon(CSize size)
{
    return PaintPictogram(hostkit::Pictogram::File, size);
}

} // namespace editor
