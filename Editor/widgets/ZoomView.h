// A view in which one picture is seen, as large as it fits or as the user wants it.
#pragma once

#include "Editor/widgets/PictureZoom.h"
#include "HostKit/frame/Widget.h"
#include "Toolkit/graphics/Surface.h"

#include <functional>

namespace editor
{

// The wheel zooms, a drag moves what is zoomed, a double click goes to the picture's own size and back. Pixels of what
// is zoomed are squares. Its own size is a pixel to a pixel of the screen, in which all here counts.
class CZoomView : public hostkit::CWidget
{
public:
    static constexpr int kMostRead = 4096; // pixels each way, of what is zoomed

    double GetZoom() const { return m_zoom.Get(); } // 0: it fits
    void ZoomBy(int nSteps);                        // about the middle
    void Fit();
    void ShowOwnSize();
    bool PanBy(CSize by); // false: nothing is zoomed
    void TakeZoom(const CZoomView& other) { m_zoom = other.m_zoom; }

protected:
    explicit CZoomView(std::function<void()> zoomed, DWORD dwStyle = 0) : CWidget(dwStyle), m_zoomed(std::move(zoomed))
    {}

    virtual CRect View() const = 0;       // where the picture is seen; client
    virtual CSize FullSize() const = 0;   // of the picture in the file; 0 by 0: not known, or there is none
    virtual CSize FittedSize() const = 0; // of the whole of it, where it is not zoomed
    virtual void OnZoomed() = 0;          // whether it is zoomed decides what is read

    void DrawZoomed(HDC hdc, const toolkit::Surface& picture) const; // with as many pixels as there are

    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

    PictureZoom m_zoom;

private:
    template <class Change>
    void Zoom(Change change);
    CRect PixelView() const;
    double FitZoom() const;

    const std::function<void()> m_zoomed;
    CPoint m_grip; // while it is dragged: where the mouse was last
};

} // namespace editor
