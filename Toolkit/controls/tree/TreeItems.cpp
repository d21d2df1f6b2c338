#include "Toolkit/controls/tree/TreeItems.h"

namespace toolkit
{

bool TreeItems::IsWithin(ItemIndex ancestor, ItemIndex item) const
{
    while (item != kNoItem && item != ancestor)
        item = m_siblings.ParentOf(item);
    return item != kNoItem;
}

bool TreeItems::Goes(ItemIndex item) const
{
    if (m_deletions == 0)
        return false;
    while (item != kNoItem && !m_pool[item].goes)
        item = m_siblings.ParentOf(item);
    return item != kNoItem;
}

int TreeItems::Level(ItemIndex item) const
{
    int level = -1;
    for (; item != kRootItem && item != kNoItem; item = m_siblings.ParentOf(item))
        ++level;
    return level;
}

ItemIndex TreeItems::Parent(ItemIndex item) const
{
    const ItemIndex parent = m_siblings.ParentOf(item);
    return parent == kRootItem ? kNoItem : parent;
}

bool TreeItems::IsShown(ItemIndex item) const
{
    while (item != kRootItem) {
        item = m_siblings.ParentOf(item);
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
    for (item = m_siblings.ParentOf(item); item != kRootItem; item = m_siblings.ParentOf(item))
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

bool TreeItems::AreChildren(ItemIndex parent, std::span<const ItemIndex> items)
{
    std::size_t marked = 0;
    while (marked < items.size() && m_siblings.ParentOf(items[marked]) == parent && !m_pool[items[marked]].marked)
        m_pool[items[marked++]].marked = true;
    for (std::size_t i = 0; i < marked; ++i)
        m_pool[items[i]].marked = false;
    return marked == items.size();
}

const TreeFace& TreeItems::FaceOf(ItemIndex item) const
{
    static const TreeFace s_asksForAll{{}, true, I_IMAGECALLBACK, I_IMAGECALLBACK, I_CHILDRENCALLBACK};
    return m_pool[item].hasFace ? m_faces.find(item)->second : s_asksForAll;
}

void TreeItems::SetFace(ItemIndex item, const TreeFace& face)
{
    if (face.AsksForAll())
        m_faces.erase(item);
    else
        m_faces[item] = face;
    m_pool[item].hasFace = !face.AsksForAll();
}

ItemIndex TreeItems::Insert(ItemIndex parent, int place, UINT state)
{
    const ItemIndex item = m_pool.Take();
    if (item == kNoItem)
        return kNoItem;
    m_pool[item].state = static_cast<BYTE>(state);
    try {
        m_siblings.Insert(parent, place, item);
    } catch (...) {
        m_pool.GiveBack(item);
        throw;
    }
    AddRowsAbove(parent, 1);
    ++m_nVersion;
    return item;
}

void TreeItems::MoveUp(ItemIndex item, int place)
{
    m_siblings.MoveUp(item, place);
    ++m_nVersion;
}

void TreeItems::Delete(ItemIndex item)
{
    const ItemIndex parent = m_siblings.ParentOf(item);
    m_siblings.Remove(item);
    AddRowsAbove(parent, -1);
    if (m_pool[item].hasFace)
        m_faces.erase(item);
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
    for (; rows != 0 && parent != kRootItem && IsExpanded(parent); parent = m_siblings.ParentOf(parent))
        m_siblings.AddRows(parent, rows);
}

} // namespace toolkit
