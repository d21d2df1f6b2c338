#include "Toolkit/controls/edit/EditMouse.h"

#include "Toolkit/desktop/Desktop.h"

namespace toolkit
{

namespace
{
constexpr UINT kScrollPeriod = 50; // milliseconds
} // namespace

void EditMouse::OnLButtonDown(WPARAM keys, CPoint at)
{
    m_window.TakeFocus();
    const std::size_t to = m_view.Layout().PositionAt(m_text.Text(), at.x);
    const std::size_t anchor = keys & MK_SHIFT ? m_text.Anchor() : to;
    m_view.Select(anchor, to);
    Begin({{anchor, anchor}, false, at, false});
}

void EditMouse::OnLButtonDblClk(WPARAM, CPoint at)
{
    m_window.TakeFocus();
    const TextSpan word = WordAt(m_text.Text(), m_view.Layout().CharacterAt(m_text.Text(), at.x));
    m_view.Select(word.first, word.end);
    Begin({word, true, at, false});
}

void EditMouse::OnLButtonUp()
{
    if (m_drag && GetCapture() == m_window.m_hWnd)
        ReleaseCapture(); // tells OnCaptureChanged
}

void EditMouse::OnMouseMove(WPARAM keys, CPoint at)
{
    if (m_drag && !(keys & MK_LBUTTON))
        OnLButtonUp(); // the release was missed
    else if (m_drag)
        DragTo(at);
}

void EditMouse::OnCaptureChanged()
{
    m_drag.reset();
    KillTimer(m_window.m_hWnd, kScrollTimer);
}

BOOL EditMouse::OnSetCursor() const
{
    CurrentDesktop().ShowCursor(Cursor::Text);
    return TRUE;
}

void EditMouse::Begin(const Drag& drag)
{
    SetCapture(m_window.m_hWnd);
    m_drag = drag;
}

// Outside the field the text goes on scrolling under the mouse.
void EditMouse::DragTo(CPoint at)
{
    const bool outside = at.x < 0 || at.x >= m_view.Layout().Client().cx;
    if (outside && !m_drag->scrolls)
        SetTimer(m_window.m_hWnd, kScrollTimer, kScrollPeriod);
    else if (!outside && m_drag->scrolls)
        KillTimer(m_window.m_hWnd, kScrollTimer);
    m_drag->scrolls = outside;
    m_drag->at = at;

    const std::string& text = m_text.Text();
    const TextSpan from = m_drag->from;
    const std::size_t to = m_view.Layout().PositionAt(text, at.x);
    if (!m_drag->byWords)
        return m_view.Select(from.first, to);
    const TextSpan word = WordAt(text, m_view.Layout().CharacterAt(text, at.x));
    if (to < from.first)
        m_view.Select(from.end, word.first);
    else
        m_view.Select(from.first, std::max(from.end, word.end));
}

void EditMouse::Scroll()
{
    if (m_drag)
        DragTo(m_drag->at);
}

} // namespace toolkit
