// The children of each item, in their order: places, neighbours and rows in logarithmic time, whatever their number.
//
// Children form a search tree by place, kept balanced by a fixed random-looking rank of each item's index. Every
// node knows how many siblings and how many shown rows hang on it.
#pragma once

#include "Toolkit/controls/TreePool.h"

#include <span>

namespace toolkit
{

class TOOLKIT_API TreeSiblings
{
public:
    explicit TreeSiblings(TreePool& pool) : m_pool(pool) {}

    int Count(ItemIndex parent) const { return m_pool[m_pool[parent].children].siblings; }
    int Rows(ItemIndex parent) const { return m_pool[m_pool[parent].children].rows; } // of all children
    int OwnRows(ItemIndex item) const;                                                // of the item with its subtree

    // A part of the search tree, and the place of the first child in it.
    struct Part
    {
        ItemIndex top;
        int first;
    };
    Part All(ItemIndex parent) const { return {m_pool[parent].children, 0}; }
    Part Narrow(Part part, int first, int end) const; // the least part with all places from first on, without end

    // kNoItem where there is none.
    ItemIndex At(ItemIndex parent, int place) const { return At(All(parent), place); }
    ItemIndex At(Part part, int place) const;
    int PlaceOf(ItemIndex item) const;
    ItemIndex First(ItemIndex parent) const { return Leftmost(m_pool[parent].children); }
    ItemIndex Last(ItemIndex parent) const { return Rightmost(m_pool[parent].children); }
    ItemIndex Next(ItemIndex item) const;
    ItemIndex Previous(ItemIndex item) const;

    int RowsBefore(ItemIndex item) const; // of the siblings before it, with their subtrees
    struct RowPlace
    {
        ItemIndex item;
        int row; // within the item's own rows
    };
    RowPlace AtRow(ItemIndex parent, int row) const; // counted from the first child's first row, and in range

    void Insert(ItemIndex parent, int place, ItemIndex item, int ownRows);
    void Remove(ItemIndex item);
    void AddRows(ItemIndex item, int rows); // to the item's own
    // Puts the children into a new order, which names each of them once. Linear; nothing has changed when it throws.
    void Arrange(ItemIndex parent, std::span<const ItemIndex> order);

private:
    ItemIndex Leftmost(ItemIndex node) const;
    ItemIndex Rightmost(ItemIndex node) const;
    bool IsLeft(ItemIndex node) const { return m_pool[m_pool[node].up].left == node; }
    void Hang(ItemIndex node, ItemIndex up, bool left); // up may be kNoItem: then it is the top
    void Replace(ItemIndex node, ItemIndex by);         // under node's own `up`
    void RotateUp(ItemIndex node);
    void Sum(ItemIndex node, int ownRows);

    TreePool& m_pool;
};

} // namespace toolkit
