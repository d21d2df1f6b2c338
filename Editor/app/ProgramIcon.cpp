#include "Editor/app/ProgramIcon.h"

#include "HostKit/pictures/Pictograms.h"

#include <QPixmap>

namespace editor
{

QIcon MakeProgramIcon()
{
    QIcon icon;
    for (const int nExtent : {16, 24, 32, 48, 64, 128}) {
        const toolkit::Surface drawn = hostkit::DrawPictogram(hostkit::Pictogram::IconPane, nExtent);
        const QImage picture(reinterpret_cast<const uchar*>(drawn.Row(0)), drawn.Width(), drawn.Height(),
                             QImage::Format_ARGB32_Premultiplied);
        icon.addPixmap(QPixmap::fromImage(picture.copy()));
    }
    return icon;
}

} // namespace editor
