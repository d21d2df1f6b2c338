// The bar between two panes that stand side by side.
#pragma once

#include "HostKit/frame/Widget.h"

#include <functional>

namespace hostkit
{

// Dragged with the mouse it tells where its left edge is wanted, in the parent's client coordinates; where it goes is
// its parent's affair. Escape or the loss of the mouse takes it back to where it was; a double click wants kUsual.
class HOSTKIT_API CSplitter : public CWidget
{
public:
    static constexpr int kWidth = 7;
    static constexpr int kUsual = -1; // the place it has before the user moves it

    explicit CSplitter(std::function<void(int x)> move) : m_move(std::move(move)) {}
    ~CSplitter() override { DestroyWindow(); }

    bool IsDragged() const { return m_bDragged; }
    void CancelDrag() { EndDrag(false); } // nothing when it is not being dragged

protected:
    void Erase(HDC hdc) override;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnCaptureChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    int Left() const; // in the parent's client coordinates
    void SetHot(bool bHot);
    void EndDrag(bool bKeep);

    const std::function<void(int)> m_move;
    bool m_bHot = false;
    bool m_bDragged = false;
    int m_nGrip = 0;     // where in the bar it was taken
    int m_nLeftThen = 0; // where it was taken from
};

} // namespace hostkit
