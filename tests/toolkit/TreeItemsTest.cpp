// The tree's items without a window: structure, rows and handles, against a simple model and in large numbers.
#include "Toolkit/controls/tree/TreeItems.h"

#include <chrono>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

using namespace toolkit;

namespace
{

// Changes the items at random, and what they must come to: plain vectors. All stand directly below the root, so many
// that they fill several blocks, or below one of those.
class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : m_random(seed) {}

    void Step()
    {
        Siblings& top = m_top;
        Siblings& siblings = top.empty() || Below(3) ? top : m_below[top[Below(top.size())]];
        const std::size_t place = Below(siblings.size() + 1);
        const auto at = siblings.begin() + static_cast<int>(place);
        switch (Below(12)) {
        case 0:
            std::shuffle(siblings.begin(), siblings.end(), m_random);
            return m_items.Arrange(ParentOf(siblings), siblings);
        case 1:
            if (place + 1 >= siblings.size())
                return;
            m_items.MoveUp(siblings.back(), static_cast<int>(place));
            std::rotate(at, siblings.end() - 1, siblings.end());
            return;
        case 2:
            if (at == siblings.end() || !m_below[*at].empty())
                return;
            m_items.Delete(*at);
            m_expanded.erase(*at);
            siblings.erase(at);
            return;
        case 3:
            if (at != siblings.end())
                m_items.SetExpanded(*at, Turn(*at));
            return;
        default:
            siblings.insert(at, m_items.Insert(ParentOf(siblings), static_cast<int>(place)));
        }
    }

    void Check()
    {
        Siblings rows;
        ItemIndex item = m_items.FirstChild(kRootItem), former = kNoItem;
        for (std::size_t place = 0; place < m_top.size(); ++place) {
            ASSERT_EQ(m_top[place], item);
            ASSERT_EQ(item, m_items.ChildAt(kRootItem, static_cast<int>(place)));
            ASSERT_EQ(static_cast<int>(place), m_items.PlaceOf(item));
            ASSERT_EQ(former, m_items.Previous(item));
            rows.push_back(item);
            if (m_expanded.count(item))
                rows.insert(rows.end(), m_below[item].begin(), m_below[item].end());
            former = std::exchange(item, m_items.Next(item));
        }
        EXPECT_EQ(former, m_items.LastChild(kRootItem));
        ASSERT_EQ(static_cast<int>(rows.size()), m_items.RowCount());
        for (int row = 0; row < m_items.RowCount(); ++row) {
            ASSERT_EQ(rows[static_cast<std::size_t>(row)], m_items.AtRow(row));
            ASSERT_EQ(row, m_items.RowOf(m_items.AtRow(row)));
        }
    }

private:
    using Siblings = std::vector<ItemIndex>;

    std::size_t Below(std::size_t end) { return m_random() % end; }
    bool Turn(ItemIndex item) { return m_expanded.insert(item).second || m_expanded.erase(item) == 0; }
    ItemIndex ParentOf(const Siblings& siblings) const
    {
        const auto it = std::ranges::find_if(m_below, [&](const auto& pair) { return &pair.second == &siblings; });
        return it == m_below.end() ? kRootItem : it->first;
    }

    TreeItems m_items;
    std::mt19937 m_random;
    Siblings m_top;
    std::map<ItemIndex, Siblings> m_below;
    std::set<ItemIndex> m_expanded;
};

TEST(TreeItemsTest, RowsAndNeighboursFollowAnyHistoryOfChanges)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomTree tree(seed);
        for (int step = 0; step < 400; ++step) {
            tree.Step();
            if (step % 40 != 39)
                continue;
            ASSERT_NO_FATAL_FAILURE(tree.Check()) << "seed " << seed << ", step " << step;
        }
    }
}

TEST(TreeItemsTest, AHandleOfAnItemThatIsGoneFindsNothing)
{
    TreeItems items;
    const HTREEITEM hFirst = items.HandleOf(items.Insert(kRootItem, 0));
    items.Delete(items.Find(hFirst));
    EXPECT_EQ(kNoItem, items.Find(hFirst));
    for (int i = 0; i < 1000; ++i) {
        const ItemIndex item = items.Insert(kRootItem, 0);
        ASSERT_NE(hFirst, items.HandleOf(item)); // also where its place is taken again
        items.Delete(item);
    }
    for (const HTREEITEM hNone : {TVI_ROOT, TVI_FIRST, TVI_LAST, TVI_SORT, HTREEITEM(), reinterpret_cast<HTREEITEM>(-1),
                                  reinterpret_cast<HTREEITEM>(1), reinterpret_cast<HTREEITEM>(0x7FFF0001)})
        EXPECT_EQ(kNoItem, items.Find(hNone));
}

// Walks over the siblings would take minutes here.
TEST(TreeItemsTest, AHundredThousandSiblingsStayCheapAndADeepTreeNeedsNoStack)
{
    constexpr int kMany = 100'000;
    const auto start = std::chrono::steady_clock::now();
    TreeItems items;
    const ItemIndex parent = items.Insert(kRootItem, 0);
    items.SetExpanded(parent, true);
    std::mt19937 random(7);
    for (int i = 0; i < kMany; ++i)
        items.Insert(parent, static_cast<int>(random() % static_cast<unsigned>(i + 1)));
    for (int row = 1; row <= kMany; ++row)
        ASSERT_EQ(row, items.RowOf(items.AtRow(row)));
    while (items.ChildCount(parent) > 0)
        items.Delete(items.ChildAt(parent, items.ChildCount(parent) / 2));
    EXPECT_EQ(1, items.RowCount());

    std::vector<ItemIndex> branch{parent}; // deeper than any stack
    while (branch.size() < 200'000)
        branch.push_back(items.Insert(branch.back(), 0));
    for (std::size_t level = 1; level < 1000; ++level)
        items.SetExpanded(branch[level], true);
    EXPECT_EQ(1001, items.RowCount());
    EXPECT_EQ(branch[1000], items.AtRow(1000));
    EXPECT_EQ(-1, items.RowOf(branch.back()));
    items.SetExpanded(parent, false);
    EXPECT_EQ(1, items.RowCount());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

} // namespace
