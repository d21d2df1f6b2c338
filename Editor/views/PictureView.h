// One picture, as large as the window allows, or as the user wants it.
#pragma once

#include "Editor/model/Member.h"
#include "Editor/pictures/PictureStore.h"
#include "Editor/widgets/PictureZoom.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/window/Wnd.h"

namespace editor
{

// The picture is read by the store at the window's size. While the window is sized, what was read last is shown.
// Small pictures are enlarged, up to four times. Without a picture, the reason stands in the middle; where it takes its
// time to be read, that it is coming. Of a file that is no picture, its sign. What is transparent lies on checks.
//
// Everything here counts in the screen's pixels, so that a picture's own size is a pixel to a pixel. The wheel zooms, a
// drag moves what is zoomed, a double click goes to the picture's own size and back. Zoomed pictures
// are read as they are, up to kMostRead pixels each way, and their pixels are squares; what was read before is shown
// until then. The next picture is zoomed likewise, until none is shown.
class CPictureView : public CWnd, public toolkit::Accessible
{
public:
    static constexpr int kMostRead = 4096;

    CPictureView(PictureStore& pictures, std::function<void()> zoomed)
        : m_pictures(pictures), m_zoomed(std::move(zoomed))
    {}
    ~CPictureView() override { DestroyWindow(); }

    BOOL Create(CWnd* pParent);
    IAtom* GetAtom() const { return m_pAtom.Get(); } // borrowed; NULL while nothing is shown
    void SetAtom(IAtom* pAtom);                      // NULL: nothing
    void OnPictureArrived();                         // the atom's picture is there, or has changed

    double GetZoom() const { return m_zoom.Get(); } // 0: it fits
    void ZoomBy(int nSteps);                        // about the middle
    void Fit();
    void ShowOwnSize();
    bool PanBy(CSize by); // false: nothing is zoomed

    UINT AccRole(LPARAM) override { return ROLE_SYSTEM_GRAPHIC; }

protected:
    afx_msg BOOL OnEraseBkgnd(HDC hdc);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CRect View() const; // the client area
    CRect Room() const;
    void Fetch();
    void Take(const toolkit::Surface& picture);
    void AwaitPicture();
    void DrawFitting(HDC hdc, const CRect& client) const;
    void DrawZoomed(HDC hdc) const;
    void DrawSign(HDC hdc, const CRect& client, hostkit::Pictogram sign, const std::string& line) const;
    double FitZoom() const;
    CSize FittedSize(CSize own) const;
    toolkit::Surface Fitted(const toolkit::Surface& picture) const;
    template <class Change>
    void Zoom(Change change);

    PictureStore& m_pictures;
    const std::function<void()> m_zoomed;
    CStubRef<IAtom> m_pAtom;
    bool m_bLate = false; // it has not come within the time in which nobody wonders
    CSize m_full;         // of the picture in the file; 0 by 0 until it has come
    PictureZoom m_zoom;
    CPoint m_grip;            // while it is dragged: where the mouse was last
    toolkit::Surface m_shown; // at the size at which it fits; empty: none yet, or none at all
    toolkit::Surface m_own;   // the picture's own pixels, while it is zoomed; empty: not yet
};

} // namespace editor
