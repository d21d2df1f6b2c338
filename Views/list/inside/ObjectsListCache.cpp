#include "Views/list/inside/ObjectsListCache.h"

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
    NODE* pNode = m_finders[PlaceOf(nRow)];
    while (pNode && pNode->nRow != nRow)
        pNode = pNode->pNextFound;
    return pNode;
}

const CObjectsListCache::CACHEDATA* CObjectsListCache::Find(int nRow) const
{
    const NODE* pNode = FindNode(nRow);
    return pNode ? &pNode->data : nullptr;
}

bool CObjectsListCache::IsWalkedBefore(const NODE& a, const NODE& b)
{
    const std::size_t nBucketA = BucketOf(a.nRow), nBucketB = BucketOf(b.nRow);
    return nBucketA != nBucketB ? nBucketA < nBucketB : a.nAdded > b.nAdded;
}

int CObjectsListCache::FindOldest(DWORD dwNow) const
{
    return m_pOldest && m_pOldest->data.dwTick != dwNow ? m_pOldest->nRow : -1;
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
    if (pNode)
        RemoveFromAges(pNode);
    else
        pNode = AddNode(nRow);
    pNode->data = std::move(data);
    AddToAges(pNode);
}

CObjectsListCache::NODE* CObjectsListCache::AddNode(int nRow)
{
    Reserve();
    NODE* const pNode = std::exchange(m_pFree, m_pFree->pNext);
    pNode->nRow = nRow;
    pNode->nAdded = ++m_nAdded;
    AddToBucket(pNode);
    pNode->pNextFound = std::exchange(m_finders[PlaceOf(nRow)], pNode);
    ++m_nCount;
    return pNode;
}

void CObjectsListCache::AddToBucket(NODE* pNode)
{
    pNode->pFormer = nullptr;
    pNode->pNext = std::exchange(m_buckets[BucketOf(pNode->nRow)], pNode);
    if (pNode->pNext)
        pNode->pNext->pFormer = pNode;
}

void CObjectsListCache::RemoveFromBucket(NODE* pNode)
{
    (pNode->pFormer ? pNode->pFormer->pNext : m_buckets[BucketOf(pNode->nRow)]) = pNode->pNext;
    if (pNode->pNext)
        pNode->pNext->pFormer = pNode->pFormer;
}

// Among the newest of the same tick.
void CObjectsListCache::AddToAges(NODE* pNode)
{
    NODE* pOlder = m_pNewest;
    while (pOlder && pOlder->data.dwTick == pNode->data.dwTick && IsWalkedBefore(*pNode, *pOlder))
        pOlder = pOlder->pOlder;
    pNode->pOlder = pOlder;
    pNode->pNewer = std::exchange(pOlder ? pOlder->pNewer : m_pOldest, pNode);
    (pNode->pNewer ? pNode->pNewer->pOlder : m_pNewest) = pNode;
}

void CObjectsListCache::RemoveFromAges(NODE* pNode)
{
    (pNode->pOlder ? pNode->pOlder->pNewer : m_pOldest) = pNode->pNewer;
    (pNode->pNewer ? pNode->pNewer->pOlder : m_pNewest) = pNode->pOlder;
}

void CObjectsListCache::Touch(int nRow, DWORD dwTick)
{
    NODE* const pNode = FindNode(nRow);
    if (!pNode)
        return;
    RemoveFromAges(pNode);
    pNode->data.dwTick = dwTick;
    AddToAges(pNode);
}

void CObjectsListCache::Remove(int nRow)
{
    NODE** ppLink = &m_finders[PlaceOf(nRow)];
    while (*ppLink && (*ppLink)->nRow != nRow)
        ppLink = &(*ppLink)->pNextFound;
    NODE* const pNode = *ppLink;
    if (!pNode)
        return;
    *ppLink = pNode->pNextFound;
    RemoveFromBucket(pNode);
    RemoveFromAges(pNode);
    pNode->data = CACHEDATA();
    pNode->pNext = std::exchange(m_pFree, pNode);
    --m_nCount;
}

void CObjectsListCache::RemoveAll()
{
    m_buckets.fill(nullptr);
    m_finders.fill(nullptr);
    m_pOldest = m_pNewest = m_pFree = nullptr;
    m_nCount = 0;
    m_blocks.clear();
}

void CObjectsListCache::CopyWithoutRow(const CObjectsListCache& other, int nRemoved)
{
    const auto moved = [nRemoved](const NODE& node) { return node.nRow < nRemoved ? node.nRow : node.nRow - 1; };
    RemoveAll();
    for (const NODE& node : other)
        Store(moved(node), node.data);
    for (const NODE* p = other.m_pOldest; p; p = p->pNewer)
        Touch(moved(*p), p->data.dwTick);
}
