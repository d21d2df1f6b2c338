#include "HostKit/frame/Pane.h"

#include "HostKit/pictures/Look.h"
#include "Toolkit/access/Accessible.h"
#include "Toolkit/graphics/SysColors.h"

#include <utility>

namespace hostkit
{

BEGIN_MESSAGE_MAP(CPane, CWidget)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

void CPane::ShowView(HWND hView, std::string caption, toolkit::Surface icon)
{
    m_hView = hView;
    m_caption = std::move(caption);
    SetAccessibleName(hView, m_caption.c_str());
    m_icon = std::move(icon);
    PlaceView();
    ::ShowWindow(hView, SW_SHOW);
    ShowWindow(SW_SHOW);
    Invalidate();
}

void CPane::HideView()
{
    ::ShowWindow(std::exchange(m_hView, nullptr), SW_HIDE);
    ShowWindow(SW_HIDE);
}

void CPane::SetChoices(std::vector<Choice> choices, std::function<void(int)> choose)
{
    m_choices = std::move(choices);
    m_choose = std::move(choose);
    Invalidate();
}

void CPane::SetChosen(int nChoice)
{
    m_nChosen = nChoice;
    Invalidate();
}

CRect CPane::ChoiceRect(int nChoice) const
{
    constexpr int kExtent = 3 * kSpace;
    const int left = Client().right - kSpace - (static_cast<int>(m_choices.size()) - nChoice) * kExtent;
    const int top = (kPaneCaptionHeight - kExtent) / 2;
    return {left, top, left + kExtent, top + kExtent};
}

void CPane::SetField(CWnd* pField, CSize margin)
{
    m_pField = pField;
    m_fieldMargin = margin;
    PlaceView();
}

void CPane::ShowField(bool bShow)
{
    m_pField->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    Invalidate();
}

CRect CPane::FieldRect() const
{
    constexpr int kMost = 208, kTitle = 112; // pixels wide
    constexpr int kFieldHeight = kPaneCaptionHeight - kSpace / 2;
    const int right = (m_choices.empty() ? Client().right : ChoiceRect(0).left) - kSpace;
    const int top = (kPaneCaptionHeight - kFieldHeight) / 2;
    return {std::max(kTitle, right - kMost), top, right, top + kFieldHeight};
}

void CPane::Erase(HDC hdc)
{
    const CRect client = Client();
    FillSolidRect(hdc, client, GetSysColor(COLOR_WINDOW));
    FillSolidRect(hdc, {client.left, kPaneCaptionHeight - 1, client.right, kPaneCaptionHeight}, LineColor());
}

void CPane::Draw(HDC hdc)
{
    CRect caption = Client();
    caption.bottom = kPaneCaptionHeight;
    CRect icon(2 * kSpace, 0, 2 * kSpace + m_icon.Size().cx, caption.bottom);
    DrawCentred(hdc, icon, m_icon);
    caption.left = icon.right + kSpace;
    caption.right = (m_choices.empty() ? caption.right : ChoiceRect(0).left) - kSpace;
    if (m_pField && m_pField->IsWindowVisible()) {
        caption.right = FieldRect().left - kSpace;
        CRect inner = FieldRect();
        FillSolidRect(hdc, inner, LineColor());
        inner.DeflateRect(1, 1);
        FillSolidRect(hdc, inner, GetSysColor(COLOR_WINDOW));
    }
    DrawTextLine(hdc, caption, m_caption, GetSysColor(COLOR_WINDOWTEXT));
    DrawChoices(hdc);
}

void CPane::DrawChoices(HDC hdc) const
{
    for (int i = 0; i < static_cast<int>(m_choices.size()); ++i) {
        const CRect rect = ChoiceRect(i);
        if (i == m_nChosen)
            FillSolidRect(hdc, rect, PressedColor());
        DrawCentred(hdc, rect, m_choices[static_cast<std::size_t>(i)].icon);
    }
}

void CPane::OnSize(UINT nType, int cx, int cy)
{
    CWidget::OnSize(nType, cx, cy);
    PlaceView();
}

void CPane::OnSetFocus(CWnd* pOldWnd)
{
    CWidget::OnSetFocus(pOldWnd);
    ::SetFocus(m_hView);
}

void CPane::OnLButtonDown(UINT nFlags, CPoint point)
{
    CWidget::OnLButtonDown(nFlags, point);
    for (int i = 0; i < static_cast<int>(m_choices.size()); ++i)
        if (ChoiceRect(i).PtInRect(point))
            return Choose(i);
}

void CPane::Choose(int nChoice)
{
    if (nChoice != m_nChosen)
        m_choose(nChoice);
}

std::vector<CPane::Part> CPane::AccParts()
{
    std::vector<Part> parts;
    for (const Choice& choice : m_choices) {
        const int nChoice = static_cast<int>(parts.size());
        const UINT state = nChoice == m_nChosen ? STATE_SYSTEM_CHECKED : 0;
        parts.push_back({ROLE_SYSTEM_PUSHBUTTON, state, choice.name, ChoiceRect(nChoice), "Press"});
    }
    return parts;
}

void CPane::PlaceView()
{
    const CRect client = Client();
    if (m_pField) {
        CRect text = FieldRect();
        text.DeflateRect(m_fieldMargin.cx, m_fieldMargin.cy);
        m_pField->MoveWindow(text);
    }
    const int top = kPaneCaptionHeight + m_nMargin;
    ::MoveWindow(m_hView, m_nMargin, top, std::max(0, client.Width() - m_nMargin), std::max(0, client.Height() - top));
}

} // namespace hostkit
