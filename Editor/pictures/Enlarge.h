// How large pictures are shown, and enlarging of small ones. Sizes are in pixels.
#pragma once

#include "Toolkit/graphics/Surface.h"

namespace editor
{

// The picture at a size that is not smaller than its own either way; curves stay curves. Costs a few
// nanoseconds for each new pixel. Empty when the picture or the size is.
toolkit::Surface Enlarge(const toolkit::Surface& picture, CSize size);

// Every pixel as a square of so many pixels each way, as large as the room allows; at least as large as it is.
toolkit::Surface EnlargePixels(const toolkit::Surface& picture, CSize room);

// The size at which the whole of a picture is shown in that room: enlarged up to four times, or with squares as many
// times as there is room for.
CSize FittedSize(CSize own, CSize room, bool bSquares);
toolkit::Surface FittedTo(const toolkit::Surface& picture, CSize room, bool bSquares); // the picture so, for the screen

} // namespace editor
