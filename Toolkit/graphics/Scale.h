// Scaling pictures, larger and smaller.
#pragma once

#include "Toolkit/graphics/Surface.h"

namespace toolkit
{

// The picture at another size: each new pixel is the mean of the area it covers, exact and rounded, colours
// weighted by their alpha. Empty when the picture or the size is. Reads the source once, row by row; needs memory
// for the result and a few rows.
TOOLKIT_API Surface ScaleSurface(const Surface& source, CSize size);

// The largest size of the picture's proportions within the room, at least 1 by 1; 0 by 0 when either is empty.
TOOLKIT_API CSize FitInto(CSize picture, CSize room);

// Where something of that size lies when it is centred; what does not come out even lies to the left and above.
constexpr CPoint Centred(CSize size, const CRect& room)
{
    return {room.left + (room.Width() - size.cx) / 2, room.top + (room.Height() - size.cy) / 2};
}

} // namespace toolkit
