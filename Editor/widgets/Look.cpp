#include "Editor/widgets/Look.h"

#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/WindowApi.h"

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

COLORREF ErrorColor()
{
    return RGB(176, 40, 40);
}

void FillBottomBar(HDC hdc, HWND hBar)
{
    CRect client;
    GetClientRect(hBar, &client);
    FillSolidRect(hdc, client, BarColor());
    FillSolidRect(hdc, {client.left, client.top, client.right, client.top + 1}, LineColor());
}

} // namespace editor
