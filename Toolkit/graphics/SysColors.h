// The colours of the desktop's look. A desktop says four of them, from which the others are made; until then they are
// the toolkit's own, light and the same on every machine.
#pragma once

#include "Toolkit/base/Types.h"

inline constexpr int COLOR_WINDOW = 5; // a list's or a field's ground
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13; // what is selected, with the focus
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;   // frames and bars; what is selected without the focus
inline constexpr int COLOR_BTNSHADOW = 16; // lines between things
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNHIGHLIGHT = 20; // the lit side of a raised edge
inline constexpr int COLOR_3DDKSHADOW = 21;   // the dark side's outer line
inline constexpr int COLOR_3DLIGHT = 22;      // the lit side's outer line

TOOLKIT_API COLORREF GetSysColor(int nIndex); // that of texts for an unknown one

namespace toolkit
{

struct ColorScheme
{
    COLORREF window = RGB(255, 255, 255), text = RGB(0, 0, 0);
    COLORREF highlight = RGB(0, 103, 192), highlightText = RGB(255, 255, 255);

    bool operator==(const ColorScheme&) const = default;
};

// For all that is painted from now on. What of it cannot be read on the other is moved away from it. False when these
// were the colours before.
TOOLKIT_API bool SetColorScheme(const ColorScheme& scheme);
TOOLKIT_API bool IsDark(); // texts are lighter than what they are on

// From the ground of windows, 0, to the colour of texts, 255.
TOOLKIT_API COLORREF ShadeColor(int nShade);

// How much lighter the one is than the other, from 1 to 21. Texts need 4.5.
TOOLKIT_API double Contrast(COLORREF a, COLORREF b);
// The colour, or the first on its way to black or to white, whichever is farther from the ground, that has the contrast
// of a text.
TOOLKIT_API COLORREF Readable(COLORREF color, COLORREF ground);

} // namespace toolkit
