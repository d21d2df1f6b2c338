#include "Toolkit/paint/BeginPaint.h"

#include "Toolkit/handle/VisibleRegion.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/paint/UpdateLock.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/paint/WindowDC.h"

#include <utility>

namespace
{
using toolkit::Region;
using toolkit::WindowRecord;

// A parent that does not cut its children out draws over them: they draw again.
void NoteChildrenUnder(WindowRecord& window, const Region& clip, CPoint clientOrigin)
{
    if (!window.Is(WS_CLIPCHILDREN))
        for (const CRect& rect : clip.Rects())
            toolkit::InvalidateChildren(window, rect - clientOrigin);
}
} // namespace

toolkit::PaintTarget toolkit::BeginPaint(HWND hWnd)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return {nullptr, {}};
    const CPoint origin = ClientArea(*pWindow).TopLeft();
    pWindow->bPaintBegun = true;
    if (IsUpdateLocked(*pWindow)) // what is noted stays noted
        return {OpenWindowDC(*pWindow, origin, {}), {}};

    Region clip = pWindow->update.Take(ClientRect(*pWindow));
    clip.Offset(origin);
    clip = Intersection(clip, VisibleClient(*pWindow, Children::AsTheStyleSays));
    NoteChildrenUnder(*pWindow, clip, origin);
    const PaintTarget target{OpenWindowDC(*pWindow, origin, clip), clip.Bounds() - origin};
    if (std::exchange(pWindow->bErase, false) && !clip.IsEmpty())
        SendMessage(hWnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(target.hdc), 0);
    return target;
}

void toolkit::EndPaint(HWND hWnd, HDC hdc)
{
    CloseWindowDC(hWnd, hdc);
}
