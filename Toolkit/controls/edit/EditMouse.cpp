// The edit control under the mouse: placing the caret, selecting by dragging and by words.
#include "Toolkit/controls/edit/EditControl.h"
#include "Toolkit/controls/edit/EditTimers.h"
#include "Toolkit/desktop/Desktop.h"

namespace toolkit
{

LRESULT EditControl::OnLButtonDown(WPARAM wParam, LPARAM lParam)
{
    TakeFocus();
    if (!IsAlive())
        return 0;
    const CPoint at(lParam);
    MoveCaret(m_layout.PositionAt(m_text.Text(), at.x), (wParam & MK_SHIFT) != 0);
    const std::size_t anchor = Anchor();
    static_cast<void>(BeginDrag({anchor, anchor}, false, at));
    return 0;
}

LRESULT EditControl::OnLButtonDblClk(WPARAM, LPARAM lParam)
{
    TakeFocus();
    if (!IsAlive())
        return 0;
    const CPoint at(lParam);
    const TextSpan word = WordAt(m_text.Text(), m_layout.CharacterAt(m_text.Text(), at.x));
    Select(word.first, word.end);
    static_cast<void>(BeginDrag(word, true, at));
    return 0;
}

LRESULT EditControl::OnLButtonUp(WPARAM, LPARAM)
{
    EndDrag();
    return 0;
}

LRESULT EditControl::OnMouseMove(WPARAM wParam, LPARAM lParam)
{
    if (m_drag && !(wParam & MK_LBUTTON))
        EndDrag(); // the release was missed
    else if (m_drag)
        DragTo(CPoint(lParam));
    return 0;
}

LRESULT EditControl::OnCaptureChanged(WPARAM, LPARAM)
{
    m_drag.reset();
    KillTimer(m_hWnd, kEditScrollTimer);
    return 0;
}

LRESULT EditControl::OnSetCursor(WPARAM, LPARAM)
{
    CurrentDesktop().ShowCursor(Cursor::Text);
    return TRUE;
}

bool EditControl::BeginDrag(TextSpan from, bool byWords, CPoint at)
{
    const HWND hWnd = m_hWnd;
    SetCapture(hWnd);
    if (!IsWindow(hWnd))
        return false;
    m_drag = Drag{from, byWords, at, false};
    return true;
}

// Outside the field the text goes on scrolling under the mouse.
void EditControl::DragTo(CPoint at)
{
    const bool outside = at.x < 0 || at.x >= m_layout.Client().cx;
    if (outside && !m_drag->scrolls)
        SetTimer(m_hWnd, kEditScrollTimer, kEditScrollPeriod);
    else if (!outside && m_drag->scrolls)
        KillTimer(m_hWnd, kEditScrollTimer);
    m_drag->scrolls = outside;
    m_drag->at = at;

    const std::string& text = m_text.Text();
    const TextSpan from = m_drag->from;
    const std::size_t to = m_layout.PositionAt(text, at.x);
    if (!m_drag->byWords)
        return Select(from.first, to);
    const TextSpan word = WordAt(text, m_layout.CharacterAt(text, at.x));
    if (to < from.first)
        Select(from.end, word.first);
    else
        Select(from.first, std::max(from.end, word.end));
}

void EditControl::EndDrag()
{
    if (m_drag && GetCapture() == m_hWnd)
        ReleaseCapture(); // tells OnCaptureChanged
}

} // namespace toolkit
