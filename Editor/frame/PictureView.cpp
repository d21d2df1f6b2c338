#include "Editor/frame/PictureView.h"

#include "Editor/frame/Look.h"
#include "Editor/pictures/Enlarge.h"
#include "Editor/resources/Pictograms.h"
#include "Toolkit/graphics/Scale.h"
#include "Toolkit/graphics/SysColors.h"

namespace editor
{
namespace
{

constexpr int kMargin = 3 * kSpace;
constexpr int kMostEnlarged = 4;
constexpr int kBrokenExtent = 96;

} // namespace

BEGIN_MESSAGE_MAP(CPictureView, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_SIZE()
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
    Invalidate();
}

void CPictureView::OnPictureArrived()
{
    Fetch();
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
        return DrawCentred(dc, client, m_shown);
    const CMember* const pMember = CMember::Of(m_pAtom.Get());
    const std::string reason = pMember ? pMember->ErrorLine() : std::string();
    if (reason.empty())
        return; // it will come
    CRect text = client;
    text.DeflateRect(2 * kSpace, 0);
    text.top = client.CenterPoint().y + kBrokenExtent / 2;
    text.bottom = text.top + 2 * kPaneCaptionHeight;
    DrawCentred(dc, client, GetPictogram(Pictogram::BrokenPicture, kBrokenExtent));
    DrawTextLine(dc, text, reason, GetSysColor(COLOR_GRAYTEXT), Align::Center);
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
    const std::string path = pMember ? pMember->Path() : std::string();
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
