#include "Toolkit/controls/tree/TreeSiblings.h"

#include <algorithm>
#include <utility>

namespace toolkit
{

namespace
{

// Spreads neighbouring indices over all 32 bits, each to a value of its own.
std::uint32_t Rank(BlockIndex i)
{
    i ^= i >> 16;
    i *= 0x7FEB352Du;
    i ^= i >> 15;
    i *= 0x846CA68Bu;
    return i ^ i >> 16;
}

} // namespace

TreeSiblings::Spot TreeSiblings::SpotOf(ItemIndex item) const
{
    const BlockIndex block = m_pool[item].block;
    const auto& items = m_blocks[block].items;
    return {block, static_cast<std::size_t>(std::find(items.begin(), items.end(), item) - items.begin())};
}

ItemIndex TreeSiblings::At(ItemIndex parent, int place) const
{
    if (place < 0 || place >= Count(parent))
        return kNoItem;
    const Spot spot = SpotFor(parent, place);
    const auto& items = m_blocks[spot.block].items;
    return spot.at < items.size() ? items[spot.at] : m_blocks[NextBlock(spot.block)].items.front();
}

int TreeSiblings::PlaceOf(ItemIndex item) const
{
    const Spot spot = SpotOf(item);
    int place = m_blocks[m_blocks[spot.block].left].siblings + static_cast<int>(spot.at);
    for (BlockIndex b = spot.block; m_blocks[b].up != kNoBlock; b = m_blocks[b].up)
        if (!IsLeft(b))
            place += m_blocks[m_blocks[b].up].siblings - m_blocks[b].siblings;
    return place;
}

ItemIndex TreeSiblings::First(ItemIndex parent) const
{
    const BlockIndex block = Leftmost(m_pool[parent].children);
    return block == kNoBlock ? kNoItem : m_blocks[block].items.front();
}

ItemIndex TreeSiblings::Last(ItemIndex parent) const
{
    const BlockIndex block = Rightmost(m_pool[parent].children);
    return block == kNoBlock ? kNoItem : m_blocks[block].items.back();
}

ItemIndex TreeSiblings::Next(ItemIndex item) const
{
    const Spot spot = SpotOf(item);
    const auto& items = m_blocks[spot.block].items;
    if (spot.at + 1 < items.size())
        return items[spot.at + 1];
    const BlockIndex next = NextBlock(spot.block);
    return next == kNoBlock ? kNoItem : m_blocks[next].items.front();
}

ItemIndex TreeSiblings::Previous(ItemIndex item) const
{
    const Spot spot = SpotOf(item);
    if (spot.at > 0 && spot.block != kNoBlock)
        return m_blocks[spot.block].items[spot.at - 1];
    const BlockIndex previous = PreviousBlock(spot.block);
    return previous == kNoBlock ? kNoItem : m_blocks[previous].items.back();
}

std::vector<ItemIndex> TreeSiblings::All(ItemIndex parent) const
{
    std::vector<ItemIndex> all;
    all.reserve(static_cast<std::size_t>(Count(parent)));
    for (BlockIndex b = Leftmost(m_pool[parent].children); b != kNoBlock; b = NextBlock(b))
        all.insert(all.end(), m_blocks[b].items.begin(), m_blocks[b].items.end());
    return all;
}

int TreeSiblings::RowsBefore(ItemIndex item) const
{
    const Spot spot = SpotOf(item);
    const Block& own = m_blocks[spot.block];
    int rows = m_blocks[own.left].rows;
    if (own.ownRows == static_cast<int>(own.items.size()))
        rows += static_cast<int>(spot.at); // none of them is expanded
    else
        for (std::size_t i = 0; i < spot.at; ++i)
            rows += OwnRows(own.items[i]);
    for (BlockIndex b = spot.block; m_blocks[b].up != kNoBlock; b = m_blocks[b].up)
        if (!IsLeft(b))
            rows += m_blocks[m_blocks[b].up].rows - m_blocks[b].rows;
    return rows;
}

TreeSiblings::RowPlace TreeSiblings::AtRow(ItemIndex parent, int row) const
{
    BlockIndex block = m_pool[parent].children;
    for (;;) {
        const Block& b = m_blocks[block];
        const int before = m_blocks[b.left].rows;
        if (row < before) {
            block = b.left;
            continue;
        }
        row -= before;
        if (row >= b.ownRows) {
            row -= b.ownRows;
            block = b.right;
            continue;
        }
        if (b.ownRows == static_cast<int>(b.items.size()))
            return {b.items[static_cast<std::size_t>(row)], 0};
        for (const ItemIndex item : b.items) {
            const int own = OwnRows(item);
            if (row < own)
                return {item, row};
            row -= own;
        }
    }
}

void TreeSiblings::MoveUp(ItemIndex item, int place)
{
    const ItemIndex parent = ParentOf(item);
    MakeRoom(parent, place);
    Remove(item);
    Put(SpotFor(parent, place), item);
}

void TreeSiblings::Remove(ItemIndex item)
{
    const auto [block, at] = SpotOf(item);
    auto& items = m_blocks[block].items;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(at));
    const int rows = OwnRows(item);
    m_blocks[block].ownRows -= rows;
    AddUp(block, -1, -rows);
    m_pool[item].block = kNoBlock;
    if (items.empty())
        GiveBack(block);
}

void TreeSiblings::AddRows(ItemIndex item, int rows)
{
    const BlockIndex block = m_pool[item].block;
    m_blocks[block].ownRows += rows;
    AddUp(block, 0, rows);
}

// Each block is filled anew with as many as it had.
void TreeSiblings::Arrange(ItemIndex parent, std::span<const ItemIndex> order)
{
    std::size_t place = 0;
    const BlockIndex top = m_pool[parent].children;
    for (BlockIndex b = Leftmost(top); b != kNoBlock; b = NextBlock(b)) {
        m_blocks[b].ownRows = 0;
        for (ItemIndex& slot : m_blocks[b].items) {
            slot = order[place++];
            m_pool[slot].block = b;
            m_blocks[b].ownRows += OwnRows(slot);
        }
    }
    SumAll(top);
}

// At the end of a block rather than at the start of the next one.
TreeSiblings::Spot TreeSiblings::SpotFor(ItemIndex parent, int place) const
{
    BlockIndex block = m_pool[parent].children;
    for (;;) {
        const Block& b = m_blocks[block];
        const int before = m_blocks[b.left].siblings;
        const int end = before + static_cast<int>(b.items.size());
        if (place <= before && b.left != kNoBlock) {
            block = b.left;
        } else if (place <= end || b.right == kNoBlock) {
            return {block, static_cast<std::size_t>(place - before)};
        } else {
            place -= end;
            block = b.right;
        }
    }
}

TreeSiblings::Spot TreeSiblings::MakeRoom(ItemIndex parent, int place)
{
    if (m_pool[parent].children == kNoBlock) {
        const BlockIndex block = TakeBlock(parent, 1);
        Hang(block, kNoBlock, false);
        return {block, 0};
    }
    const Spot spot = SpotFor(parent, place);
    auto& items = m_blocks[spot.block].items;
    if (items.size() == kBlock) {
        Split(spot);
        return SpotFor(parent, place);
    }
    if (items.size() == items.capacity())
        items.reserve(std::min(2 * items.size(), kBlock));
    return spot;
}

// What is appended again and again fills whole blocks.
void TreeSiblings::Split(Spot spot)
{
    const bool last = spot.at == kBlock && NextBlock(spot.block) == kNoBlock;
    const BlockIndex next = TakeBlock(m_blocks[spot.block].parent, kBlock);
    Block &from = m_blocks[spot.block], &to = m_blocks[next];
    const auto half = from.items.begin() + (last ? kBlock : kBlock / 2);
    to.items.assign(half, from.items.end());
    from.items.erase(half, from.items.end());
    for (const ItemIndex item : to.items) {
        m_pool[item].block = next;
        to.ownRows += OwnRows(item);
    }
    from.ownRows -= to.ownRows;
    HangBehind(next, spot.block);
}

void TreeSiblings::Put(Spot spot, ItemIndex item)
{
    if (m_blocks[spot.block].items.size() == kBlock)
        spot = {NextBlock(spot.block), 0}; // made for it
    Block& block = m_blocks[spot.block];
    block.items.insert(block.items.begin() + static_cast<std::ptrdiff_t>(spot.at), item);
    m_pool[item].block = spot.block;
    const int rows = OwnRows(item);
    block.ownRows += rows;
    AddUp(spot.block, 1, rows);
}

BlockIndex TreeSiblings::TakeBlock(ItemIndex parent, std::size_t room)
{
    BlockIndex block = m_firstFree;
    if (block == kNoBlock) {
        block = static_cast<BlockIndex>(m_blocks.size());
        m_blocks.emplace_back();
        m_firstFree = block;
    }
    m_blocks[block].items.reserve(room); // it is still free when this throws
    m_firstFree = m_blocks[block].up;
    m_blocks[block].up = kNoBlock;
    m_blocks[block].parent = parent;
    return block;
}

// A block that is empty.
void TreeSiblings::GiveBack(BlockIndex block)
{
    Block& b = m_blocks[block];
    while (b.left != kNoBlock && b.right != kNoBlock)
        RotateUp(Rank(b.left) > Rank(b.right) ? b.left : b.right);
    Replace(block, b.left != kNoBlock ? b.left : b.right);
    b = Block();
    b.up = std::exchange(m_firstFree, block);
}

BlockIndex TreeSiblings::Leftmost(BlockIndex block) const
{
    while (m_blocks[block].left != kNoBlock)
        block = m_blocks[block].left;
    return block;
}

BlockIndex TreeSiblings::Rightmost(BlockIndex block) const
{
    while (m_blocks[block].right != kNoBlock)
        block = m_blocks[block].right;
    return block;
}

BlockIndex TreeSiblings::NextBlock(BlockIndex block) const
{
    if (m_blocks[block].right != kNoBlock)
        return Leftmost(m_blocks[block].right);
    while (m_blocks[block].up != kNoBlock && !IsLeft(block))
        block = m_blocks[block].up;
    return m_blocks[block].up;
}

BlockIndex TreeSiblings::PreviousBlock(BlockIndex block) const
{
    if (m_blocks[block].left != kNoBlock)
        return Rightmost(m_blocks[block].left);
    while (m_blocks[block].up != kNoBlock && IsLeft(block))
        block = m_blocks[block].up;
    return m_blocks[block].up;
}

void TreeSiblings::Hang(BlockIndex block, BlockIndex up, bool left)
{
    m_blocks[block].up = up;
    if (up == kNoBlock)
        m_pool[m_blocks[block].parent].children = block;
    else
        (left ? m_blocks[up].left : m_blocks[up].right) = block;
}

void TreeSiblings::HangBehind(BlockIndex block, BlockIndex former)
{
    const BlockIndex right = m_blocks[former].right;
    Hang(block, right == kNoBlock ? former : Leftmost(right), right != kNoBlock);
    for (BlockIndex b = block; b != kNoBlock; b = m_blocks[b].up)
        Sum(b);
    while (m_blocks[block].up != kNoBlock && Rank(block) > Rank(m_blocks[block].up))
        RotateUp(block);
}

void TreeSiblings::Replace(BlockIndex block, BlockIndex by)
{
    const BlockIndex up = m_blocks[block].up;
    if (up == kNoBlock)
        m_pool[m_blocks[block].parent].children = by;
    else
        (IsLeft(block) ? m_blocks[up].left : m_blocks[up].right) = by;
    if (by != kNoBlock)
        m_blocks[by].up = up;
}

void TreeSiblings::RotateUp(BlockIndex block)
{
    const BlockIndex down = m_blocks[block].up;
    const bool left = IsLeft(block);
    Replace(down, block);
    const BlockIndex between = left ? m_blocks[block].right : m_blocks[block].left;
    (left ? m_blocks[down].left : m_blocks[down].right) = between;
    if (between != kNoBlock)
        m_blocks[between].up = down;
    (left ? m_blocks[block].right : m_blocks[block].left) = down;
    m_blocks[down].up = block;
    Sum(down);
    Sum(block);
}

void TreeSiblings::Sum(BlockIndex block)
{
    Block& b = m_blocks[block];
    const Block &left = m_blocks[b.left], &right = m_blocks[b.right];
    b.siblings = left.siblings + static_cast<int>(b.items.size()) + right.siblings;
    b.rows = left.rows + b.ownRows + right.rows;
}

void TreeSiblings::SumAll(BlockIndex top)
{
    if (top == kNoBlock)
        return;
    SumAll(m_blocks[top].left);
    SumAll(m_blocks[top].right);
    Sum(top);
}

void TreeSiblings::AddUp(BlockIndex block, int siblings, int rows)
{
    for (; block != kNoBlock; block = m_blocks[block].up) {
        m_blocks[block].siblings += siblings;
        m_blocks[block].rows += rows;
    }
}

} // namespace toolkit
