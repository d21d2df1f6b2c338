// What the user drags along a line.
#pragma once

#include "HostKit/frame/Widget.h"
#include "Toolkit/access/Accessible.h"

namespace editor
{

// Follows the mouse from a press, where it takes one, until the button is let go.
class CSlider : public hostkit::CWidget, public toolkit::Accessible
{
public:
    UINT AccRole(LPARAM) override { return ROLE_SYSTEM_SLIDER; }

protected:
    using CWidget::CWidget;

    virtual bool Takes(CPoint point) const = 0; // client
    virtual void PointAt(CPoint point) = 0;     // anywhere, once a press was taken

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()
};

} // namespace editor
