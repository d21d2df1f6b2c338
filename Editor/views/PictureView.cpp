#include "Editor/views/PictureView.h"

#include "Editor/model/PlainFile.h"
#include "Editor/pictures/Enlarge.h"
#include "Editor/widgets/Look.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"

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

bool HasTransparency(const toolkit::Surface& picture)
{
    for (int y = 0; y < picture.Height(); ++y)
        for (const toolkit::Pixel *p = picture.Row(y), *const end = p + picture.Width(); p != end; ++p)
            if (*p >> 24 != 0xFF)
                return true;
    return false;
}

} // namespace

BEGIN_MESSAGE_MAP(CPictureView, CWnd)
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
    m_shown = {};
    Fetch();
    AwaitPicture();
    Invalidate();
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
    if (m_pAtom && m_shown.IsEmpty())
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

BOOL CPictureView::OnEraseBkgnd(HDC hdc)
{
    CRect client;
    GetClientRect(&client);
    FillSolidRect(hdc, client, CalmColor());
    return TRUE;
}

void CPictureView::OnPaint()
{
    const CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (!m_shown.IsEmpty())
        return DrawPicture(dc, client);
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    if (!pMember)
        return;
    client.DeflateRect(2 * kSpace, 0);
    if (dynamic_cast<const CPlainFile*>(pMember))
        return DrawSign(dc, client, Pictogram::File, pMember->ShownName() + ": Enter opens it with its program");
    if (const std::string reason = pMember->ErrorLine(); !reason.empty())
        DrawSign(dc, client, Pictogram::BrokenPicture, reason);
    else if (m_bLate)
        DrawTextLine(dc, client, "Reading " + pMember->ShownName() + " ...", GetSysColor(COLOR_GRAYTEXT),
                     Align::Center);
}

void CPictureView::DrawPicture(HDC hdc, const CRect& client) const
{
    if (HasTransparency(m_shown))
        DrawChecks(hdc, {toolkit::Centred(m_shown.Bounds().Size(), client), m_shown.Bounds().Size()});
    DrawCentred(hdc, client, m_shown);
}

void CPictureView::DrawSign(HDC hdc, const CRect& client, Pictogram sign, const std::string& line) const
{
    CRect text = client;
    text.top = client.CenterPoint().y + kSignExtent / 2;
    text.bottom = text.top + 2 * kPaneCaptionHeight;
    DrawCentred(hdc, client, hostkit::GetPictogram(sign, kSignExtent));
    DrawTextLine(hdc, text, line, GetSysColor(COLOR_GRAYTEXT), Align::Center);
}

void CPictureView::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Fetch();
    Invalidate();
}

CRect CPictureView::Room() const
{
    CRect room;
    GetClientRect(&room);
    room.DeflateRect(kMargin, kMargin);
    return room;
}

void CPictureView::Fetch()
{
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    const bool bPicture = pMember && !dynamic_cast<const CPlainFile*>(pMember);
    const std::string path = bPicture ? pMember->Path() : std::string();
    if (path.empty() || Room().IsRectEmpty())
        return;
    const PictureStore::Answer answer = m_pictures.Find(path, Room().Size(), m_pAtom.Get());
    if (answer.pPicture)
        m_shown = Fitted(*answer.pPicture);
    else if (answer.bFailed)
        m_shown = {};
    else if (!m_shown.IsEmpty())
        m_shown = toolkit::ScaleSurface(m_shown, toolkit::FitInto(m_shown.Bounds().Size(), Room().Size()));
}

toolkit::Surface CPictureView::Fitted(const toolkit::Surface& picture) const
{
    const CSize own = picture.Bounds().Size();
    const CSize most(std::min(Room().Width(), own.cx * kMostEnlarged),
                     std::min(Room().Height(), own.cy * kMostEnlarged));
    const CSize fitted = toolkit::FitInto(own, most);
    if (fitted == own)
        return picture;
    return fitted.cx > own.cx ? Enlarge(picture, fitted) : toolkit::ScaleSurface(picture, fitted);
}

} // namespace editor
