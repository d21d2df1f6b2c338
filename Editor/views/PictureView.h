// One picture, as large as the window allows.
#pragma once

#include "Editor/model/Member.h"
#include "Editor/pictures/PictureStore.h"
#include "HostKit/pictures/Pictograms.h"
#include "Toolkit/window/Wnd.h"

namespace editor
{

// The picture is read by the store at the window's size. While the window is sized, what was read last is shown.
// Small pictures are enlarged, up to four times. Without a picture, the reason stands in the middle; where it takes its
// time to be read, that it is coming. Of a file that is no picture, its sign. What is transparent lies on checks.
class CPictureView : public CWnd
{
public:
    explicit CPictureView(PictureStore& pictures) : m_pictures(pictures) {}
    ~CPictureView() override { DestroyWindow(); }

    BOOL Create(CWnd* pParent);
    IAtom* GetAtom() const { return m_pAtom.Get(); } // borrowed; NULL while nothing is shown
    void SetAtom(IAtom* pAtom);                      // NULL: nothing
    void OnPictureArrived();                         // the atom's picture is there, or has changed

protected:
    afx_msg BOOL OnEraseBkgnd(HDC hdc);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    CRect Room() const;
    void Fetch();
    void AwaitPicture();
    void DrawPicture(HDC hdc, const CRect& client) const;
    void DrawSign(HDC hdc, const CRect& client, hostkit::Pictogram sign, const std::string& line) const;
    toolkit::Surface Fitted(const toolkit::Surface& picture) const;

    PictureStore& m_pictures;
    CStubRef<IAtom> m_pAtom;
    bool m_bLate = false;     // it has not come within the time in which nobody wonders
    toolkit::Surface m_shown; // at the size it is drawn; empty: none yet, or none at all
};

} // namespace editor
