// What the frame's parts look like: the kit's measures, colours and texts, and the editor's own.
#pragma once

#include "HostKit/pictures/Look.h"

namespace editor
{

using hostkit::Align;
using hostkit::DrawCentred;
using hostkit::DrawChecks;
using hostkit::DrawTextLine;
using hostkit::kPaneCaptionHeight;
using hostkit::kSpace;
using hostkit::LineColor;
using hostkit::PressedColor;
using hostkit::TextWidth;

// Pixels.
inline constexpr int kMenuBarHeight = 32;
inline constexpr int kPathBarHeight = 40; // and that of the tools beside it
inline constexpr int kFieldHeight = 28;   // with the line around it
inline constexpr int kStatusBarHeight = 32;
inline constexpr int kPropertiesHeight = 40;

COLORREF BarColor();                             // behind the path, captions and the status
COLORREF HoverColor();                           // behind what a click would use
COLORREF CalmColor();                            // behind a large picture
COLORREF SheetColor();                           // behind what is read in place of the views
COLORREF ErrorColor();                           // of texts that tell of a failure, on bars
COLORREF TextColor(int nColor, COLORREF ground); // a system colour, made readable there

// The bar with path and tools, with a line below it; a bar at the bottom, with a line above it.
void FillTopBar(HDC hdc, const CRect& bar);
void FillBottomBar(HDC hdc, const CRect& bar);

// What a field for text lies on, with a line around it.
void FillField(HDC hdc, const CRect& rect);

toolkit::Surface Faded(toolkit::Surface picture, double strength);      // 0: nothing is left of it
void DrawOnChecks(HDC hdc, CPoint at, const toolkit::Surface& picture); // which are seen where it is transparent

} // namespace editor
