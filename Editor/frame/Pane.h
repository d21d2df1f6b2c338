// A pane of the frame: a caption with an icon, and a view below it.
#pragma once

#include "Toolkit/graphics/Surface.h"
#include "Toolkit/window/Wnd.h"

#include <string>

namespace editor
{

// The parent of its view's window, which somebody else owns. Hidden until something is to be shown.
class CPane : public CWnd
{
public:
    explicit CPane(int margin = 0) : m_nMargin(margin) {} // pixels left of and above the view
    ~CPane() override { DestroyWindow(); }

    BOOL Create(CWnd* pParent);

    HWND GetView() const { return m_hView; } // NULL while there is none
    void ShowView(HWND hView, std::string caption, toolkit::Surface icon);
    void HideView();

protected:
    afx_msg BOOL OnEraseBkgnd(HDC hdc);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()

private:
    void PlaceView();

    const int m_nMargin;
    HWND m_hView = nullptr;
    std::string m_caption;
    toolkit::Surface m_icon;
};

} // namespace editor
