// Enlarging of small pictures.
#pragma once

#include "Toolkit/graphics/Surface.h"

namespace editor
{

// The picture at a size that is not smaller than its own either way; curves stay curves. Costs a few
// nanoseconds for each new pixel. Empty when the picture or the size is.
toolkit::Surface Enlarge(const toolkit::Surface& picture, CSize size);

// Every pixel as a square of so many pixels each way, as large as the room allows; at least as large as it is.
toolkit::Surface EnlargePixels(const toolkit::Surface& picture, CSize room);

} // namespace editor
