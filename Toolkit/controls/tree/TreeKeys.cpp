// The tree control under the keyboard, and how it gains and loses the focus.
#include "Toolkit/controls/tree/TreeControl.h"

namespace toolkit
{

LRESULT TreeControl::OnSetFocus(WPARAM, LPARAM)
{
    Labels().GotFocus();
    Redraw(m_hCaret);
    // A change of the selection that moves the focus on its way finds the item itself.
    if (!m_hCaret && m_nSelecting == 0) {
        const HTREEITEM hFirst = m_items.HandleOf(m_items.AtRow(m_layout.TopRow()));
        if (hFirst && !Select(hFirst, TVC_UNKNOWN))
            return 0;
    }
    static_cast<void>(TellPlain(NM_SETFOCUS));
    return 0;
}

LRESULT TreeControl::OnKillFocus(WPARAM, LPARAM)
{
    m_search.text.clear();
    Labels().StopWaiting();
    if (!EndPress())
        return 0;
    Redraw(m_hCaret);
    static_cast<void>(TellPlain(NM_KILLFOCUS));
    return 0;
}

LRESULT TreeControl::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    const UINT vkey = static_cast<UINT>(wParam);
    Labels().StopWaiting();
    m_bCharIsTaken = vkey == VK_ADD || vkey == VK_SUBTRACT || vkey == VK_MULTIPLY;
    bool handled = true;
    if (!DoKey(vkey, handled) || handled)
        return 0;
    return ::DefWindowProc(m_hWnd, WM_KEYDOWN, wParam, lParam);
}

LRESULT TreeControl::OnKeyUp(WPARAM wParam, LPARAM lParam)
{
    m_bCharIsTaken = false;
    return ::DefWindowProc(m_hWnd, WM_KEYUP, wParam, lParam);
}

bool TreeControl::DoKey(UINT vkey, bool& handled)
{
    if (GetKeyState(VK_CONTROL) < 0)
        return ScrollByKey(vkey, handled);
    const ItemIndex caret = m_items.Find(m_hCaret);
    switch (vkey) {
    case VK_LEFT:
        return IsOpen(caret) ? Expand(m_hCaret, TVE_COLLAPSE, TVC_BYKEYBOARD) : MoveTo(m_items.Parent(caret));
    case VK_RIGHT:
        return IsOpen(caret) ? MoveTo(m_items.FirstChild(caret)) : Expand(m_hCaret, TVE_EXPAND, TVC_BYKEYBOARD);
    case VK_BACK:
        return MoveTo(m_items.Parent(caret));
    case VK_ADD:
        return Expand(m_hCaret, TVE_EXPAND, TVC_BYKEYBOARD);
    case VK_SUBTRACT:
        return Expand(m_hCaret, TVE_COLLAPSE, TVC_BYKEYBOARD);
    case VK_MULTIPLY:
        return ExpandBranch(m_hCaret);
    case VK_RETURN:
        return TellPlain(NM_RETURN);
    case VK_ESCAPE:
        handled = m_press.has_value();
        return EndPress();
    default: {
        const int row = RowByKey(vkey);
        handled = row >= 0;
        return !handled || MoveTo(m_items.AtRow(row));
    }
    }
}

// An expanded item that has lost its children is not open to the user.
bool TreeControl::IsOpen(ItemIndex item) const
{
    return m_items.IsExpanded(item) && m_items.ChildCount(item) > 0;
}

// Where the key moves the selection; -1: nowhere. A hidden selection counts as its last ancestor that is shown.
int TreeControl::RowByKey(UINT vkey) const
{
    ItemIndex from = m_items.Find(m_hCaret);
    while (from != kNoItem && !m_items.IsShown(from))
        from = m_items.Parent(from);
    const int row = m_items.RowOf(from);
    const int last = m_items.RowCount() - 1;
    const int page = std::max(m_layout.FullRows() - 1, 1);
    const auto target = [&](int rows) { return row < 0 ? std::min(0, last) : std::clamp(row + rows, 0, last); };
    switch (vkey) {
    case VK_UP:
        return target(-1);
    case VK_DOWN:
        return target(1);
    case VK_PRIOR:
        return target(-page);
    case VK_NEXT:
        return target(page);
    case VK_HOME:
        return std::min(0, last);
    case VK_END:
        return last;
    default:
        return -1;
    }
}

// With Ctrl the keys move what is seen, not the selection.
bool TreeControl::ScrollByKey(UINT vkey, bool& handled)
{
    switch (vkey) {
    case VK_UP:
        return ScrollToRow(m_layout.TopRow() - 1);
    case VK_DOWN:
        return ScrollToRow(m_layout.TopRow() + 1);
    case VK_PRIOR:
        return ScrollToRow(m_layout.TopRow() - m_layout.FullRows());
    case VK_NEXT:
        return ScrollToRow(m_layout.TopRow() + m_layout.FullRows());
    case VK_HOME:
        return ScrollToRow(0);
    case VK_END:
        return ScrollToRow(m_layout.MaxTopRow());
    case VK_LEFT:
        return ScrollToX(m_layout.X() - TreeLayout::kIndent);
    case VK_RIGHT:
        return ScrollToX(m_layout.X() + TreeLayout::kIndent);
    default:
        handled = false;
        return true;
    }
}

} // namespace toolkit
