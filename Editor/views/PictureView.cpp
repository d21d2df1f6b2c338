#include "Editor/views/PictureView.h"

#include "Editor/model/PlainFile.h"
#include "Editor/pictures/Enlarge.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace editor
{
using hostkit::Pictogram;

namespace
{

constexpr int kMargin = 3 * kSpace;
constexpr int kMostEnlarged = 4;
constexpr int kSignExtent = 96;
constexpr UINT_PTR kLateTimer = 1;
constexpr UINT kLate = 250; // milliseconds

// A pixel to a pixel of the screen.
toolkit::Surface OnScreen(toolkit::Surface picture)
{
    picture.SetScale(toolkit::ScreenScale());
    return picture;
}

} // namespace

BEGIN_MESSAGE_MAP(CPictureView, CZoomView)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

BOOL CPictureView::Create(CWnd* pParent)
{
    return CreateEx(0, "", "", WS_CHILD | WS_CLIPSIBLINGS, CRect(), pParent, 0);
}

void CPictureView::SetAtom(IAtom* pAtom)
{
    m_pAtom = CStubRef<IAtom>::Share(pAtom);
    m_shown = m_own = {};
    m_full = {};
    if (!pAtom)
        m_zoom.Fit();
    Fetch();
    AwaitPicture();
    Invalidate();
}

void CPictureView::OnZoomed()
{
    if (m_zoom.IsFit() && m_shown.IsEmpty() && !m_own.IsEmpty())
        m_shown = Fitted(m_own);
    if (m_zoom.IsFit())
        m_own = {};
    if (m_own.IsEmpty())
        Fetch();
}

void CPictureView::OnPictureArrived()
{
    Fetch();
    Invalidate();
}

// A picture that comes soon replaces nothing that would flash up.
void CPictureView::AwaitPicture()
{
    m_bLate = false;
    if (m_pAtom && m_shown.IsEmpty() && m_own.IsEmpty())
        SetTimer(kLateTimer, kLate);
    else
        KillTimer(kLateTimer);
}

void CPictureView::OnTimer(UINT_PTR)
{
    KillTimer(kLateTimer);
    m_bLate = true;
    Invalidate();
}

void CPictureView::OnPaint()
{
    const CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (!m_own.IsEmpty() || (!m_shown.IsEmpty() && !m_zoom.IsFit()))
        return DrawZoomed(dc, m_own.IsEmpty() ? m_shown : m_own);
    if (!m_shown.IsEmpty())
        return DrawFitting(dc);
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    if (!pMember)
        return;
    client.DeflateRect(2 * kSpace, 0);
    if (dynamic_cast<const CPlainFile*>(pMember))
        return DrawSign(dc, client, Pictogram::File, pMember->ShownName() + ": Enter opens it with its program");
    if (const std::string reason = pMember->ErrorLine(); !reason.empty())
        DrawSign(dc, client, Pictogram::BrokenPicture, reason);
    else if (m_bLate)
        DrawTextLine(dc, client, "Reading " + pMember->ShownName() + " ...", TextColor(COLOR_GRAYTEXT, CalmColor()),
                     Align::Center);
}

void CPictureView::DrawFitting(HDC hdc) const
{
    DrawOnChecks(hdc, toolkit::Centred(m_shown.Size(), View()), m_shown);
}

void CPictureView::DrawSign(HDC hdc, const CRect& client, Pictogram sign, const std::string& line) const
{
    CRect text = client;
    text.top = client.CenterPoint().y + kSignExtent / 2;
    text.bottom = text.top + 2 * kPaneCaptionHeight;
    DrawCentred(hdc, client, hostkit::GetPictogram(sign, kSignExtent));
    DrawTextLine(hdc, text, line, TextColor(COLOR_GRAYTEXT, CalmColor()), Align::Center);
}

void CPictureView::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Fetch();
    Invalidate();
}

CRect CPictureView::View() const
{
    CRect view;
    GetClientRect(&view);
    return view;
}

CRect CPictureView::Room() const
{
    CRect room = View();
    room.DeflateRect(kMargin, kMargin);
    return toolkit::ScreenScale().ToPixels(room);
}

void CPictureView::Fetch()
{
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    const bool bPicture = pMember && !dynamic_cast<const CPlainFile*>(pMember);
    const std::string path = bPicture ? pMember->Path() : std::string();
    if (path.empty() || Room().IsRectEmpty())
        return;
    const CSize wanted = m_zoom.IsFit() ? Room().Size() : CSize(kMostRead, kMostRead);
    const PictureStore::Answer answer = m_pictures.Find(path, wanted, m_pAtom.Get());
    if (answer.pPicture)
        Take(*answer.pPicture);
    else if (answer.bFailed)
        m_shown = m_own = {};
    else if (m_zoom.IsFit() && !m_shown.IsEmpty())
        m_shown = OnScreen(toolkit::ScaleSurface(m_shown, toolkit::FitInto(m_shown.Bounds().Size(), Room().Size())));
    if (answer.pPicture)
        m_full = m_pictures.FullSizeOf(path);
}

void CPictureView::Take(const toolkit::Surface& picture)
{
    if (!m_zoom.IsFit()) {
        m_own = picture;
        return;
    }
    m_own = {};
    m_shown = Fitted(picture);
}

double CPictureView::FitZoom() const
{
    return 1.0 * std::max<int>(FittedSize(m_full).cx, 1) / std::max<int>(m_full.cx, 1);
}

CSize CPictureView::FittedSize(CSize own) const
{
    const CSize room = Room().Size();
    const int most = toolkit::ScreenScale().ToPixels(kMostEnlarged);
    const int times = own.cx > 0 && own.cy > 0 ? std::min<int>(room.cx / own.cx, room.cy / own.cy) : 0;
    if (m_pictures.IsEnlarging() && times > 0)
        return {own.cx * times, own.cy * times};
    return toolkit::FitInto(own, {std::min<int>(room.cx, own.cx * most), std::min<int>(room.cy, own.cy * most)});
}

toolkit::Surface CPictureView::Fitted(const toolkit::Surface& picture) const
{
    const CSize own = picture.Bounds().Size();
    const CSize fitted = FittedSize(own);
    if (fitted == own)
        return OnScreen(picture);
    if (fitted.cx < own.cx)
        return OnScreen(toolkit::ScaleSurface(picture, fitted));
    return OnScreen(m_pictures.IsEnlarging() ? EnlargePixels(picture, fitted) : Enlarge(picture, fitted));
}

} // namespace editor
