#include "Toolkit/graphics/SysColors.h"

COLORREF GetSysColor(int nIndex)
{
    switch (nIndex) {
    case COLOR_WINDOW:
    case COLOR_HIGHLIGHTTEXT:
    case COLOR_BTNHIGHLIGHT:
        return RGB(255, 255, 255);
    case COLOR_HIGHLIGHT:
        return RGB(0, 103, 192);
    case COLOR_BTNFACE:
        return RGB(229, 229, 229);
    case COLOR_BTNSHADOW:
        return RGB(160, 160, 160);
    case COLOR_3DDKSHADOW:
        return RGB(105, 105, 105);
    case COLOR_3DLIGHT:
        return RGB(243, 243, 243);
    case COLOR_GRAYTEXT:
        return RGB(109, 109, 109);
    default:
        return RGB(0, 0, 0);
    }
}
