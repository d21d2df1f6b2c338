// The bar at the top: a button that leads up, and the path to what is shown, each part of which leads there.
#pragma once

#include "Editor/widgets/CrumbLayout.h"
#include "Toolkit/window/Wnd.h"

#include <functional>
#include <string>

namespace editor
{

class CPathBar : public CWnd
{
public:
    CPathBar(std::function<void()> up, std::function<void(int nPart)> go);
    ~CPathBar() override { DestroyWindow(); }

    BOOL Create(CWnd* pParent);
    const std::vector<std::string>& GetPath() const { return m_parts; }
    void SetPath(std::vector<std::string> parts); // valid UTF-8; from the top

protected:
    afx_msg BOOL OnEraseBkgnd(HDC hdc);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg LRESULT OnCaptureChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    // What can be clicked: a part of the path by its number, or one of these.
    static constexpr int kNothing = -1;
    static constexpr int kUp = -2;

    CRect UpRect() const;
    CrumbLayout Layout() const;
    int TargetAt(CPoint point) const;
    bool IsEnabled(int nTarget) const;
    void SetHot(int nTarget);
    void DrawGround(HDC hdc, const CRect& rect, int nTarget) const;
    void DrawCrumbs(HDC hdc) const;

    const std::function<void()> m_up;
    const std::function<void(int)> m_go;
    std::vector<std::string> m_parts;
    int m_nHot = kNothing;     // under the mouse
    int m_nPressed = kNothing; // where the button went down
};

} // namespace editor
