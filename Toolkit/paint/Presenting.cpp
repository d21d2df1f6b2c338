#include "Toolkit/paint/Presenting.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/paint/WindowDC.h"

#include <utility>

toolkit::Surface& toolkit::SurfaceOf(WindowRecord& top)
{
    const CSize size = top.rect.Size();
    if (!(top.surface.Bounds().Size() == size)) {
        CloseSurfaceDCs(top.hWnd);
        top.surface = Surface(size, ToPixel(GetSysColor(COLOR_BTNFACE)));
    }
    return top.surface;
}

void toolkit::NotePainted(WindowRecord& top, const CRect& area)
{
    if (area.IsRectEmpty())
        return;
    top.dirty = top.dirty | area;
    RequestPaint();
}

void toolkit::PresentPainted()
{
    for (WindowRecord* pTop : TopLevelRecords()) {
        const CRect dirty = std::exchange(pTop->dirty, CRect()) & pTop->surface.Bounds();
        if (!dirty.IsRectEmpty() && pTop->bKnownToDesktop)
            CurrentDesktop().Present(pTop->hWnd, pTop->surface, dirty);
    }
}

const toolkit::Surface* toolkit::WindowSurface(HWND hTop)
{
    const WindowRecord* pTop = FindRecord(hTop);
    return pTop && pTop->IsTop() ? &pTop->surface : nullptr;
}
