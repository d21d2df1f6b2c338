// The map of cached rows by itself.
#include "Views/list/ObjectsListCache.h"

#include <gtest/gtest.h>
#include <string>

namespace
{

std::string Walk(const CObjectsListCache& cache)
{
    std::string strRows;
    for (const auto& node : cache)
        strRows += std::to_string(node.nRow) + node.data.strText.GetString() + " ";
    return strRows;
}

void Store(CObjectsListCache& cache, std::initializer_list<int> rows)
{
    for (const int nRow : rows)
        cache.Store(nRow, {0, nRow, ""});
}

TEST(ObjectsListCacheTest, IsWalkedBucketByBucketTheLatestRowFirst)
{
    CObjectsListCache cache;
    Store(cache, {17, 0, 1, 16, 272, 15, 271}); // 272 is 17 times 16, in the first bucket again
    EXPECT_EQ("15 272 1 0 16 17 271 ", Walk(cache));

    cache.Store(0, {5, 9, "again"}); // in place
    cache.Touch(1, 6);
    EXPECT_EQ("15 272 1 0again 16 17 271 ", Walk(cache));
    EXPECT_EQ(9, cache.Find(0)->nImage);
    EXPECT_EQ(6u, cache.Find(1)->dwTick);
    EXPECT_EQ(7, cache.GetCount());

    cache.Remove(272);
    cache.Remove(272);
    cache.Remove(17);
    Store(cache, {272});
    EXPECT_EQ("272 15 1 0again 16 271 ", Walk(cache));
    EXPECT_EQ(nullptr, cache.Find(17));
    cache.RemoveAll();
    EXPECT_EQ("", Walk(cache));
    EXPECT_EQ(0, cache.GetCount());
}

TEST(ObjectsListCacheTest, RowsMoveUpIntoTheSpareMapInWalkingOrder)
{
    CObjectsListCache cache, spare;
    Store(cache, {0, 1, 3, 16, 17, 32});
    cache.Store(33, {7, 8, "last"});
    Store(spare, {99});
    spare.CopyWithoutRow(cache, 2);
    EXPECT_EQ("15 0 1 2 31 16 32last ", Walk(spare)); // the walk 3 1 0 17 16 33 32, each put in front of the last
    EXPECT_EQ(8, spare.Find(32)->nImage);
    EXPECT_EQ("3 1 0 17 16 33last 32 ", Walk(cache));

    EXPECT_EQ(15, spare.FindOldest(9)); // of all but the last, the first in the walk
    for (const int nRow : {15, 0, 1, 2, 16})
        spare.Touch(nRow, 8);
    EXPECT_EQ(31, spare.FindOldest(9));
    spare.Remove(31);
    EXPECT_EQ(32, spare.FindOldest(9));
}

} // namespace
