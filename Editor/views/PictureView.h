// One picture, as large as the window allows, or as the user wants it.
#pragma once

#include "Editor/model/Member.h"
#include "Editor/pictures/PictureStore.h"
#include "Editor/widgets/Look.h"
#include "Editor/widgets/ZoomView.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/access/Accessible.h"

namespace editor
{

// The picture is read by the store at the window's size. While the window is sized, what was read last is shown.
// Small pictures are enlarged, up to four times. Without a picture, the reason stands in the middle; where it takes its
// time to be read, that it is coming. Of a file that is no picture, its sign. What is transparent lies on checks.
//
// Zoomed pictures are read as they are, up to kMostRead pixels each way; what was read before is shown until then. The
// next picture is zoomed likewise, until none is shown.
class CPictureView : public CZoomView, public toolkit::Accessible
{
public:
    CPictureView(PictureStore& pictures, std::function<void()> zoomed)
        : CZoomView(std::move(zoomed)), m_pictures(pictures)
    {}

    IAtom* GetAtom() const { return m_pAtom.Get(); } // borrowed; NULL while nothing is shown
    void SetAtom(IAtom* pAtom);                      // NULL: nothing
    void OnPictureArrived();                         // the atom's picture is there, or has changed

    UINT AccRole(LPARAM) override { return ROLE_SYSTEM_GRAPHIC; }

protected:
    CRect View() const override { return Client(); }
    CSize FullSize() const override { return m_full; }
    CSize FittedSize() const override;
    void OnZoomed() override;

    void Erase(HDC hdc) override { FillSolidRect(hdc, Client(), CalmColor()); }
    void Draw(HDC hdc) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    CSize Room() const; // for what fits; pixels
    void Fetch();
    void Take(const toolkit::Surface& picture);
    void AwaitPicture();
    void DrawSign(HDC hdc, const CRect& client, hostkit::Pictogram sign, const std::string& line) const;

    PictureStore& m_pictures;
    CStubRef<IAtom> m_pAtom;
    bool m_bLate = false;     // it has not come within the time in which nobody wonders
    CSize m_full;             // of the picture in the file; 0 by 0 until it has come
    toolkit::Surface m_shown; // at the size at which it fits; empty: none yet, or none at all
    toolkit::Surface m_own;   // the picture's own pixels, while it is zoomed; empty: not yet
};

} // namespace editor
