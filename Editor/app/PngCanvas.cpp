#include "Editor/app/PngCanvas.h"

#include <QPainter>

namespace editor
{
namespace
{

QRect RectOf(const PngFrame& frame)
{
    return {frame.place.left, frame.place.top, frame.place.Width(), frame.place.Height()};
}

void Put(QImage& onto, QPoint at, const QImage& picture, bool bOver)
{
    QPainter painter(&onto);
    painter.setCompositionMode(bOver ? QPainter::CompositionMode_SourceOver : QPainter::CompositionMode_Source);
    painter.drawImage(QRect(at, picture.size()), picture); // one pixel to one, whatever resolution it tells
}

} // namespace

PngCanvas::PngCanvas(QSize size) : m_image(size, QImage::Format_ARGB32_Premultiplied)
{
    m_image.fill(Qt::transparent);
}

bool PngCanvas::Draw(const PngFrame& frame)
{
    const QRect place = RectOf(frame);
    const QImage picture = QImage::fromData(frame.png.data(), static_cast<int>(frame.png.size()), "png");
    if (m_image.isNull() || picture.size() != place.size())
        return false;
    Leave();
    if (frame.after == PngFrame::After::Restore)
        m_below = m_image.copy(place);
    Put(m_image, place.topLeft(), picture, frame.bOver);
    m_left = PngFrame{frame.place, frame.delay, frame.after, frame.bOver};
    return true;
}

void PngCanvas::Leave()
{
    if (!m_left || m_left->after == PngFrame::After::Keep)
        return;
    if (m_left->after == PngFrame::After::Clear) {
        m_below = QImage(RectOf(*m_left).size(), QImage::Format_ARGB32_Premultiplied);
        m_below.fill(Qt::transparent);
    }
    Put(m_image, RectOf(*m_left).topLeft(), m_below, false);
}

} // namespace editor
