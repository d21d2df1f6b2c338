// The children of each item, in their order: places, neighbours and rows in logarithmic time, whatever their number.
//
// Children stand in blocks of a few dozen. The blocks of one parent form a search tree by place, kept balanced by a
// fixed random-looking rank of each block's index. Every block knows how many siblings and how many shown rows hang on
// it.
#pragma once

#include "Toolkit/controls/tree/TreePool.h"

#include <span>
#include <vector>

namespace toolkit
{

class TOOLKIT_API TreeSiblings
{
public:
    explicit TreeSiblings(TreePool& pool) : m_pool(pool), m_blocks(1) {}

    ItemIndex ParentOf(ItemIndex item) const { return m_blocks[m_pool[item].block].parent; } // kNoItem without a place
    int Count(ItemIndex parent) const { return m_blocks[m_pool[parent].children].siblings; }
    int Rows(ItemIndex parent) const { return m_blocks[m_pool[parent].children].rows; } // of all children
    // Of the item with its subtree, as if it were shown.
    int OwnRows(ItemIndex item) const { return m_pool[item].state & TVIS_EXPANDED ? 1 + Rows(item) : 1; }

    // kNoItem where there is none.
    ItemIndex At(ItemIndex parent, int place) const;
    int PlaceOf(ItemIndex item) const;
    ItemIndex First(ItemIndex parent) const;
    ItemIndex Last(ItemIndex parent) const;
    ItemIndex Next(ItemIndex item) const;
    ItemIndex Previous(ItemIndex item) const;
    std::vector<ItemIndex> All(ItemIndex parent) const;

    int RowsBefore(ItemIndex item) const; // of the siblings before it, with their subtrees
    struct RowPlace
    {
        ItemIndex item;
        int row; // within the item's own rows
    };
    RowPlace AtRow(ItemIndex parent, int row) const; // counted from the first child's first row, and in range

    // Both leave all as it was when they throw.
    void Insert(ItemIndex parent, int place, ItemIndex item) { Put(MakeRoom(parent, place), item); }
    void MoveUp(ItemIndex item, int place); // to a place before its own
    void Remove(ItemIndex item);
    void AddRows(ItemIndex item, int rows); // to the item's own
    // Puts the children into a new order, which names each of them once. Linear, and needs no memory.
    void Arrange(ItemIndex parent, std::span<const ItemIndex> order);

private:
    static constexpr std::size_t kBlock = 64; // items

    struct Block
    {
        std::vector<ItemIndex> items;
        ItemIndex parent = kNoItem;
        BlockIndex up = kNoBlock, left = kNoBlock, right = kNoBlock;
        int ownRows = 0;            // of its items
        int siblings = 0, rows = 0; // of all blocks that hang on it, with its own
    };
    struct Spot
    {
        BlockIndex block;
        std::size_t at;
    };

    Spot SpotOf(ItemIndex item) const;
    Spot SpotFor(ItemIndex parent, int place) const; // of a new item; a block is there
    Spot MakeRoom(ItemIndex parent, int place);      // for a new item
    void Split(Spot spot);
    void Put(Spot spot, ItemIndex item); // there is room
    BlockIndex TakeBlock(ItemIndex parent, std::size_t room);
    void GiveBack(BlockIndex block);

    BlockIndex Leftmost(BlockIndex block) const;
    BlockIndex Rightmost(BlockIndex block) const;
    BlockIndex NextBlock(BlockIndex block) const;
    BlockIndex PreviousBlock(BlockIndex block) const;
    bool IsLeft(BlockIndex block) const { return m_blocks[m_blocks[block].up].left == block; }
    void Hang(BlockIndex block, BlockIndex up, bool left); // up may be kNoBlock: then it is the top
    void HangBehind(BlockIndex block, BlockIndex former);
    void Replace(BlockIndex block, BlockIndex by); // under block's own `up`
    void RotateUp(BlockIndex block);
    void Sum(BlockIndex block);
    void SumAll(BlockIndex top);
    void AddUp(BlockIndex block, int siblings, int rows); // more, in it and in all that it hangs on

    TreePool& m_pool;
    std::vector<Block> m_blocks;       // the first stands for none
    BlockIndex m_firstFree = kNoBlock; // chained by `up`
};

} // namespace toolkit
