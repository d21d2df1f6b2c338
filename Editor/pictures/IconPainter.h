// Icons of atoms, at any size, as fine as the screen. Sizes are in coordinates where nothing else is said.
#pragma once

#include "Editor/pictures/PictureStore.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/graphics/Gdi.h"

namespace editor
{

// The pictogram in the middle of a transparent ground.
toolkit::Surface PaintPictogram(hostkit::Pictogram which, CSize size);

// The size in pixels at which a picture for an icon is wished for: small icons are made from what is read for larger
// ones.
CSize PictureSizeFor(CSize icon);

// A picture that has reached the store, in the middle of a transparent ground: one that covers its whole rectangle
// as a little photograph, with an edge and a shadow; any other as it is. Else what tells that there is none, or
// none yet.
toolkit::Surface PaintPictureIcon(const PictureStore::Answer& answer, CSize size);

// A pictogram that tells of what kind the object is, in the lower left corner: of an icon, of a thumbnail.
toolkit::Surface WithMark(toolkit::Surface icon, hostkit::Pictogram mark);
void DrawMark(HDC hdc, const CRect& rect, hostkit::Pictogram mark);

// The picture in the middle of the rectangle, smaller when it does not fit, or enlarged where that is wanted; or what
// tells that there is none, or none yet where it is not known at another size either; what is transparent over checks.
// FALSE, and nothing drawn, without memory.
BOOL DrawThumbnail(HDC hdc, const CRect& rect, const PictureStore::Answer& answer, bool bEnlarge = false);

} // namespace editor
