#include "Editor/widgets/ProgressStrip.h"

#include "Toolkit/graphics/SysColors.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace editor
{
namespace
{

constexpr const char* kCancelText = "Cancel";
constexpr int kBarHeight = 8;
constexpr int kBarWidth = 240;
constexpr int kButtonHeight = 24;

} // namespace

BEGIN_MESSAGE_MAP(CProgressStrip, hostkit::CWidget)
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_CLOSE()
END_MESSAGE_MAP()

void CProgressStrip::SetState(std::string text, double dPart, bool bCanCancel)
{
    if (text == m_text && dPart == m_dPart && bCanCancel == m_bCanCancel)
        return;
    m_bCanCancel = bCanCancel;
    m_text = std::move(text);
    m_dPart = dPart;
    Invalidate();
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
}

std::vector<CProgressStrip::Part> CProgressStrip::AccParts()
{
    if (!m_bCanCancel)
        return {};
    return {{ROLE_SYSTEM_PUSHBUTTON, 0, kCancelText, CancelRect(), "Press"}};
}

std::optional<toolkit::AccRange> CProgressStrip::AccValue()
{
    return m_dPart < 0 ? std::nullopt : std::optional(toolkit::AccRange{0, 100, std::floor(100 * m_dPart)});
}

CRect CProgressStrip::CancelRect() const
{
    const CRect client = Client();
    const int width = TextWidth(kCancelText) + 4 * kSpace;
    return {CPoint(client.right - 2 * kSpace - width, (client.Height() - kButtonHeight) / 2),
            CSize(width, kButtonHeight)};
}

void CProgressStrip::Draw(HDC hdc)
{
    CRect client = Client();
    client.DeflateRect(2 * kSpace, 0);
    if (m_bCanCancel)
        client.right = DrawButton(hdc).left - 2 * kSpace;
    if (m_dPart >= 0)
        client.right = DrawBar(hdc, client).left - 2 * kSpace;
    DrawTextLine(hdc, client, m_text, GetSysColor(COLOR_WINDOWTEXT));
}

CRect CProgressStrip::DrawButton(HDC hdc) const
{
    const CRect button = CancelRect();
    FillSolidRect(hdc, button, LineColor());
    CRect inside = button;
    inside.DeflateRect(1, 1);
    FillSolidRect(hdc, inside, HoverColor());
    DrawTextLine(hdc, button, kCancelText, TextColor(COLOR_WINDOWTEXT, HoverColor()), Align::Center);
    return button;
}

// At the right of the room that there is.
CRect CProgressStrip::DrawBar(HDC hdc, const CRect& room) const
{
    const int nWidth = std::min(kBarWidth, room.Width() / 3);
    const CRect bar(CPoint(room.right - nWidth, room.top + (room.Height() - kBarHeight) / 2),
                    CSize(nWidth, kBarHeight));
    FillSolidRect(hdc, bar, LineColor());
    CRect done = bar;
    done.right = done.left + static_cast<int>(nWidth * std::min(m_dPart, 1.0));
    FillSolidRect(hdc, done, GetSysColor(COLOR_HIGHLIGHT));
    return bar;
}

void CProgressStrip::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    if (m_bCanCancel && CancelRect().PtInRect(point))
        m_cancel();
}

void CProgressStrip::OnKeyDown(UINT nChar, UINT, UINT)
{
    if (nChar == VK_ESCAPE)
        m_cancel();
}

} // namespace editor
