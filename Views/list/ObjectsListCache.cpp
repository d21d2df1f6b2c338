#include "Views/list/ObjectsListCache.h"

#include <utility>

CObjectsListCache::Iterator::Iterator(const CObjectsListCache* pMap, int nBucket) : m_pMap(pMap), m_nBucket(nBucket)
{
    SkipEmptyBuckets();
}

CObjectsListCache::Iterator& CObjectsListCache::Iterator::operator++()
{
    m_pNode = m_pNode->pNext;
    if (!m_pNode) {
        ++m_nBucket;
        SkipEmptyBuckets();
    }
    return *this;
}

void CObjectsListCache::Iterator::SkipEmptyBuckets()
{
    for (; m_nBucket < kBuckets; ++m_nBucket) {
        m_pNode = m_pMap->m_buckets[static_cast<std::size_t>(m_nBucket)];
        if (m_pNode)
            return;
    }
}

CObjectsListCache::NODE* CObjectsListCache::FindNode(int nRow) const
{
    NODE* pNode = m_buckets[BucketOf(nRow)];
    while (pNode && pNode->nRow != nRow)
        pNode = pNode->pNext;
    return pNode;
}

const CObjectsListCache::CACHEDATA* CObjectsListCache::Find(int nRow) const
{
    const NODE* pNode = FindNode(nRow);
    return pNode ? &pNode->data : nullptr;
}

int CObjectsListCache::FindOldest(DWORD dwNow) const
{
    DWORD dwBestAge = 0;
    int nOldest = -1;
    for (const NODE& node : *this) {
        const DWORD dwAge = dwNow - node.data.dwTick;
        if (dwAge > dwBestAge) {
            dwBestAge = dwAge;
            nOldest = node.nRow;
        }
    }
    return nOldest;
}

void CObjectsListCache::Reserve()
{
    if (m_pFree)
        return;
    m_blocks.push_back(std::make_unique<std::array<NODE, kNodesAtATime>>());
    for (NODE& node : *m_blocks.back())
        node.pNext = std::exchange(m_pFree, &node);
}

void CObjectsListCache::Store(int nRow, CACHEDATA data)
{
    NODE* pNode = FindNode(nRow);
    if (!pNode) {
        Reserve();
        pNode = std::exchange(m_pFree, m_pFree->pNext);
        pNode->nRow = nRow;
        pNode->pNext = std::exchange(m_buckets[BucketOf(nRow)], pNode);
        ++m_nCount;
    }
    pNode->data = std::move(data);
}

void CObjectsListCache::Touch(int nRow, DWORD dwTick)
{
    if (NODE* pNode = FindNode(nRow))
        pNode->data.dwTick = dwTick;
}

void CObjectsListCache::Remove(int nRow)
{
    NODE** ppLink = &m_buckets[BucketOf(nRow)];
    while (*ppLink && (*ppLink)->nRow != nRow)
        ppLink = &(*ppLink)->pNext;
    NODE* const pNode = *ppLink;
    if (!pNode)
        return;
    *ppLink = pNode->pNext;
    pNode->data = CACHEDATA();
    pNode->pNext = std::exchange(m_pFree, pNode);
    --m_nCount;
}

void CObjectsListCache::RemoveAll()
{
    m_buckets.fill(nullptr);
    m_pFree = nullptr;
    m_nCount = 0;
    m_blocks.clear();
}

void CObjectsListCache::CopyWithoutRow(const CObjectsListCache& other, int nRemoved)
{
    RemoveAll();
    for (const NODE& node : other)
        Store(node.nRow < nRemoved ? node.nRow : node.nRow - 1, node.data);
}
