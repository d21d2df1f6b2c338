// The tree's items without a window: structure, rows and handles, against a simple model and in large numbers.
#include "Toolkit/controls/TreeItems.h"

#include <chrono>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

using namespace toolkit;

namespace
{

ItemIndex Add(TreeItems& items, ItemIndex parent, int place)
{
    return items.Insert(parent, place);
}

// Changes the items at random, and what they must come to: plain vectors.
class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : m_random(seed) {}

    void Step()
    {
        const ItemIndex item = std::next(m_children.begin(), static_cast<int>(Below(m_children.size())))->first;
        switch (Below(10)) {
        case 0:
            return Delete(item);
        case 1:
            std::shuffle(m_children[item].begin(), m_children[item].end(), m_random);
            return items.Arrange(item, m_children[item]);
        case 2:
            return MoveUp(m_children[item]);
        case 3:
            return Turn(item);
        case 4:
        case 5:
            return Insert(item);
        default:
            return Insert(kRootItem); // so many that they stand in several blocks
        }
    }

    void Check() const
    {
        std::vector<ItemIndex> rows;
        AddShownRows(kRootItem, rows);
        ASSERT_EQ(static_cast<int>(rows.size()), items.RowCount());
        for (int row = 0; row < items.RowCount(); ++row) {
            ASSERT_EQ(rows[static_cast<std::size_t>(row)], items.AtRow(row));
            ASSERT_EQ(row, items.RowOf(items.AtRow(row)));
        }
        for (const auto& [item, children] : m_children)
            CheckChildren(item, children);
        EXPECT_EQ(static_cast<int>(m_children.size()) - 1, items.Count());
    }

    TreeItems items;

private:
    std::size_t Below(std::size_t end) { return m_random() % end; }

    void Insert(ItemIndex parent)
    {
        std::vector<ItemIndex>& siblings = m_children[parent];
        const auto place = static_cast<int>(Below(siblings.size() + 1));
        const ItemIndex item = Add(items, parent, place);
        siblings.insert(siblings.begin() + place, item);
        m_parents[item] = parent;
        m_children[item];
    }

    void Delete(ItemIndex item)
    {
        if (item == kRootItem || !m_children[item].empty())
            return;
        items.Delete(item);
        std::erase(m_children[m_parents[item]], item);
        m_children.erase(item);
        m_expanded.erase(item);
    }

    void MoveUp(std::vector<ItemIndex>& siblings)
    {
        if (siblings.size() < 2)
            return;
        const auto to = siblings.begin() + static_cast<int>(Below(siblings.size() - 1));
        items.MoveUp(siblings.back(), static_cast<int>(to - siblings.begin()));
        std::rotate(to, siblings.end() - 1, siblings.end());
    }

    void Turn(ItemIndex item)
    {
        if (item == kRootItem)
            return;
        const bool expands = m_expanded.insert(item).second;
        if (!expands)
            m_expanded.erase(item);
        items.SetExpanded(item, expands);
    }

    void AddShownRows(ItemIndex parent, std::vector<ItemIndex>& rows) const
    {
        for (const ItemIndex child : m_children.at(parent)) {
            rows.push_back(child);
            if (m_expanded.count(child))
                AddShownRows(child, rows);
        }
    }

    void CheckChildren(ItemIndex parent, const std::vector<ItemIndex>& children) const
    {
        ASSERT_EQ(static_cast<int>(children.size()), items.ChildCount(parent));
        ItemIndex item = items.FirstChild(parent), former = kNoItem;
        for (int place = 0; place < items.ChildCount(parent); ++place) {
            ASSERT_EQ(children[static_cast<std::size_t>(place)], item);
            ASSERT_EQ(item, items.ChildAt(parent, place));
            ASSERT_EQ(place, items.PlaceOf(item));
            ASSERT_EQ(former, items.Previous(item));
            former = std::exchange(item, items.Next(item));
        }
        EXPECT_EQ(kNoItem, item);
        EXPECT_EQ(former, items.LastChild(parent));
    }

    std::mt19937 m_random;
    std::map<ItemIndex, std::vector<ItemIndex>> m_children{{kRootItem, {}}};
    std::map<ItemIndex, ItemIndex> m_parents;
    std::set<ItemIndex> m_expanded;
};

TEST(TreeItemsTest, RowsAndNeighboursFollowAnyHistoryOfChanges)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomTree tree(seed);
        for (int round = 0; round < 10; ++round) {
            for (int step = 0; step < 40; ++step)
                tree.Step();
            ASSERT_NO_FATAL_FAILURE(tree.Check()) << "seed " << seed << ", round " << round;
        }
    }
}

TEST(TreeItemsTest, AHandleOfAnItemThatIsGoneFindsNothing)
{
    TreeItems items;
    const HTREEITEM hFirst = items.HandleOf(Add(items, kRootItem, 0));
    items.Delete(items.Find(hFirst));
    EXPECT_EQ(kNoItem, items.Find(hFirst));
    for (int i = 0; i < 1000; ++i) {
        const ItemIndex item = Add(items, kRootItem, 0);
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
    const ItemIndex parent = Add(items, kRootItem, 0);
    items.SetExpanded(parent, true);
    std::mt19937 random(7);
    for (int i = 0; i < kMany; ++i)
        Add(items, parent, static_cast<int>(random() % static_cast<unsigned>(i + 1)));
    for (int row = 1; row <= kMany; ++row)
        ASSERT_EQ(row, items.RowOf(items.AtRow(row)));
    while (items.ChildCount(parent) > 0)
        items.Delete(items.ChildAt(parent, items.ChildCount(parent) / 2));
    EXPECT_EQ(1, items.RowCount());

    std::vector<ItemIndex> branch{parent}; // deeper than any stack
    while (branch.size() < 200'000)
        branch.push_back(Add(items, branch.back(), 0));
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
