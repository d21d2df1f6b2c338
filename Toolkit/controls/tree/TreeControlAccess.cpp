// What the tree control tells assistive technology.
#include "Toolkit/controls/tree/TreeControl.h"

#include <cstring>

namespace toolkit
{

UINT TreeControl::AccState(LPARAM item)
{
    if (item == CHILDID_SELF)
        return STATE_SYSTEM_FOCUSABLE;
    UINT state = STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE;
    if (m_owner.AskFace(ToHandle(item), TVIF_CHILDREN).hasChildren)
        state |= m_items.IsExpanded(m_items.Find(ToHandle(item))) ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    if (ToHandle(item) == m_selection.Caret())
        state |= STATE_SYSTEM_SELECTED | (IsFocused() ? STATE_SYSTEM_FOCUSED : 0);
    if ((AccPlace(item) & CRect(CPoint(), m_layout.Client())).IsRectEmpty())
        state |= STATE_SYSTEM_OFFSCREEN;
    return state;
}

CRect TreeControl::AccPlace(LPARAM item)
{
    const HTREEITEM hItem = ToHandle(item);
    CRect label;
    std::memcpy(static_cast<RECT*>(&label), &hItem, sizeof(hItem));
    m_viewport.OnGetItemRect(TRUE, &label);
    return label;
}

std::string TreeControl::AccName(LPARAM item)
{
    return item == CHILDID_SELF ? std::string() : m_owner.AskText(ToHandle(item));
}

int TreeControl::AccCount(LPARAM parent)
{
    m_order.Settle();
    const ItemIndex index = m_items.FindParent(ToHandle(parent));
    const bool open = index == kRootItem || (index != kNoItem && m_items.IsExpanded(index));
    return open ? m_items.ChildCount(index) : 0;
}

LPARAM TreeControl::AccChild(LPARAM parent, int place)
{
    m_order.Settle();
    return ToItem(m_items.ChildAt(m_items.FindParent(ToHandle(parent)), place));
}

int TreeControl::AccIndex(LPARAM item)
{
    m_order.Settle();
    return m_items.PlaceOf(m_items.Find(ToHandle(item)));
}

std::string TreeControl::AccAction(LPARAM item)
{
    const UINT state = AccState(item);
    return state & STATE_SYSTEM_EXPANDED ? "Close" : state & STATE_SYSTEM_COLLAPSED ? "Open" : "";
}

// One item is selected; it has the focus as well.
void TreeControl::AccSelect(LPARAM item, UINT flags)
{
    if (flags & SELFLAG_TAKEFOCUS)
        TakeFocus();
    if (!(flags & SELFLAG_REMOVESELECTION) && HasItem(item))
        m_selection.Select(ToHandle(item), TVC_UNKNOWN);
}

} // namespace toolkit
