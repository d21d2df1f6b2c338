// The mouse, and how large the picture is.
#include "Editor/views/PictureView.h"

namespace editor
{

// Zoomed or not decides what is read.
template <class Change>
void CPictureView::Zoom(Change change)
{
    if (m_full == CSize())
        return;
    change();
    if (m_zoom.IsFit() && m_shown.IsEmpty() && !m_own.IsEmpty())
        m_shown = Fitted(m_own);
    if (m_zoom.IsFit())
        m_own = {};
    if (m_own.IsEmpty())
        Fetch();
    Invalidate();
    m_zoomed();
}

void CPictureView::ZoomBy(int nSteps)
{
    Zoom([&] { m_zoom.Step(nSteps, View().CenterPoint(), View(), m_full, FitZoom()); });
}

void CPictureView::Fit()
{
    Zoom([&] { m_zoom.Fit(); });
}

void CPictureView::ShowOwnSize()
{
    Zoom([&] { m_zoom.SetTo(1, View().CenterPoint(), View(), m_full, FitZoom()); });
}

bool CPictureView::PanBy(CSize by)
{
    if (m_zoom.IsFit() || m_full == CSize())
        return false;
    m_zoom.Pan(by, View(), m_full);
    Invalidate();
    return true;
}

BOOL CPictureView::OnMouseWheel(UINT, short zDelta, CPoint point)
{
    ScreenToClient(&point);
    point = toolkit::ScreenScale().ToPixels(point);
    Zoom([&] { m_zoom.Step(zDelta > 0 ? 1 : -1, point, View(), m_full, FitZoom()); });
    return TRUE;
}

void CPictureView::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    SetFocus();
    m_grip = toolkit::ScreenScale().ToPixels(point);
    SetCapture();
}

void CPictureView::OnMouseMove(UINT nFlags, CPoint point)
{
    CWnd::OnMouseMove(nFlags, point);
    if (GetCapture() != m_hWnd)
        return;
    const CPoint now = toolkit::ScreenScale().ToPixels(point);
    PanBy({now.x - m_grip.x, now.y - m_grip.y});
    m_grip = now;
}

void CPictureView::OnLButtonUp(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonUp(nFlags, point);
    if (GetCapture() == m_hWnd)
        ReleaseCapture();
}

void CPictureView::OnLButtonDblClk(UINT, CPoint point)
{
    if (!m_zoom.IsFit())
        return Fit();
    Zoom([&] { m_zoom.SetTo(1, toolkit::ScreenScale().ToPixels(point), View(), m_full, FitZoom()); });
}

} // namespace editor
