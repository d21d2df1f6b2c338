#include "Editor/widgets/ProgressStrip.h"

#include "Editor/widgets/Look.h"
#include "Toolkit/graphics/SysColors.h"

#include <algorithm>
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

BEGIN_MESSAGE_MAP(CProgressStrip, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_CLOSE()
END_MESSAGE_MAP()

BOOL CProgressStrip::Create(CWnd* pParent)
{
    return CreateEx(0, "", "", WS_CHILD | WS_CLIPSIBLINGS, CRect(), pParent, 0);
}

void CProgressStrip::SetState(std::string text, double dPart)
{
    if (text == m_text && dPart == m_dPart)
        return;
    m_text = std::move(text);
    m_dPart = dPart;
    Invalidate();
}

CRect CProgressStrip::CancelRect() const
{
    CRect client;
    GetClientRect(&client);
    const int width = TextWidth(kCancelText) + 4 * kSpace;
    return {CPoint(client.right - 2 * kSpace - width, (client.Height() - kButtonHeight) / 2),
            CSize(width, kButtonHeight)};
}

BOOL CProgressStrip::OnEraseBkgnd(HDC hdc)
{
    FillBottomBar(hdc, m_hWnd);
    return TRUE;
}

void CProgressStrip::OnPaint()
{
    const CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const CRect button = CancelRect();
    FillSolidRect(dc, button, LineColor());
    CRect inside = button;
    inside.DeflateRect(1, 1);
    FillSolidRect(dc, inside, HoverColor());
    DrawTextLine(dc, button, kCancelText, GetSysColor(COLOR_WINDOWTEXT), Align::Center);

    const int nBar = std::min(kBarWidth, client.Width() / 3);
    const CRect bar(CPoint(button.left - 2 * kSpace - nBar, (client.Height() - kBarHeight) / 2),
                    CSize(nBar, kBarHeight));
    FillSolidRect(dc, bar, LineColor());
    CRect done = bar;
    done.right = done.left + static_cast<int>(nBar * std::clamp(m_dPart, 0.0, 1.0));
    FillSolidRect(dc, done, GetSysColor(COLOR_HIGHLIGHT));

    CRect text = client;
    text.left += 2 * kSpace;
    text.right = bar.left - 2 * kSpace;
    DrawTextLine(dc, text, m_text, GetSysColor(COLOR_WINDOWTEXT));
}

void CProgressStrip::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnLButtonDown(nFlags, point);
    if (CancelRect().PtInRect(point))
        m_cancel();
}

void CProgressStrip::OnKeyDown(UINT nChar, UINT, UINT)
{
    if (nChar == VK_ESCAPE)
        m_cancel();
}

void CProgressStrip::OnClose()
{
    m_cancel();
}

} // namespace editor
