#include "Toolkit/scroll/Frame.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/scroll/ScrollTracker.h"

namespace
{
using toolkit::ScrollBar;
using toolkit::WindowRecord;

constexpr int kTrack = 9, kThumb = 59, kHotThumb = 95, kPressedThumb = 135; // shades of the ground
constexpr int kThumbMargin = 3;                                             // between the thumb and the track's edge
constexpr int kThumbRadius = 4;                                             // half of what is left across

void PaintScrollBar(const WindowRecord& window, HDC hdc, int nBar)
{
    const CRect box = toolkit::ScrollBarBox(window, nBar);
    if (box.IsRectEmpty())
        return;
    FillSolidRect(hdc, box, toolkit::ShadeColor(kTrack));
    const SCROLLINFO& info = window.bars[static_cast<std::size_t>(nBar)].info;
    if (!ScrollBar::IsNeeded(info))
        return;
    const ScrollBar bar(box, nBar, info);
    const toolkit::ScrollBarLook look = toolkit::GetScrollBarLook(window.hWnd, nBar, bar);
    CRect thumb = bar.GetThumbAt(look.nThumbOffset);
    thumb.DeflateRect(kThumbMargin, kThumbMargin);
    if (thumb.Width() >= 2 * kThumbRadius && thumb.Height() >= 2 * kThumbRadius)
        FillRoundRect(hdc, thumb, kThumbRadius,
                      toolkit::ShadeColor(look.bPressed ? kPressedThumb
                                          : look.bHot   ? kHotThumb
                                                        : kThumb));
}

// The square where two scroll bars meet.
void PaintCorner(const WindowRecord& window, HDC hdc)
{
    const CRect below = toolkit::ScrollBarBox(window, SB_HORZ);
    const CRect beside = toolkit::ScrollBarBox(window, SB_VERT);
    if (!below.IsRectEmpty() && !beside.IsRectEmpty())
        FillSolidRect(hdc, CRect(beside.left, below.top, beside.right, below.bottom), toolkit::ShadeColor(kTrack));
}

void PaintBorder(const WindowRecord& window, HDC hdc)
{
    if (!window.Is(WS_BORDER) && !(window.exStyle & WS_EX_CLIENTEDGE))
        return;
    const int cx = window.rect.Width(), cy = window.rect.Height();
    const COLORREF color = GetSysColor(COLOR_BTNSHADOW);
    for (const CRect& side : {CRect(0, 0, cx, kClientEdge), CRect(0, cy - kClientEdge, cx, cy),
                              CRect(0, 0, kClientEdge, cy), CRect(cx - kClientEdge, 0, cx, cy)})
        FillSolidRect(hdc, side, color);
}
} // namespace

void toolkit::PaintFrame(const WindowRecord& window, HDC hdc)
{
    PaintBorder(window, hdc);
    PaintScrollBar(window, hdc, SB_HORZ);
    PaintScrollBar(window, hdc, SB_VERT);
    PaintCorner(window, hdc);
}
