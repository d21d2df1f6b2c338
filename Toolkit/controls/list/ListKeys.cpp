// The list control under the keyboard, and how it gains and loses the focus.
#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

ListControl::Keys ListControl::KeysDown()
{
    return {GetKeyState(VK_SHIFT) < 0, GetKeyState(VK_CONTROL) < 0};
}

LRESULT ListControl::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    const UINT vkey = static_cast<UINT>(wParam);
    const int row = RowByKey(vkey);
    Labels().StopWaiting();
    if (row >= 0)
        static_cast<void>(MoveFocus(row, vkey == VK_HOME || vkey == VK_END));
    else if (vkey == VK_SPACE)
        static_cast<void>(PressSpace());
    else if (vkey == VK_RETURN)
        static_cast<void>(TellPlain(NM_RETURN));
    else if (vkey == 'A' && KeysDown().control)
        static_cast<void>(ChangeAll(LVIS_SELECTED, LVIS_SELECTED));
    else if (vkey == VK_ESCAPE && m_press)
        EndTracking();
    else
        return ::DefWindowProc(m_hWnd, WM_KEYDOWN, wParam, lParam);
    return 0;
}

// Left and right run through all rows; up and down keep the column as long as the last line has it.
int ListControl::RowByKey(UINT vkey) const
{
    const int last = m_rows.Count() - 1;
    const int focus = m_rows.Focus();
    const int columns = m_layout.Columns();
    const auto lineAway = [&](int lines) {
        const int line = std::clamp(m_layout.LineOf(focus) + lines, 0, m_layout.LineOf(last));
        const int row = m_layout.RowAt(line, focus % columns);
        return row >= 0 ? row : last;
    };
    if (last < 0)
        return -1;

    switch (vkey) {
    case VK_HOME:
        return 0;
    case VK_END:
        return last;
    case VK_LEFT:
        return std::max(focus - 1, 0);
    case VK_RIGHT:
        return std::min(focus + 1, last);
    case VK_UP:
        return focus < 0 ? 0 : lineAway(-1);
    case VK_DOWN:
        return focus < 0 ? 0 : lineAway(1);
    case VK_PRIOR:
        return focus < 0 ? 0 : lineAway(-m_layout.FullLinesPerPage());
    case VK_NEXT:
        return focus < 0 ? 0 : lineAway(m_layout.FullLinesPerPage());
    default:
        return -1;
    }
}

bool ListControl::MoveFocus(int row, bool allBetween)
{
    const Keys keys = KeysDown();
    bool alive = false;
    if (keys.shift)
        alive = ExtendTo(row, keys.control, allBetween);
    else if (keys.control)
        alive = ChangeState(row, LVIS_FOCUSED, LVIS_FOCUSED);
    else
        alive = SelectOnly(row);
    return alive && (!m_rows.Has(row) || ScrollTo(m_layout.ScrollToShow(row, false)));
}

bool ListControl::PressSpace()
{
    const Keys keys = KeysDown();
    const int row = m_rows.Focus();
    if (row < 0)
        return true;
    if (keys.control)
        return Toggle(row);
    return keys.shift ? ExtendTo(row, false) : SelectOnly(row);
}

LRESULT ListControl::OnSetFocus(WPARAM, LPARAM)
{
    Labels().GotFocus();
    RedrawStates(LVIS_SELECTED | LVIS_FOCUSED);
    static_cast<void>(TellPlain(NM_SETFOCUS));
    return 0;
}

LRESULT ListControl::OnKillFocus(WPARAM, LPARAM)
{
    EndTracking();
    Labels().StopWaiting();
    RedrawStates(LVIS_SELECTED | LVIS_FOCUSED);
    static_cast<void>(TellPlain(NM_KILLFOCUS));
    return 0;
}

} // namespace toolkit
