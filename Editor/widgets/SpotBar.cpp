#include "Editor/widgets/SpotBar.h"

#include "Editor/widgets/Look.h"
#include "Toolkit/desktop/Desktop.h"

#include <utility>

namespace editor
{
namespace
{

constexpr UINT_PTR kTipTimer = 1;
constexpr UINT kTipDelay = 500; // milliseconds

} // namespace

BEGIN_MESSAGE_MAP(CSpotBar, hostkit::CWidget)
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, OnMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_MESSAGE(WM_CAPTURECHANGED, OnCaptureChanged)
    ON_WM_TIMER()
END_MESSAGE_MAP()

void CSpotBar::ForgetSpots()
{
    m_nHot = m_nPressed = kNothing;
    HideTip();
    Invalidate();
    NotifyWinEvent(EVENT_OBJECT_REORDER, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
}

COLORREF CSpotBar::GroundOf(int nSpot) const
{
    return !IsHot(nSpot) ? BarColor() : nSpot == m_nPressed ? PressedColor() : HoverColor();
}

void CSpotBar::DrawGround(HDC hdc, const CRect& rect, int nSpot) const
{
    if (IsHot(nSpot))
        FillSolidRect(hdc, rect, GroundOf(nSpot));
}

void CSpotBar::OnMouseMove(UINT nFlags, CPoint point)
{
    CWnd::OnMouseMove(nFlags, point);
    SetHot(SpotAt(point));
}

LRESULT CSpotBar::OnMouseLeave(WPARAM, LPARAM)
{
    SetHot(kNothing);
    return 0;
}

void CSpotBar::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    SetHot(SpotAt(point));
    HideTip();
    m_nPressed = m_nHot;
    Invalidate();
    SetCapture();
}

// Using the spot may change all of them, and end the bar: it is done with the click before.
void CSpotBar::OnLButtonUp(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonUp(nFlags, point);
    const int nPressed = std::exchange(m_nPressed, kNothing);
    if (GetCapture() == m_hWnd)
        ReleaseCapture();
    Invalidate();
    if (nPressed != kNothing && nPressed == SpotAt(point))
        UseSpot(nPressed);
}

// Someone else took the mouse: the press comes to nothing.
LRESULT CSpotBar::OnCaptureChanged(WPARAM, LPARAM)
{
    m_nPressed = kNothing;
    Invalidate();
    return 0;
}

void CSpotBar::OnTimer(UINT_PTR)
{
    KillTimer(kTipTimer);
    const Tip tip = m_nHot == kNothing ? Tip() : TipOf(m_nHot);
    if (tip.text.empty())
        return;
    CPoint corner = tip.spot.TopLeft();
    ClientToScreen(&corner);
    toolkit::CurrentDesktop().ShowToolTip(GetTopLevel(m_hWnd), tip.text, {corner, tip.spot.Size()});
}

void CSpotBar::SetHot(int nSpot)
{
    if (std::exchange(m_nHot, nSpot) == nSpot)
        return;
    HideTip();
    if (nSpot != kNothing)
        SetTimer(kTipTimer, kTipDelay);
    Invalidate();
}

void CSpotBar::HideTip()
{
    if (!KillTimer(kTipTimer)) // it may be shown
        toolkit::CurrentDesktop().ShowToolTip(GetTopLevel(m_hWnd), {}, {});
}

} // namespace editor
