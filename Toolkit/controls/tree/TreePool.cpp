#include "Toolkit/controls/tree/TreePool.h"

namespace toolkit
{

TreePool::TreePool()
{
    m_blocks.push_back(std::make_unique<TreeItem[]>(kBlock));
    m_nUsed = kRootItem + 1;
    TreeItem& root = (*this)[kRootItem];
    root.live = true;
    root.state = TVIS_EXPANDED;
}

ItemIndex TreePool::Take()
{
    ItemIndex i = m_firstFree;
    if (i != kNoItem) {
        m_firstFree = (*this)[i].block;
        if (m_firstFree == kNoItem)
            m_lastFree = kNoItem;
        (*this)[i].block = kNoItem;
    } else {
        if (m_nUsed >> kIndexBits != 0)
            return kNoItem;
        if (m_nUsed / kBlock == m_blocks.size())
            m_blocks.push_back(std::make_unique<TreeItem[]>(kBlock));
        i = m_nUsed++;
    }
    (*this)[i].live = true;
    ++m_nLive;
    return i;
}

void TreePool::GiveBack(ItemIndex i)
{
    TreeItem& item = (*this)[i];
    const WORD generation = item.generation;
    item = TreeItem();
    item.generation = generation == kMaxGeneration ? 1 : generation + 1;
    if (m_lastFree != kNoItem)
        (*this)[m_lastFree].block = i;
    else
        m_firstFree = i;
    m_lastFree = i;
    --m_nLive;
}

} // namespace toolkit
