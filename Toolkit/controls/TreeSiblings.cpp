#include "Toolkit/controls/TreeSiblings.h"

namespace toolkit
{

namespace
{

// Spreads neighbouring indices over all 32 bits, each to a value of its own.
std::uint32_t Rank(ItemIndex i)
{
    i ^= i >> 16;
    i *= 0x7FEB352Du;
    i ^= i >> 15;
    i *= 0x846CA68Bu;
    return i ^ i >> 16;
}

} // namespace

int TreeSiblings::OwnRows(ItemIndex item) const
{
    const TreeItem& node = m_pool[item];
    return node.rows - m_pool[node.left].rows - m_pool[node.right].rows;
}

TreeSiblings::Part TreeSiblings::Narrow(Part part, int first, int end) const
{
    while (part.top != kNoItem) {
        const TreeItem& node = m_pool[part.top];
        const int place = part.first + m_pool[node.left].siblings;
        if (end <= place)
            part.top = node.left;
        else if (first > place)
            part = {node.right, place + 1};
        else
            break;
    }
    return part;
}

ItemIndex TreeSiblings::At(Part part, int place) const
{
    return place < part.first ? kNoItem : Narrow(part, place, place + 1).top;
}

int TreeSiblings::PlaceOf(ItemIndex item) const
{
    int place = m_pool[m_pool[item].left].siblings;
    for (ItemIndex node = item; m_pool[node].up != kNoItem; node = m_pool[node].up)
        if (!IsLeft(node))
            place += m_pool[m_pool[m_pool[node].up].left].siblings + 1;
    return place;
}

ItemIndex TreeSiblings::Next(ItemIndex item) const
{
    if (m_pool[item].right != kNoItem)
        return Leftmost(m_pool[item].right);
    while (m_pool[item].up != kNoItem && !IsLeft(item))
        item = m_pool[item].up;
    return m_pool[item].up;
}

ItemIndex TreeSiblings::Previous(ItemIndex item) const
{
    if (m_pool[item].left != kNoItem)
        return Rightmost(m_pool[item].left);
    while (m_pool[item].up != kNoItem && IsLeft(item))
        item = m_pool[item].up;
    return m_pool[item].up;
}

int TreeSiblings::RowsBefore(ItemIndex item) const
{
    int rows = m_pool[m_pool[item].left].rows;
    for (ItemIndex node = item; m_pool[node].up != kNoItem; node = m_pool[node].up)
        if (!IsLeft(node))
            rows += m_pool[m_pool[node].up].rows - m_pool[node].rows;
    return rows;
}

TreeSiblings::RowPlace TreeSiblings::AtRow(ItemIndex parent, int row) const
{
    ItemIndex node = m_pool[parent].children;
    for (;;) {
        const int before = m_pool[m_pool[node].left].rows;
        if (row < before) {
            node = m_pool[node].left;
            continue;
        }
        row -= before;
        const int own = OwnRows(node);
        if (row < own)
            return {node, row};
        row -= own;
        node = m_pool[node].right;
    }
}

void TreeSiblings::Insert(ItemIndex parent, int place, ItemIndex item, int ownRows)
{
    m_pool[item].parent = parent;
    Sum(item, ownRows);
    ItemIndex up = kNoItem;
    bool left = false;
    for (ItemIndex node = m_pool[parent].children; node != kNoItem;
         node = left ? m_pool[node].left : m_pool[node].right) {
        const int before = m_pool[m_pool[node].left].siblings;
        up = node;
        left = place <= before;
        if (!left)
            place -= before + 1;
        m_pool[node].siblings += 1;
        m_pool[node].rows += ownRows;
    }
    Hang(item, up, left);
    while (m_pool[item].up != kNoItem && Rank(item) > Rank(m_pool[item].up))
        RotateUp(item);
}

void TreeSiblings::Remove(ItemIndex item)
{
    TreeItem& node = m_pool[item];
    while (node.left != kNoItem && node.right != kNoItem)
        RotateUp(Rank(node.left) > Rank(node.right) ? node.left : node.right);
    const int ownRows = OwnRows(item);
    Replace(item, node.left != kNoItem ? node.left : node.right);
    for (ItemIndex up = node.up; up != kNoItem; up = m_pool[up].up) {
        m_pool[up].siblings -= 1;
        m_pool[up].rows -= ownRows;
    }
    node.up = node.left = node.right = kNoItem;
    Sum(item, ownRows);
}

void TreeSiblings::AddRows(ItemIndex item, int rows)
{
    for (; item != kNoItem; item = m_pool[item].up)
        m_pool[item].rows += rows;
}

void TreeSiblings::Arrange(ItemIndex parent, std::span<const ItemIndex> order)
{
    std::vector<int> ownRows;
    ownRows.reserve(order.size());
    for (const ItemIndex item : order)
        ownRows.push_back(OwnRows(item));

    // The nodes from the top down to the last one placed, always to the right, still lack a part of their sums.
    m_pool[parent].children = kNoItem;
    ItemIndex last = kNoItem;
    const auto complete = [this](ItemIndex node) { Sum(node, m_pool[node].rows); };
    for (std::size_t i = 0; i < order.size(); ++i) {
        const ItemIndex item = order[i];
        ItemIndex below = kNoItem;
        while (last != kNoItem && Rank(last) < Rank(item)) {
            complete(last);
            below = last;
            last = m_pool[last].up;
        }
        Hang(item, last, false);
        m_pool[item].right = kNoItem;
        m_pool[item].left = below;
        if (below != kNoItem)
            m_pool[below].up = item;
        m_pool[item].rows = ownRows[i];
        last = item;
    }
    for (; last != kNoItem; last = m_pool[last].up)
        complete(last);
}

ItemIndex TreeSiblings::Leftmost(ItemIndex node) const
{
    while (m_pool[node].left != kNoItem)
        node = m_pool[node].left;
    return node;
}

ItemIndex TreeSiblings::Rightmost(ItemIndex node) const
{
    while (m_pool[node].right != kNoItem)
        node = m_pool[node].right;
    return node;
}

void TreeSiblings::Hang(ItemIndex node, ItemIndex up, bool left)
{
    m_pool[node].up = up;
    if (up == kNoItem)
        m_pool[m_pool[node].parent].children = node;
    else
        (left ? m_pool[up].left : m_pool[up].right) = node;
}

void TreeSiblings::Replace(ItemIndex node, ItemIndex by)
{
    const ItemIndex up = m_pool[node].up;
    if (up == kNoItem)
        m_pool[m_pool[node].parent].children = by;
    else
        (IsLeft(node) ? m_pool[up].left : m_pool[up].right) = by;
    if (by != kNoItem)
        m_pool[by].up = up;
}

void TreeSiblings::RotateUp(ItemIndex node)
{
    const ItemIndex down = m_pool[node].up;
    const int ownRows = OwnRows(node), downRows = OwnRows(down);
    const bool left = IsLeft(node);
    Replace(down, node);
    const ItemIndex between = left ? m_pool[node].right : m_pool[node].left;
    (left ? m_pool[down].left : m_pool[down].right) = between;
    if (between != kNoItem)
        m_pool[between].up = down;
    (left ? m_pool[node].right : m_pool[node].left) = down;
    m_pool[down].up = node;
    Sum(down, downRows);
    Sum(node, ownRows);
}

void TreeSiblings::Sum(ItemIndex node, int ownRows)
{
    const TreeItem &left = m_pool[m_pool[node].left], &right = m_pool[m_pool[node].right];
    m_pool[node].siblings = left.siblings + 1 + right.siblings;
    m_pool[node].rows = left.rows + ownRows + right.rows;
}

} // namespace toolkit
