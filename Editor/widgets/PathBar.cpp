#include "Editor/widgets/PathBar.h"

#include "Editor/widgets/Look.h"
#include "HostKit/Pictograms.h"
#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace editor
{
namespace
{

constexpr int kIcon = 16;
constexpr int kButton = 32;
constexpr int kGap = 16; // between two parts: room for an arrow
constexpr const char* kDotsText = "...";

toolkit::FontStyle StyleOf(bool isLast)
{
    return isLast ? toolkit::FontStyle::Bold : toolkit::FontStyle::Regular;
}

} // namespace

BEGIN_MESSAGE_MAP(CPathBar, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, OnMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_MESSAGE(WM_CAPTURECHANGED, OnCaptureChanged)
END_MESSAGE_MAP()

CPathBar::CPathBar(std::function<void()> up, std::function<void(int nPart)> go)
    : m_up(std::move(up)), m_go(std::move(go))
{}

BOOL CPathBar::Create(CWnd* pParent)
{
    return CreateEx(0, "", "", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(), pParent, 0);
}

void CPathBar::SetPath(std::vector<std::string> parts)
{
    m_parts = std::move(parts);
    m_nHot = m_nPressed = kNothing;
    Invalidate();
}

BOOL CPathBar::OnEraseBkgnd(HDC hdc)
{
    CRect client;
    GetClientRect(&client);
    FillSolidRect(hdc, client, BarColor());
    FillSolidRect(hdc, {client.left, client.bottom - 1, client.right, client.bottom}, LineColor());
    return TRUE;
}

void CPathBar::OnPaint()
{
    const CPaintDC dc(this);
    const CRect up = UpRect();
    DrawGround(dc, up, kUp);
    DrawCentred(dc, up,
                hostkit::GetPictogram(IsEnabled(kUp) ? hostkit::Pictogram::Up : hostkit::Pictogram::NoUp, kIcon));
    DrawCrumbs(dc);
}

void CPathBar::OnMouseMove(UINT nFlags, CPoint point)
{
    CWnd::OnMouseMove(nFlags, point);
    SetHot(TargetAt(point));
}

LRESULT CPathBar::OnMouseLeave(WPARAM, LPARAM)
{
    SetHot(kNothing);
    return 0;
}

void CPathBar::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    m_nPressed = TargetAt(point);
    SetHot(m_nPressed);
    Invalidate();
    SetCapture();
}

// Going somewhere sets another path: the bar is done with the click before.
void CPathBar::OnLButtonUp(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonUp(nFlags, point);
    const int nPressed = std::exchange(m_nPressed, kNothing);
    if (GetCapture() == m_hWnd)
        ReleaseCapture();
    Invalidate();
    if (nPressed == kNothing || nPressed != TargetAt(point))
        return;
    if (nPressed == kUp)
        m_up();
    else
        m_go(nPressed);
}

// Someone else took the mouse: the press comes to nothing.
LRESULT CPathBar::OnCaptureChanged(WPARAM, LPARAM)
{
    m_nPressed = kNothing;
    Invalidate();
    return 0;
}

CRect CPathBar::UpRect() const
{
    CRect client;
    GetClientRect(&client);
    return {CPoint(kSpace, (client.Height() - kButton) / 2), CSize(kButton, kButton)};
}

CrumbLayout CPathBar::Layout() const
{
    CRect room;
    GetClientRect(&room);
    room = {UpRect().right + kSpace, UpRect().top, room.right - kSpace, UpRect().bottom};
    std::vector<int> widths;
    for (const std::string& part : m_parts)
        widths.push_back(TextWidth(part, StyleOf(&part == &m_parts.back())) + 2 * kSpace);
    return {widths, kGap, TextWidth(kDotsText) + 2 * kSpace, room};
}

int CPathBar::TargetAt(CPoint point) const
{
    const int nTarget = UpRect().PtInRect(point) ? kUp : Layout().PartAt(point);
    return IsEnabled(nTarget) ? nTarget : kNothing;
}

// The last part is where one is already.
bool CPathBar::IsEnabled(int nTarget) const
{
    return m_parts.size() > 1 && nTarget != static_cast<int>(m_parts.size()) - 1;
}

void CPathBar::SetHot(int nTarget)
{
    if (std::exchange(m_nHot, nTarget) != nTarget)
        Invalidate();
}

void CPathBar::DrawGround(HDC hdc, const CRect& rect, int nTarget) const
{
    if (nTarget == m_nHot)
        FillSolidRect(hdc, rect, nTarget == m_nPressed ? PressedColor() : HoverColor());
}

void CPathBar::DrawCrumbs(HDC hdc) const
{
    const CrumbLayout layout = Layout();
    const int nLast = static_cast<int>(m_parts.size()) - 1;
    for (const CrumbLayout::Crumb& crumb : layout.Crumbs()) {
        const bool isDots = crumb.nPart == CrumbLayout::kDots;
        const bool isLast = crumb.nPart == nLast;
        if (crumb.nPart != 0)
            DrawCentred(hdc, {crumb.rect.left - kGap, crumb.rect.top, crumb.rect.left, crumb.rect.bottom},
                        hostkit::GetPictogram(hostkit::Pictogram::PathArrow, kIcon));
        if (!isDots)
            DrawGround(hdc, crumb.rect, crumb.nPart);
        CRect text = crumb.rect;
        text.DeflateRect(kSpace, 0);
        DrawTextLine(hdc, text, isDots ? kDotsText : m_parts[static_cast<std::size_t>(crumb.nPart)],
                     GetSysColor(isLast ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT), Align::Left, StyleOf(isLast));
    }
}

} // namespace editor
