#include "Editor/widgets/Look.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/Pixels.h"
#include "Toolkit/graphics/SysColors.h"

namespace editor
{

COLORREF BarColor()
{
    return hostkit::MixSysColors(COLOR_WINDOW, COLOR_BTNFACE, 40);
}

COLORREF HoverColor()
{
    return hostkit::MixSysColors(COLOR_WINDOW, COLOR_HIGHLIGHT, 12);
}

COLORREF CalmColor()
{
    return hostkit::MixSysColors(COLOR_WINDOW, COLOR_BTNFACE, 60);
}

COLORREF SheetColor()
{
    return GetSysColor(COLOR_WINDOW);
}

COLORREF ErrorColor()
{
    return toolkit::Readable(RGB(176, 40, 40), BarColor());
}

COLORREF TextColor(int nColor, COLORREF ground)
{
    return toolkit::Readable(GetSysColor(nColor), ground);
}

void FillTopBar(HDC hdc, const CRect& bar)
{
    FillSolidRect(hdc, bar, BarColor());
    FillSolidRect(hdc, {bar.left, bar.bottom - 1, bar.right, bar.bottom}, LineColor());
}

void FillBottomBar(HDC hdc, const CRect& bar)
{
    FillSolidRect(hdc, bar, BarColor());
    FillSolidRect(hdc, {bar.left, bar.top, bar.right, bar.top + 1}, LineColor());
}

void FillField(HDC hdc, const CRect& rect)
{
    CRect inner = rect;
    inner.DeflateRect(1, 1);
    FillSolidRect(hdc, rect, LineColor());
    FillSolidRect(hdc, inner, GetSysColor(COLOR_WINDOW));
}

toolkit::Surface Faded(toolkit::Surface picture, double strength)
{
    const auto part = static_cast<toolkit::Pixel>(strength * 256);
    for (int y = 0; y < picture.Height(); ++y)
        for (toolkit::Pixel *p = picture.Row(y), *const end = p + picture.Width(); p != end; ++p)
            *p = ((*p & 0xFF00FF) * part >> 8 & 0xFF00FF) | ((*p >> 8 & 0xFF00FF) * part & 0xFF00FF00);
    return picture;
}

void DrawOnChecks(HDC hdc, CPoint at, const toolkit::Surface& picture)
{
    if (!toolkit::CoversAll(picture))
        DrawChecks(hdc, {at, picture.Size()});
    toolkit::DrawSurface(hdc, at, picture);
}

} // namespace editor
