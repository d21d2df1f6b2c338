// How the edit control draws, and how its caret blinks.
#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/controls/edit/EditTimers.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/window/Wnd.h"

namespace toolkit
{

LRESULT EditControl::OnEraseBackground(WPARAM wParam, LPARAM)
{
    return FillSolidRect(reinterpret_cast<HDC>(wParam), CRect(CPoint(), m_layout.Client()), GetSysColor(COLOR_WINDOW));
}

LRESULT EditControl::OnPaint(WPARAM, LPARAM)
{
    const CPaintDC paint(m_hWnd);
    Draw(paint);
    return 0;
}

void EditControl::Draw(HDC hdc) const
{
    const std::string shown = Shown();
    const CRect line = m_layout.LineRect();
    const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
    SetTextColor(hdc, ink);
    TextOut(hdc, m_layout.X(shown, 0), line.top, shown);

    const bool composes = !m_composition.text.empty();
    if (composes) {
        const int left = m_layout.X(shown, m_text.Caret());
        const int right = m_layout.X(shown, m_text.Caret() + m_composition.text.size());
        FillSolidRect(hdc, {left, line.bottom - 1, right, line.bottom}, ink);
    }
    if (!composes && !m_text.Selection().IsEmpty() && (IsFocused() || Is(ES_NOHIDESEL)))
        DrawSelection(hdc, shown);
    if (m_bCaretOn)
        FillSolidRect(hdc, CaretRect(), ink);
}

// The whole text once more through a clip, so that its letters stand where they stood.
void EditControl::DrawSelection(HDC hdc, const std::string& shown) const
{
    const TextSpan selection = m_text.Selection();
    const CRect line = m_layout.LineRect();
    const CRect rect(m_layout.X(shown, selection.first), line.top, m_layout.X(shown, selection.end), line.bottom);
    const bool focused = IsFocused();
    const int saved = SaveDC(hdc);
    IntersectClipRect(hdc, rect);
    FillSolidRect(hdc, rect, GetSysColor(focused ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
    SetTextColor(hdc, GetSysColor(focused ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    TextOut(hdc, m_layout.X(shown, 0), line.top, shown);
    RestoreDC(hdc, saved);
}

std::string EditControl::Shown() const
{
    std::string shown = m_text.Text();
    shown.insert(m_text.Caret(), m_composition.text);
    return shown;
}

void EditControl::Show()
{
    RestartBlinking();
    RedrawAll();
    if (m_bCaretOn)
        CurrentDesktop().TextInputChanged();
}

void EditControl::ShowCaret()
{
    m_layout.ShowCaret(Shown(), ShownCaret());
    Show();
}

void EditControl::RestartBlinking()
{
    m_bCaretOn = IsFocused();
    if (m_bCaretOn)
        SetTimer(m_hWnd, kEditBlinkTimer, kEditBlinkPeriod);
    else
        KillTimer(m_hWnd, kEditBlinkTimer);
}

LRESULT EditControl::OnTimer(WPARAM wParam, LPARAM lParam)
{
    if (wParam == kEditScrollTimer && m_drag) {
        DragTo(m_drag->at);
    } else if (wParam == kEditBlinkTimer) {
        m_bCaretOn = !m_bCaretOn && IsFocused();
        const CRect caret = CaretRect();
        InvalidateRect(m_hWnd, &caret);
    } else {
        return ::DefWindowProc(m_hWnd, WM_TIMER, wParam, lParam);
    }
    return 0;
}

} // namespace toolkit
