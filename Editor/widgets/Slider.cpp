#include "Editor/widgets/Slider.h"

#include "Toolkit/focus/Capture.h"

namespace editor
{

BEGIN_MESSAGE_MAP(CSlider, hostkit::CWidget)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

void CSlider::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    if (!Takes(point))
        return;
    SetCapture();
    PointAt(point);
}

void CSlider::OnMouseMove(UINT nFlags, CPoint point)
{
    CWnd::OnMouseMove(nFlags, point);
    if (::GetCapture() == m_hWnd)
        PointAt(point);
}

void CSlider::OnLButtonUp(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonUp(nFlags, point);
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

} // namespace editor
