#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/GdiObjects.h"
#include "Toolkit/graphics/SysColors.h"

namespace
{

struct Line
{
    UINT style;
    int topLeft, bottomRight; // colours
};

// The outer lines come before the inner ones.
constexpr Line kLines[] = {{BDR_RAISEDOUTER, COLOR_3DLIGHT, COLOR_3DDKSHADOW},
                           {BDR_SUNKENOUTER, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT},
                           {BDR_RAISEDINNER, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW},
                           {BDR_SUNKENINNER, COLOR_3DDKSHADOW, COLOR_3DLIGHT}};

// Draws one line along the sides asked for; the rectangle without them.
CRect DrawLine(HDC hdc, const CRect& rect, const Line& line, UINT sides)
{
    const COLORREF topLeft = GetSysColor(line.topLeft), bottomRight = GetSysColor(line.bottomRight);
    CRect inside = rect;
    if (sides & BF_LEFT)
        FillSolidRect(hdc, CRect(rect.left, rect.top, ++inside.left, rect.bottom), topLeft);
    if (sides & BF_TOP)
        FillSolidRect(hdc, CRect(rect.left, rect.top, rect.right, ++inside.top), topLeft);
    if (sides & BF_RIGHT)
        FillSolidRect(hdc, CRect(--inside.right, rect.top, rect.right, rect.bottom), bottomRight);
    if (sides & BF_BOTTOM)
        FillSolidRect(hdc, CRect(rect.left, --inside.bottom, rect.right, rect.bottom), bottomRight);
    return inside;
}

} // namespace

BOOL DrawEdge(HDC hdc, const RECT& rect, UINT edge, UINT flags)
{
    if (!toolkit::FindContext(hdc))
        return FALSE;
    CRect rest = rect;
    for (const Line& line : kLines)
        if (edge & line.style)
            rest = DrawLine(hdc, rest, line, flags);
    return TRUE;
}
