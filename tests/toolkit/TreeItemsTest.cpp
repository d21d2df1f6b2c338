// The tree's items without a window: structure, rows and handles, against a simple model and in large numbers.
#include "Toolkit/controls/TreeItems.h"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace toolkit;

namespace
{

ItemIndex Add(TreeItems& items, ItemIndex parent, int place)
{
    const ItemIndex item = items.Make();
    items.Place(item, parent, place);
    return item;
}

// What the items must come to: plain vectors.
struct Model
{
    ItemIndex item;
    Model* parent;
    bool expanded = false;
    std::vector<std::unique_ptr<Model>> children;

    void ShownRows(std::vector<ItemIndex>& rows) const
    {
        for (const auto& child : children) {
            rows.push_back(child->item);
            if (child->expanded)
                child->ShownRows(rows);
        }
    }
};

class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : m_random(seed) { m_nodes.push_back(&m_root); }

    void Step()
    {
        Model& node = *m_nodes[Below(m_nodes.size())];
        switch (Below(8)) {
        case 0:
            return Delete(node);
        case 1:
            return Shuffle(node);
        case 2:
        case 3:
            return Turn(node);
        default:
            return Insert(node);
        }
    }

    void Check() const
    {
        std::vector<ItemIndex> rows;
        m_root.ShownRows(rows);
        ASSERT_EQ(static_cast<int>(rows.size()), items.RowCount());
        for (int row = 0; row < items.RowCount(); ++row) {
            ASSERT_EQ(rows[static_cast<std::size_t>(row)], items.AtRow(row));
            ASSERT_EQ(row, items.RowOf(items.AtRow(row)));
        }
        for (const Model* node : m_nodes)
            CheckChildren(*node);
        EXPECT_EQ(static_cast<int>(m_nodes.size()) - 1, items.Count());
    }

    TreeItems items;

private:
    std::size_t Below(std::size_t end) { return m_random() % end; }

    void Insert(Model& parent)
    {
        const std::size_t place = Below(parent.children.size() + 1);
        auto node =
            std::make_unique<Model>(Model{Add(items, parent.item, static_cast<int>(place)), &parent, false, {}});
        m_nodes.push_back(node.get());
        parent.children.insert(parent.children.begin() + static_cast<std::ptrdiff_t>(place), std::move(node));
    }

    void Delete(Model& node)
    {
        if (&node == &m_root || !node.children.empty())
            return;
        items.Delete(node.item);
        std::erase(m_nodes, &node);
        std::erase_if(node.parent->children, [&](const auto& child) { return child.get() == &node; });
    }

    void Turn(Model& node)
    {
        if (&node == &m_root)
            return;
        node.expanded = !node.expanded;
        items.SetExpanded(node.item, node.expanded);
    }

    void Shuffle(Model& node)
    {
        std::shuffle(node.children.begin(), node.children.end(), m_random);
        std::vector<ItemIndex> order;
        for (const auto& child : node.children)
            order.push_back(child->item);
        items.Arrange(node.item, order);
    }

    void CheckChildren(const Model& node) const
    {
        ASSERT_EQ(static_cast<int>(node.children.size()), items.ChildCount(node.item));
        ItemIndex item = items.FirstChild(node.item), former = kNoItem;
        for (int place = 0; place < items.ChildCount(node.item); ++place) {
            ASSERT_EQ(node.children[static_cast<std::size_t>(place)]->item, item);
            ASSERT_EQ(item, items.ChildAt(node.item, place));
            ASSERT_EQ(place, items.PlaceOf(item));
            ASSERT_EQ(former, items.Previous(item));
            former = std::exchange(item, items.Next(item));
        }
        EXPECT_EQ(kNoItem, item);
        EXPECT_EQ(former, items.LastChild(node.item));
    }

    std::mt19937 m_random;
    Model m_root{kRootItem, nullptr, true, {}};
    std::vector<Model*> m_nodes;
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
