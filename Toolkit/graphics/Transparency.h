// Pictures and what makes parts of them transparent: a mask or a colour.
#pragma once

#include "Toolkit/graphics/Surface.h"

namespace toolkit
{

// The picture, transparent where the mask (of the same size) is white.
TOOLKIT_API Surface WithMask(Surface picture, const Surface& mask);

// The picture with its opaque pixels of that colour made transparent.
TOOLKIT_API Surface WithTransparentColor(Surface picture, COLORREF color);

// A mask of the picture: white where it is opaque and of that colour, black elsewhere.
TOOLKIT_API Surface MaskOfColor(const Surface& picture, COLORREF color);

// A mask of the picture: white where nothing of it is seen, black elsewhere.
TOOLKIT_API Surface MaskOfAlpha(const Surface& picture);

} // namespace toolkit
