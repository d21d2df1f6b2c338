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
constexpr int kSignExtent = 96;
constexpr UINT_PTR kLateTimer = 1;
constexpr UINT kLate = 250; // milliseconds

} // namespace

BEGIN_MESSAGE_MAP(CPictureView, CZoomView)
    ON_WM_SIZE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

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
        m_shown = FittedTo(m_own, Room(), m_pictures.IsEnlarging());
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

void CPictureView::Draw(HDC hdc)
{
    if (!m_own.IsEmpty() || (!m_shown.IsEmpty() && !m_zoom.IsFit()))
        return DrawZoomed(hdc, m_own.IsEmpty() ? m_shown : m_own);
    if (!m_shown.IsEmpty())
        return DrawOnChecks(hdc, toolkit::Centred(m_shown.Size(), View()), m_shown);
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    if (!pMember)
        return;
    CRect client = Client();
    client.DeflateRect(2 * kSpace, 0);
    if (dynamic_cast<const CPlainFile*>(pMember))
        return DrawSign(hdc, client, Pictogram::File, pMember->ShownName() + ": Enter opens it with its program");
    if (const std::string reason = pMember->ErrorLine(); !reason.empty())
        DrawSign(hdc, client, Pictogram::BrokenPicture, reason);
    else if (m_bLate)
        DrawTextLine(hdc, client, "Reading " + pMember->ShownName() + " ...", TextColor(COLOR_GRAYTEXT, CalmColor()),
                     Align::Center);
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

CSize CPictureView::Room() const
{
    CRect room = View();
    room.DeflateRect(kMargin, kMargin);
    return toolkit::ScreenScale().ToPixels(room.Size());
}

void CPictureView::Fetch()
{
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    const bool bPicture = pMember && !dynamic_cast<const CPlainFile*>(pMember);
    const std::string path = bPicture ? pMember->Path() : std::string();
    const CSize room = Room();
    if (path.empty() || room.cx <= 0 || room.cy <= 0)
        return;
    const CSize wanted = m_zoom.IsFit() ? room : CSize(kMostRead, kMostRead);
    const PictureStore::Answer answer = m_pictures.Find(path, wanted, m_pAtom.Get());
    if (answer.pPicture)
        Take(*answer.pPicture);
    else if (answer.bFailed)
        m_shown = m_own = {};
    else if (m_zoom.IsFit() && !m_shown.IsEmpty()) {
        m_shown = toolkit::ScaleSurface(m_shown, toolkit::FitInto(m_shown.Bounds().Size(), room));
        m_shown.SetScale(toolkit::ScreenScale());
    }
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
    m_shown = FittedTo(picture, Room(), m_pictures.IsEnlarging());
}

CSize CPictureView::FittedSize() const
{
    return editor::FittedSize(m_full, Room(), m_pictures.IsEnlarging());
}

} // namespace editor
