// Inside the library: what a list view remembers of the rows it has shown.
#pragma once

#include "Views/list/ObjectsList.h"

#include <array>
#include <memory>
#include <vector>

// A map from row to record that knows no window.
//
// The order in which it is walked is fixed, because eviction takes the first of equally old records: 17 buckets in
// increasing order, a row in bucket (row / 16) mod 17, in a bucket the record added last first. References and
// iterators stay good until their own record is removed. Nothing but a walk costs more when there are more records:
// every row that comes into sight is looked for, and most make another one leave.
class CObjectsListCache
{
public:
    using CACHEDATA = CObjectsList::CACHEDATA;

    struct NODE
    {
        int nRow = -1;
        CACHEDATA data;
        NODE* pNext = nullptr; // in the bucket, or in the list of free nodes
        NODE* pFormer = nullptr;
        NODE* pNextFound = nullptr;                // of those that FindNode looks at
        NODE *pOlder = nullptr, *pNewer = nullptr; // by their ticks, then as they are walked
        unsigned nAdded = 0;                       // counts up
    };

    class Iterator
    {
    public:
        Iterator(const CObjectsListCache* pMap, int nBucket);
        const NODE& operator*() const { return *m_pNode; }
        Iterator& operator++();
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.m_pNode == b.m_pNode; }

    private:
        void SkipEmptyBuckets();

        const CObjectsListCache* m_pMap;
        int m_nBucket;
        const NODE* m_pNode = nullptr;
    };

    CObjectsListCache() = default;
    CObjectsListCache(const CObjectsListCache&) = delete;
    CObjectsListCache& operator=(const CObjectsListCache&) = delete;

    int GetCount() const { return m_nCount; }
    const CACHEDATA* Find(int nRow) const; // NULL when the row is not cached
    // The row with the greatest age, the first of them in the map's order; -1 when none is older than 0. Ages are
    // differences of ticks, so that they survive the tick counter's wrap; a record stored or touched is younger than
    // all others, or as young.
    int FindOldest(DWORD dwNow) const;
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, kBuckets}; }

    // Makes sure that the next new record needs no memory. Raises CMemoryException.
    void Reserve();
    void Store(int nRow, CACHEDATA data); // under a new row, or in place of the row's record
    void Touch(int nRow, DWORD dwTick);   // does nothing for a row that is not cached
    void Remove(int nRow);
    void RemoveAll();
    // Becomes a copy of `other` in which the rows after nRemoved have moved up by one; other has no record of nRemoved.
    void CopyWithoutRow(const CObjectsListCache& other, int nRemoved);

private:
    static constexpr int kBuckets = 17;
    static constexpr int kFinders = 1024;
    static constexpr int kNodesAtATime = 10;

    static std::size_t BucketOf(int nRow)
    {
        return static_cast<std::size_t>((static_cast<UINT>(nRow) >> 4) % kBuckets);
    }
    static std::size_t PlaceOf(int nRow) { return static_cast<UINT>(nRow) % kFinders; }
    static bool IsWalkedBefore(const NODE& a, const NODE& b);
    NODE* FindNode(int nRow) const;
    NODE* AddNode(int nRow);
    void AddToBucket(NODE* pNode);
    void RemoveFromBucket(NODE* pNode);
    void AddToAges(NODE* pNode);
    void RemoveFromAges(NODE* pNode);

    std::array<NODE*, kBuckets> m_buckets{};
    std::array<NODE*, kFinders> m_finders{}; // the same nodes, in many short chains
    NODE *m_pOldest = nullptr, *m_pNewest = nullptr;
    std::vector<std::unique_ptr<std::array<NODE, kNodesAtATime>>> m_blocks; // own all nodes
    NODE* m_pFree = nullptr;
    int m_nCount = 0;
    unsigned m_nAdded = 0;
};
