#include "HostKit/frame/Splitter.h"

#include "HostKit/pictures/Look.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace hostkit
{

BEGIN_MESSAGE_MAP(CSplitter, CWidget)
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, OnMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(WM_CAPTURECHANGED, OnCaptureChanged)
END_MESSAGE_MAP()

// The captions' lower edge goes on across the bar; the line between the panes stands at its right, where the tree's
// ground ends.
void CSplitter::Erase(HDC hdc)
{
    const CRect client = Client();
    const bool bShining = m_bHot || m_bDragged;
    CRect line = client;
    line.left = line.right - (bShining ? 3 : 1);
    FillSolidRect(hdc, client, GetSysColor(COLOR_WINDOW));
    FillSolidRect(hdc, {client.left, kPaneCaptionHeight - 1, client.right, kPaneCaptionHeight}, LineColor());
    FillSolidRect(hdc, line, bShining ? GetSysColor(COLOR_HIGHLIGHT) : LineColor());
}

void CSplitter::OnMouseMove(UINT nFlags, CPoint point)
{
    CWidget::OnMouseMove(nFlags, point);
    SetHot(true);
    if (m_bDragged)
        m_move(std::max(0, Left() + point.x - m_nGrip));
}

LRESULT CSplitter::OnMouseLeave(WPARAM, LPARAM)
{
    SetHot(false);
    return 0;
}

void CSplitter::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWidget::OnLButtonDown(nFlags, point);
    m_bDragged = true;
    m_nGrip = point.x;
    m_nLeftThen = Left();
    SetCapture();
    Invalidate();
}

void CSplitter::OnLButtonUp(UINT nFlags, CPoint point)
{
    CWidget::OnLButtonUp(nFlags, point);
    EndDrag(true);
}

void CSplitter::OnLButtonDblClk(UINT, CPoint)
{
    m_move(kUsual);
}

LRESULT CSplitter::OnCaptureChanged(WPARAM, LPARAM)
{
    EndDrag(false);
    return 0;
}

int CSplitter::Left() const
{
    CRect rect;
    GetWindowRect(&rect);
    CPoint corner = rect.TopLeft();
    GetParent()->ScreenToClient(&corner);
    return corner.x;
}

void CSplitter::SetHot(bool bHot)
{
    if (std::exchange(m_bHot, bHot) == bHot)
        return;
    toolkit::CurrentDesktop().ShowCursor(bHot ? toolkit::Cursor::SizeWE : toolkit::Cursor::Arrow);
    Invalidate();
}

void CSplitter::EndDrag(bool bKeep)
{
    if (!std::exchange(m_bDragged, false))
        return;
    if (GetCapture() == m_hWnd)
        ReleaseCapture();
    if (!bKeep)
        m_move(m_nLeftThen);
    Invalidate();
}

} // namespace hostkit
