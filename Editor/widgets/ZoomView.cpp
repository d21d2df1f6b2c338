#include "Editor/widgets/ZoomView.h"

#include "Editor/widgets/Look.h"
#include "Toolkit/graphics/Scale.h"

#include <algorithm>
#include <utility>

namespace editor
{
namespace
{

// What is seen of a picture that is drawn at that size: its pixels as squares, or the mean of those that share one.
toolkit::Surface PartOf(const toolkit::Surface& picture, CSize drawn, const CRect& seen)
{
    const auto from = [](LONG at, LONG own, LONG size) { return static_cast<int>(std::int64_t{at} * own / size); };
    const CSize own = picture.Bounds().Size();
    const bool bReduced = drawn.cx < own.cx;
    const CRect source(from(seen.left, own.cx, drawn.cx), from(seen.top, own.cy, drawn.cy),
                       std::min<int>(own.cx, from(seen.right - 1, own.cx, drawn.cx) + 1),
                       std::min<int>(own.cy, from(seen.bottom - 1, own.cy, drawn.cy) + 1));
    toolkit::Surface part(bReduced ? source.Size() : seen.Size());
    for (int y = 0; y < part.Height(); ++y)
        for (int x = 0; x < part.Width(); ++x)
            part.Row(y)[x] =
                bReduced ? picture.Row(source.top + y)[source.left + x]
                         : picture.Row(from(seen.top + y, own.cy, drawn.cy))[from(seen.left + x, own.cx, drawn.cx)];
    return bReduced ? toolkit::ScaleSurface(part, seen.Size()) : std::move(part);
}

} // namespace

BEGIN_MESSAGE_MAP(CZoomView, hostkit::CWidget)
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

template <class Change>
void CZoomView::Zoom(Change change)
{
    if (FullSize() == CSize())
        return;
    change();
    OnZoomed();
    Invalidate();
    m_zoomed();
}

CRect CZoomView::PixelView() const
{
    return toolkit::ScreenScale().ToPixels(View());
}

double CZoomView::FitZoom() const
{
    return 1.0 * std::max<int>(FittedSize().cx, 1) / std::max<int>(FullSize().cx, 1);
}

void CZoomView::ZoomBy(int nSteps)
{
    Zoom([&] { m_zoom.Step(nSteps, PixelView().CenterPoint(), PixelView(), FullSize(), FitZoom()); });
}

void CZoomView::Fit()
{
    Zoom([&] { m_zoom.Fit(); });
}

void CZoomView::ShowOwnSize()
{
    Zoom([&] { m_zoom.SetTo(1, PixelView().CenterPoint(), PixelView(), FullSize(), FitZoom()); });
}

bool CZoomView::PanBy(CSize by)
{
    if (m_zoom.IsFit() || FullSize() == CSize())
        return false;
    m_zoom.Pan(by, PixelView(), FullSize());
    Invalidate();
    return true;
}

void CZoomView::DrawZoomed(HDC hdc, const toolkit::Surface& picture) const
{
    const CRect place = m_zoom.Place(PixelView(), FullSize());
    const CRect seen = place & PixelView();
    if (seen.IsRectEmpty())
        return;
    toolkit::Surface part = PartOf(picture, place.Size(), seen - place.TopLeft());
    part.SetScale(toolkit::ScreenScale());
    const CSize corner = part.Scale().ToCoordinates(CSize(seen.left, seen.top));
    DrawOnChecks(hdc, {corner.cx, corner.cy}, part);
}

BOOL CZoomView::OnMouseWheel(UINT, short zDelta, CPoint point)
{
    ScreenToClient(&point);
    point = toolkit::ScreenScale().ToPixels(point);
    Zoom([&] { m_zoom.Step(zDelta > 0 ? 1 : -1, point, PixelView(), FullSize(), FitZoom()); });
    return TRUE;
}

void CZoomView::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    SetFocus();
    m_grip = toolkit::ScreenScale().ToPixels(point);
    SetCapture();
}

void CZoomView::OnMouseMove(UINT nFlags, CPoint point)
{
    CWnd::OnMouseMove(nFlags, point);
    if (GetCapture() != m_hWnd)
        return;
    const CPoint now = toolkit::ScreenScale().ToPixels(point);
    PanBy({now.x - m_grip.x, now.y - m_grip.y});
    m_grip = now;
}

void CZoomView::OnLButtonUp(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonUp(nFlags, point);
    if (GetCapture() == m_hWnd)
        ReleaseCapture();
}

void CZoomView::OnLButtonDblClk(UINT, CPoint point)
{
    if (!m_zoom.IsFit())
        return Fit();
    Zoom([&] { m_zoom.SetTo(1, toolkit::ScreenScale().ToPixels(point), PixelView(), FullSize(), FitZoom()); });
}

} // namespace editor
