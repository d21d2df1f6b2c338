// A bar with spots that a click uses.
#pragma once

#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

#include <string>

namespace editor
{

// The spot under the mouse is shown, and pressed once the button goes down on it; it is used when the button is let go
// there. When the mouse rests on a spot that has something to say about itself, that is shown beside it.
class CSpotBar : public hostkit::CWidget, public toolkit::AccessibleParts
{
protected:
    CSpotBar() : CWidget(WS_VISIBLE | WS_CLIPCHILDREN) {}

    static constexpr int kNothing = -1;

    virtual int SpotAt(CPoint point) const = 0; // kNothing where there is none
    virtual void UseSpot(int nSpot) = 0;        // the bar may be gone afterwards

    struct Tip
    {
        std::string text; // empty: none
        CRect spot;       // client
    };
    virtual Tip TipOf(int /*nSpot*/) const { return {}; }

    void ForgetSpots(); // they are others now
    bool IsHot(int nSpot) const { return nSpot == m_nHot; }
    COLORREF GroundOf(int nSpot) const; // what DrawGround leaves there
    void DrawGround(HDC hdc, const CRect& rect, int nSpot) const;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg LRESULT OnCaptureChanged(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    void SetHot(int nSpot);
    void HideTip();

    int m_nHot = kNothing;     // under the mouse
    int m_nPressed = kNothing; // where the button went down
};

} // namespace editor
