#include "Toolkit/controls/tree/TreeKeys.h"

namespace toolkit
{

LRESULT TreeKeys::OnKeyDown(UINT vkey, LPARAM lParam)
{
    m_control.Labels().StopWaiting();
    m_bCharIsTaken = vkey == VK_ADD || vkey == VK_SUBTRACT || vkey == VK_MULTIPLY;
    const bool done = GetKeyState(VK_CONTROL) < 0 ? ScrollByKey(vkey) : DoKey(vkey);
    return done ? 0 : ::DefWindowProc(m_control.m_hWnd, WM_KEYDOWN, vkey, lParam);
}

LRESULT TreeKeys::OnKeyUp(WPARAM wParam, LPARAM lParam)
{
    m_bCharIsTaken = false;
    return ::DefWindowProc(m_control.m_hWnd, WM_KEYUP, wParam, lParam);
}

bool TreeKeys::DoKey(UINT vkey)
{
    const HTREEITEM hCaret = m_selection.Caret();
    const ItemIndex caret = m_items.Find(hCaret);
    const auto expand = [&](UINT code) { m_selection.Expand(hCaret, code, TVC_BYKEYBOARD); };
    switch (vkey) {
    case VK_LEFT:
        return IsOpen(caret) ? expand(TVE_COLLAPSE) : MoveTo(m_items.Parent(caret)), true;
    case VK_RIGHT:
        return IsOpen(caret) ? MoveTo(m_items.FirstChild(caret)) : expand(TVE_EXPAND), true;
    case VK_BACK:
        return MoveTo(m_items.Parent(caret)), true;
    case VK_ADD:
        return expand(TVE_EXPAND), true;
    case VK_SUBTRACT:
        return expand(TVE_COLLAPSE), true;
    case VK_MULTIPLY:
        return m_selection.ExpandBranch(hCaret), true;
    case VK_RETURN:
        return m_control.Notify(NM_RETURN), true;
    case VK_ESCAPE: {
        const bool pressed = m_mouse.IsPressed();
        return m_mouse.Cancel(), pressed;
    }
    default: {
        const int row = RowByKey(vkey);
        return MoveTo(m_items.AtRow(row)), row >= 0;
    }
    }
}

void TreeKeys::MoveTo(ItemIndex item)
{
    if (item != kNoItem)
        m_selection.Select(m_items.HandleOf(item), TVC_BYKEYBOARD);
}

// An expanded item that has lost its children is not open to the user.
bool TreeKeys::IsOpen(ItemIndex item) const
{
    return m_items.IsExpanded(item) && m_items.ChildCount(item) > 0;
}

// Where the key moves the selection; -1: nowhere. A hidden selection counts as its last ancestor that is shown.
int TreeKeys::RowByKey(UINT vkey) const
{
    ItemIndex from = m_items.Find(m_selection.Caret());
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
bool TreeKeys::ScrollByKey(UINT vkey)
{
    switch (vkey) {
    case VK_UP:
        return m_viewport.ScrollToRow(m_layout.TopRow() - 1), true;
    case VK_DOWN:
        return m_viewport.ScrollToRow(m_layout.TopRow() + 1), true;
    case VK_PRIOR:
        return m_viewport.ScrollToRow(m_layout.TopRow() - m_layout.FullRows()), true;
    case VK_NEXT:
        return m_viewport.ScrollToRow(m_layout.TopRow() + m_layout.FullRows()), true;
    case VK_HOME:
        return m_viewport.ScrollToRow(0), true;
    case VK_END:
        return m_viewport.ScrollToRow(m_layout.MaxTopRow()), true;
    case VK_LEFT:
        return m_viewport.ScrollToX(m_layout.X() - TreeLayout::kIndent), true;
    case VK_RIGHT:
        return m_viewport.ScrollToX(m_layout.X() + TreeLayout::kIndent), true;
    default:
        return false;
    }
}

void TreeKeys::OnChar(char32_t c)
{
    if (m_bCharIsTaken)
        return;
    m_typeAhead.Type(c, [this](const std::string& prefix, bool bBehind) {
        const HTREEITEM hFound = FindLabel(prefix, bBehind);
        MoveTo(m_items.Find(hFound));
        return hFound != nullptr;
    });
}

HTREEITEM TreeKeys::FindLabel(const std::string& prefix, bool afterCaret) const
{
    const ItemIndex caret = m_items.Find(m_selection.Caret());
    const int from = std::max(m_items.RowOf(caret), 0) + (afterCaret && caret != kNoItem ? 1 : 0);
    for (int i = 0; i < m_items.RowCount(); ++i) {
        const HTREEITEM hItem = m_items.HandleOf(m_items.AtRow((from + i) % m_items.RowCount()));
        const std::string text = m_owner.AskText(hItem);
        if (m_items.Find(hItem) != kNoItem && BeginsWith(text, prefix))
            return hItem;
    }
    return nullptr;
}

} // namespace toolkit
