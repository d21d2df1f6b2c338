// What the frame's parts look like: measures, colours, texts.
#pragma once

#include "Toolkit/graphics/Gdi.h"

#include <string_view>

namespace editor
{

// Pixels. Everything keeps to steps of 8.
inline constexpr int kSpace = 8;
inline constexpr int kPathBarHeight = 40;
inline constexpr int kPaneCaptionHeight = 32;
inline constexpr int kStatusBarHeight = 32;
inline constexpr int kPropertiesHeight = 40;

COLORREF BarColor();     // behind the path, captions and the status
COLORREF LineColor();    // between things
COLORREF HoverColor();   // behind what a click would use
COLORREF PressedColor(); // the same with the button down
COLORREF CalmColor();    // behind a large picture
COLORREF ErrorColor();   // of texts that tell of a failure

enum class Align
{
    Left,
    Center,
    Right
};

// One line, cut with dots when the rectangle is too narrow, in the middle of its height.
void DrawTextLine(HDC hdc, const CRect& rect, std::string_view text, COLORREF color, Align align = Align::Left,
                  toolkit::FontStyle style = toolkit::FontStyle::Regular);
int TextWidth(std::string_view text, toolkit::FontStyle style = toolkit::FontStyle::Regular);

// What a bar at the bottom lies on, with a line above it: the window's whole client area.
void FillBottomBar(HDC hdc, HWND hBar);

// In the middle of the rectangle.
void DrawCentred(HDC hdc, const CRect& rect, const toolkit::Surface& picture);

} // namespace editor
