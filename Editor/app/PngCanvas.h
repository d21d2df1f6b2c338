// What is seen of an animated PNG file: its frames, put together.
#pragma once

#include "Editor/pictures/AnimatedPng.h"

#include <QImage>
#include <optional>

namespace editor
{

// Each frame is drawn upon what those before it have left. It holds one picture of the canvas' size, and for a frame
// that is to be taken off again what lay below that.
class PngCanvas
{
public:
    explicit PngCanvas(QSize size);

    bool Draw(const PngFrame& frame); // false, and no change: it cannot be decoded
    const QImage& GetImage() const { return m_image; }

private:
    void Leave(); // the frame before

    QImage m_image;
    std::optional<PngFrame> m_left;
    QImage m_below;
};

} // namespace editor
