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

COLORREF BarColor();   // behind the path, captions and the status
COLORREF HoverColor(); // behind what a click would use
COLORREF CalmColor();  // behind a large picture
COLORREF ErrorColor(); // of texts that tell of a failure

// What the bar with path and tools lies on, with a line below it: the window's whole client area.
void FillTopBar(HDC hdc, HWND hBar);

// What a field for text lies on, with a line around it.
void FillField(HDC hdc, const CRect& rect);

toolkit::Surface Faded(toolkit::Surface picture, double strength);      // 0: nothing is left of it
void DrawOnChecks(HDC hdc, CPoint at, const toolkit::Surface& picture); // which are seen where it is transparent

// What a bar at the bottom lies on, with a line above it: the window's whole client area.
void FillBottomBar(HDC hdc, HWND hBar);

} // namespace editor
