// What a frame's parts look like: measures, colours, texts.
#pragma once

#include "HostKit/base/Api.h"
#include "Toolkit/graphics/Gdi.h"

#include <string_view>

namespace hostkit
{

// Pixels. Everything keeps to steps of 8.
inline constexpr int kSpace = 8;
inline constexpr int kPaneCaptionHeight = 32;

// `percent` of the second system colour (COLOR_) in the first.
HOSTKIT_API COLORREF MixSysColors(int nFirst, int nSecond, int percent);
HOSTKIT_API COLORREF LineColor();    // between things
HOSTKIT_API COLORREF PressedColor(); // behind what is held down

enum class Align
{
    Left,
    Center,
    Right
};

// One line, cut with dots when the rectangle is too narrow, in the middle of its height.
HOSTKIT_API void DrawTextLine(HDC hdc, const CRect& rect, std::string_view text, COLORREF color,
                              Align align = Align::Left, toolkit::FontStyle style = toolkit::FontStyle::Regular);
HOSTKIT_API int TextWidth(std::string_view text, toolkit::FontStyle style = toolkit::FontStyle::Regular);

// In the middle of the rectangle.
HOSTKIT_API BOOL DrawCentred(HDC hdc, const CRect& rect, const toolkit::Surface& picture);

HOSTKIT_API void DrawChecks(HDC hdc, const CRect& rect); // what lies under transparent pictures

} // namespace hostkit
