// What the frame's parts look like: the kit's measures, colours and texts, and the editor's own.
#pragma once

#include "HostKit/Look.h"

namespace editor
{

using hostkit::Align;
using hostkit::DrawCentred;
using hostkit::DrawTextLine;
using hostkit::kPaneCaptionHeight;
using hostkit::kSpace;
using hostkit::LineColor;
using hostkit::PressedColor;
using hostkit::TextWidth;

// Pixels.
inline constexpr int kPathBarHeight = 40;
inline constexpr int kStatusBarHeight = 32;
inline constexpr int kPropertiesHeight = 40;

COLORREF BarColor();   // behind the path, captions and the status
COLORREF HoverColor(); // behind what a click would use
COLORREF CalmColor();  // behind a large picture
COLORREF ErrorColor(); // of texts that tell of a failure

// What a bar at the bottom lies on, with a line above it: the window's whole client area.
void FillBottomBar(HDC hdc, HWND hBar);

} // namespace editor
