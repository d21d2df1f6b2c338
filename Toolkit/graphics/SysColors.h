// The colours of the desktop's look. The values are the toolkit's own, the same on every machine.
#pragma once

#include "Toolkit/base/Types.h"

inline constexpr int COLOR_WINDOW = 5; // a list's or a field's ground
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13; // what is selected, with the focus
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;   // frames and bars; what is selected without the focus
inline constexpr int COLOR_BTNSHADOW = 16; // lines between things
inline constexpr int COLOR_GRAYTEXT = 17;
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_BTNHIGHLIGHT = 20; // the lit side of a raised edge
inline constexpr int COLOR_3DDKSHADOW = 21;   // the dark side's outer line
inline constexpr int COLOR_3DLIGHT = 22;      // the lit side's outer line

TOOLKIT_API COLORREF GetSysColor(int nIndex); // black for an unknown one
