#include "Toolkit/controls/TreeItems.h"

namespace toolkit
{

ItemIndex TreeItems::FindParent(HTREEITEM hItem) const
{
    return !hItem || hItem == TVI_ROOT ? kRootItem : Find(hItem);
}

bool TreeItems::IsWithin(ItemIndex ancestor, ItemIndex item) const
{
    while (item != kNoItem && item != ancestor)
        item = m_pool[item].parent;
    return item != kNoItem;
}

bool TreeItems::Goes(ItemIndex item) const
{
    while (item != kNoItem && !m_pool[item].goes)
        item = m_pool[item].parent;
    return item != kNoItem;
}

int TreeItems::Level(ItemIndex item) const
{
    int level = -1;
    for (; item != kRootItem && item != kNoItem; item = m_pool[item].parent)
        ++level;
    return level;
}

ItemIndex TreeItems::Parent(ItemIndex item) const
{
    const ItemIndex parent = m_pool[item].parent;
    return parent == kRootItem ? kNoItem : parent;
}

bool TreeItems::IsShown(ItemIndex item) const
{
    if (!m_pool[item].placed)
        return false;
    while (item != kRootItem) {
        item = m_pool[item].parent;
        if (!IsExpanded(item))
            return false;
    }
    return true;
}

int TreeItems::RowOf(ItemIndex item) const
{
    if (item == kRootItem || !IsShown(item))
        return -1;
    int row = m_siblings.RowsBefore(item);
    for (item = m_pool[item].parent; item != kRootItem; item = m_pool[item].parent)
        row += m_siblings.RowsBefore(item) + 1;
    return row;
}

ItemIndex TreeItems::AtRow(int row) const
{
    if (row < 0 || row >= RowCount())
        return kNoItem;
    TreeSiblings::RowPlace at{kRootItem, row + 1};
    while (at.row > 0)
        at = m_siblings.AtRow(at.item, at.row - 1);
    return at.item;
}

void TreeItems::Place(ItemIndex item, ItemIndex parent, int place)
{
    const int rows = 1 + (IsExpanded(item) ? m_siblings.Rows(item) : 0);
    m_siblings.Insert(parent, place, item, rows);
    m_pool[item].placed = true;
    AddRowsAbove(parent, rows);
    ++m_nVersion;
}

void TreeItems::Delete(ItemIndex item)
{
    if (m_pool[item].placed) {
        const int rows = RowsOf(item);
        const ItemIndex parent = m_pool[item].parent;
        m_siblings.Remove(item);
        AddRowsAbove(parent, -rows);
    }
    m_pool.GiveBack(item);
    ++m_nVersion;
}

void TreeItems::SetExpanded(ItemIndex item, bool expanded)
{
    if (IsExpanded(item) == expanded)
        return;
    if (expanded) {
        m_pool[item].state |= TVIS_EXPANDED;
        AddRowsAbove(item, m_siblings.Rows(item));
    } else {
        AddRowsAbove(item, -m_siblings.Rows(item));
        m_pool[item].state &= static_cast<BYTE>(~TVIS_EXPANDED);
    }
    ++m_nVersion;
}

void TreeItems::Arrange(ItemIndex parent, std::span<const ItemIndex> order)
{
    m_siblings.Arrange(parent, order);
    ++m_nVersion;
}

void TreeItems::AddRowsAbove(ItemIndex parent, int rows)
{
    for (; rows != 0 && parent != kRootItem && IsExpanded(parent); parent = m_pool[parent].parent)
        m_siblings.AddRows(parent, rows);
}

} // namespace toolkit
