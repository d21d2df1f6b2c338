#include "Toolkit/controls/list/ListAccess.h"

namespace toolkit
{

UINT ListAccess::AccState(LPARAM item)
{
    if (item == CHILDID_SELF)
        return STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_MULTISELECTABLE;
    const int row = RowOf(item);
    const UINT own = Rows().State(row);
    UINT state = STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
    if (own & LVIS_SELECTED)
        state |= STATE_SYSTEM_SELECTED;
    if ((own & LVIS_FOCUSED) && m_window.IsFocused())
        state |= STATE_SYSTEM_FOCUSED;
    if (!IsSeen(row))
        state |= STATE_SYSTEM_OFFSCREEN;
    return state;
}

bool ListAccess::IsSeen(int row) const
{
    return !(m_layout.CellRect(row) & CRect(CPoint(), m_layout.Client())).IsRectEmpty();
}

std::string ListAccess::AccName(LPARAM item)
{
    return item == CHILDID_SELF ? std::string() : m_owner.HintAndAsk(RowOf(item)).text;
}

void ListAccess::AccDo(LPARAM item)
{
    AccSelect(item, SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION);
    if (m_window.IsFocused() && AccFocus() == item)
        SendMessage(m_window.m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
}

void ListAccess::AccSelect(LPARAM item, UINT flags)
{
    if (flags & SELFLAG_TAKEFOCUS)
        m_window.TakeFocus();
    const int row = RowOf(item);
    if (!Rows().Has(row) || ((flags & SELFLAG_TAKEFOCUS) && !m_window.IsFocused()))
        return;
    if (flags & SELFLAG_TAKESELECTION)
        m_selection.SelectOnly(row);
    else if (flags & (SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION))
        m_selection.Change(row, flags & SELFLAG_ADDSELECTION ? LVIS_SELECTED : 0, LVIS_SELECTED);
    else
        m_selection.Focus(row);
    if (Rows().Has(row))
        m_viewport.Show(row);
}

void ListAccess::TellName(int row) const
{
    if (IsSeen(row))
        Tell(EVENT_OBJECT_NAMECHANGE, row);
}

void ListAccess::TellStates(int row, UINT oldState, UINT newState) const
{
    const UINT changed = oldState ^ newState;
    if (row < 0)
        return NotifyWinEvent(EVENT_OBJECT_SELECTIONWITHIN, m_window.m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    if (changed & LVIS_SELECTED)
        Tell(newState & LVIS_SELECTED ? EVENT_OBJECT_SELECTIONADD : EVENT_OBJECT_SELECTIONREMOVE, row);
    if (changed & newState & LVIS_FOCUSED)
        Tell(EVENT_OBJECT_FOCUS, row);
}

} // namespace toolkit
