// Where a tree control's items live: small blocks of them, so that nothing moves as the tree grows.
//
// Handles go stale safely: a handle holds the item's index and its generation, which moves on when the item goes.
// A freed place waits until all others freed before it are taken again.
#pragma once

#include "Toolkit/controls/tree/TreeItem.h"

#include <memory>
#include <vector>

namespace toolkit
{

class TOOLKIT_API TreePool
{
public:
    TreePool(); // with the root

    TreeItem& operator[](ItemIndex i) { return m_blocks[i / kBlock][i % kBlock]; }
    const TreeItem& operator[](ItemIndex i) const { return m_blocks[i / kBlock][i % kBlock]; }

    ItemIndex Take(); // a new item; kNoItem when there is no handle left for one
    void GiveBack(ItemIndex i);

    int Count() const { return m_nLive; } // without the root
    HTREEITEM HandleOf(ItemIndex i) const // NULL for kNoItem and the root
    {
        return i <= kRootItem ? nullptr : HandleOf(i, (*this)[i].generation);
    }
    // kNoItem for NULL, a stale handle and all values that are none.
    ItemIndex Find(HTREEITEM hItem) const
    {
        const UINT_PTR i = reinterpret_cast<UINT_PTR>(hItem) & kIndexMask;
        if (i >= m_nUsed || i <= kRootItem)
            return kNoItem;
        const auto index = static_cast<ItemIndex>(i);
        const TreeItem& item = (*this)[index];
        return item.live && HandleOf(index, item.generation) == hItem ? index : kNoItem;
    }

private:
    static constexpr ItemIndex kBlock = 256;
    // Together with a generation below the highest an index of 22 bits never makes up one of the TVI_* values.
    static constexpr int kIndexBits = sizeof(UINT_PTR) > 4 ? 31 : 22;
    static constexpr WORD kMaxGeneration = sizeof(UINT_PTR) > 4 ? 0xFFFF : 0x3FE;
    static constexpr UINT_PTR kIndexMask = (UINT_PTR{1} << kIndexBits) - 1;

    static HTREEITEM HandleOf(ItemIndex i, WORD generation)
    {
        return reinterpret_cast<HTREEITEM>(static_cast<UINT_PTR>(generation) << kIndexBits | i);
    }

    std::vector<std::unique_ptr<TreeItem[]>> m_blocks;
    ItemIndex m_nUsed = 0;                                 // places ever taken
    ItemIndex m_firstFree = kNoItem, m_lastFree = kNoItem; // chained by `block`
    int m_nLive = 0;
};

} // namespace toolkit
