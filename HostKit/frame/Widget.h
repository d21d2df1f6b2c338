// What the parts of a frame have in common.
#pragma once

#include "HostKit/base/Api.h"
#include "Toolkit/window/Wnd.h"

namespace hostkit
{

// A child window that draws itself.
class HOSTKIT_API CWidget : public CWnd
{
public:
    BOOL Create(CWnd* pParent); // nowhere yet
    CRect Client() const;       // empty without a window

protected:
    // WS_VISIBLE: it is shown from the beginning. WS_CLIPCHILDREN: it has windows in it.
    explicit CWidget(DWORD dwStyle = WS_VISIBLE) : m_dwStyle(dwStyle) {}

    virtual void Erase(HDC hdc) = 0; // the ground, all of it
    virtual void Draw(HDC) {}        // what stands on it

    afx_msg BOOL OnEraseBkgnd(HDC hdc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    const DWORD m_dwStyle;
};

} // namespace hostkit
