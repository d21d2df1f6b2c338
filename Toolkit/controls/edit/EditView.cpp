#include "Toolkit/controls/edit/EditView.h"

#include "Toolkit/access/WinEvents.h"
#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

namespace
{
constexpr UINT kBlinkPeriod = 530; // milliseconds that the caret is seen, and then not
} // namespace

BOOL EditView::OnEraseBackground(HDC hdc) const
{
    return FillSolidRect(hdc, CRect(CPoint(), m_layout.Client()), GetSysColor(COLOR_WINDOW));
}

void EditView::OnSize()
{
    CRect client;
    GetClientRect(m_window.m_hWnd, &client);
    m_layout.SetClient(client.Size());
    ShowCaret();
}

void EditView::OnPaint() const
{
    const CPaintDC paint(m_window.m_hWnd);
    const HDC hdc = paint;
    const std::string shown = Shown();
    const CRect line = m_layout.LineRect();
    const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
    SetTextColor(hdc, ink);
    TextOut(hdc, m_layout.Left(shown), line.top, shown);

    const bool composes = !m_composition.text.empty();
    if (composes) {
        const TextSpan span{m_text.Caret(), m_text.Caret() + m_composition.text.size()};
        for (const CRect& part : m_layout.SpanRects(shown, span))
            FillSolidRect(hdc, {part.left, part.bottom - 1, part.right, part.bottom}, ink);
    } else if (m_window.IsFocused() || m_window.Is(ES_NOHIDESEL)) {
        for (const CRect& part : m_layout.SpanRects(shown, m_text.Selection()))
            DrawSelected(hdc, shown, part);
    }
    if (m_bCaretOn)
        FillSolidRect(hdc, CaretRect(), ink);
}

// The whole text once more through a clip, so that its letters stand where they stood.
void EditView::DrawSelected(HDC hdc, const std::string& shown, const CRect& part) const
{
    const bool focused = m_window.IsFocused();
    const int saved = SaveDC(hdc);
    IntersectClipRect(hdc, part);
    FillSolidRect(hdc, part, GetSysColor(focused ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
    SetTextColor(hdc, GetSysColor(focused ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    TextOut(hdc, m_layout.Left(shown), part.top, shown);
    RestoreDC(hdc, saved);
}

std::string EditView::Shown() const
{
    std::string shown = m_text.Text();
    shown.insert(m_text.Caret(), m_composition.text);
    return shown;
}

void EditView::Show()
{
    RestartBlinking();
    m_window.RedrawAll();
    NotifyWinEvent(EVENT_OBJECT_TEXTSELECTIONCHANGED, m_window.m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    if (m_bCaretOn)
        CurrentDesktop().TextInputChanged();
}

void EditView::ShowCaret()
{
    m_layout.ShowCaret(Shown(), ShownCaret());
    Show();
}

void EditView::Select(std::size_t anchor, std::size_t caret)
{
    m_text.Select(anchor, caret);
    ShowCaret();
}

void EditView::Compose(std::string_view text, std::size_t caret)
{
    m_composition = {std::string(text), StopAtOrBefore(text, caret)};
}

void EditView::RestartBlinking()
{
    m_bCaretOn = m_window.IsFocused();
    if (m_bCaretOn)
        SetTimer(m_window.m_hWnd, kBlinkTimer, kBlinkPeriod);
    else
        KillTimer(m_window.m_hWnd, kBlinkTimer);
}

void EditView::Blink()
{
    m_bCaretOn = !m_bCaretOn && m_window.IsFocused();
    const CRect caret = CaretRect();
    InvalidateRect(m_window.m_hWnd, &caret);
}

} // namespace toolkit
