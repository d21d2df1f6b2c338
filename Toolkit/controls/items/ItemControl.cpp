#include "Toolkit/controls/items/ItemControl.h"

#include "Toolkit/graphics/Gdi.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace toolkit
{

namespace
{
constexpr int kDragDistance = 4;
} // namespace

CSize ItemControl::ImageSize() const
{
    int cx = 0, cy = 0;
    return ImageList_GetIconSize(m_hImages, &cx, &cy) ? CSize(cx, cy) : CSize();
}

CSize ItemControl::ClientSize() const
{
    CRect rect;
    GetClientRect(m_hWnd, &rect);
    return rect.Size();
}

CSize ItemControl::SizeWithoutBars() const
{
    const int edge = (GetWindowExStyle(m_hWnd) & WS_EX_CLIENTEDGE ? kClientEdge : 0) + (Is(WS_BORDER) ? 1 : 0);
    CRect rect;
    GetWindowRect(m_hWnd, &rect);
    return {rect.Width() - 2 * edge, rect.Height() - 2 * edge};
}

bool ItemControl::IsDrag(CPoint from, CPoint to)
{
    return std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)) >= kDragDistance;
}

std::int64_t ItemControl::ScrollTarget(int nBar, WPARAM wParam, std::int64_t position, int line, int page,
                                       std::int64_t unit) const
{
    SCROLLINFO info{};
    switch (LOWORD(wParam)) {
    case SB_LINEUP:
        return position - line;
    case SB_LINEDOWN:
        return position + line;
    case SB_PAGEUP:
        return position - std::max(page - line, line);
    case SB_PAGEDOWN:
        return position + std::max(page - line, line);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return GetScrollInfo(m_hWnd, nBar, &info) ? info.nTrackPos * unit : position;
    default:
        return position;
    }
}

int ItemControl::WheelSteps(WPARAM wParam, int perNotch)
{
    m_wheelRest += static_cast<std::int16_t>(HIWORD(wParam)) * perNotch;
    const int steps = m_wheelRest / WHEEL_DELTA;
    m_wheelRest %= WHEEL_DELTA;
    return steps;
}

void ItemControl::OnCreate()
{
    Measure();
    Relayout();
}

BOOL ItemControl::OnEraseBackground(HDC hdc)
{
    return FillSolidRect(hdc, CRect(CPoint(), ClientSize()), GetSysColor(COLOR_WINDOW));
}

HIMAGELIST ItemControl::OnSetImageList(WPARAM which, HIMAGELIST hImages)
{
    if (which != kNormalImages)
        return nullptr;
    const HIMAGELIST former = std::exchange(m_hImages, hImages);
    MeasuresChanged();
    return former;
}

void ItemControl::MeasuresChanged()
{
    Measure();
    RedrawAll();
    Relayout();
}

void ItemControl::OnFontChange()
{
    MeasuresChanged();
    ::DefWindowProc(m_hWnd, WM_FONTCHANGE, 0, 0); // the label's field is told, too
}

HWND ItemControl::EditLabel(LPARAM item, bool takesFormer)
{
    m_labels.Finish(takesFormer);
    m_labels.Begin(item);
    return IsAlive() ? m_labels.Field() : nullptr;
}

} // namespace toolkit
