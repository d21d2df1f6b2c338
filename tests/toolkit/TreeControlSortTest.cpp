// Where a tree puts its items: sorted insertion, how little it asks for it, and sorting what is there.
#include "tests/support/AllocationFailures.h"
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{

std::string Number(int n)
{
    const std::string digits = std::to_string(n);
    return std::string(6 - digits.size(), '0') + digits;
}

int CompareFirstLetters(LPARAM one, LPARAM other, LPARAM)
{
    return *reinterpret_cast<const std::string*>(one)->data() - *reinterpret_cast<const std::string*>(other)->data();
}

TEST_F(TreeControlTest, AnItemIsPutWhereItsOwnerWantsItOrBeforeTheFirstGreaterLabel)
{
    Fill("b [x] d");
    tree.Add("a", TVI_ROOT, TVI_FIRST);
    tree.Add("c", TVI_ROOT, (*this)["b"]);
    tree.Add("y", (*this)["b"], (*this)["d"]); // no sibling: at the end
    EXPECT_EQ("a b [x y] c d", State());
    EXPECT_EQ(nullptr, tree.Add("z", reinterpret_cast<HTREEITEM>(-1)));

    Fill("");
    for (const char* name : {"m", "B", "a", "Z", "b2", "A"})
        tree.Add(name, TVI_ROOT, TVI_SORT);
    EXPECT_EQ("a A B b2 m Z", State()); // an equal label stays behind its like
    Fill("c a d");                      // not in order: as it is
    tree.Add("b", TVI_ROOT, TVI_SORT);
    EXPECT_EQ("b c a d", State());
    tree.Add("c5", TVI_ROOT, TVI_SORT);
    EXPECT_EQ("b c a c5 d", State());

    Fill("b1 [x] a1 b2 c a2 b3");
    TVSORTCB sort{TVI_ROOT, &CompareFirstLetters, 0};
    EXPECT_TRUE(tree.SortChildrenCB(&sort));
    EXPECT_EQ("a1 a2 b1 [x] b2 b3 c", State());
}

TEST_F(TreeControlTest, SortedInsertionsAreGatheredAndAskLogarithmically)
{
    constexpr int kMany = 100'000, kPerInsertion = 18; // its own label, and 17 = log2 of their number
    Fill("root");
    const HTREEITEM hRoot = (*this)["root"];
    const auto insert = [&](int from, int to, int every) {
        tree.labelRequests = 0;
        for (int i = from; i < to; i += every)
            tree.Add(Number(i * 7919 % kMany), hRoot, TVI_SORT);
        EXPECT_EQ(0, tree.labelRequests);
        tree.GetChildItem(hRoot);
        return tree.labelRequests;
    };
    EXPECT_EQ(kMany / 2, insert(0, kMany, 2)); // each once
    EXPECT_EQ(kMany, insert(1, kMany / 2, 2) + kMany / 4);
    for (int i = kMany / 2 + 1; i < kMany / 2 + 1000; i += 2)
        ASSERT_LE(insert(i, i + 1, 1), kPerInsertion);
    insert(kMany / 2 + 1001, kMany, 2);
    HTREEITEM hItem = tree.GetChildItem(hRoot);
    for (int i = 0; i < kMany; ++i, hItem = tree.GetNextSiblingItem(hItem))
        ASSERT_EQ(Number(i), tree.NameOf(hItem));

    tree.labelRequests = 0;
    tree.Expand(hRoot, TVE_EXPAND);
    tree.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    desktop.Run();
    EXPECT_LE(tree.labelRequests, 10); // what is in sight
    EXPECT_EQ(Number(8), InRow(0));
    tree.SelectItem(tree.GetNextItem(nullptr, TVGN_LASTVISIBLE));
    desktop.Run();
    EXPECT_LE(tree.labelRequests, 25);
    EXPECT_EQ(Number(kMany - 1), InRow(9));
}

TEST_F(TreeControlTest, ChildrenTakeTheOrderThatTheyAreGivenAndNoLabelIsAskedFor)
{
    Fill("a [x] b c");
    const HTREEITEM a = (*this)["a"], b = (*this)["b"], c = (*this)["c"], x = (*this)["x"];
    tree.labelRequests = 0;
    const HTREEITEM d = tree.Add("d", TVI_ROOT, TVI_SORT);
    for (const std::vector<HTREEITEM>& wrong : {std::vector{a, b, c}, {a, b, c, c}, {a, b, c, x}, {a, b, c, d, d}})
        EXPECT_FALSE(tree.ArrangeChildren(TVI_ROOT, wrong));
    EXPECT_TRUE(tree.ArrangeChildren(TVI_ROOT, std::vector{d, b, a, c}));
    EXPECT_EQ(0, tree.labelRequests);
    EXPECT_EQ("d b a [x] c", State());
}

TEST_F(TreeControlTest, AnAnswerMayBeKeptForGood)
{
    Fill("a b");
    tree.keeps = TVIF_DI_SETITEM;
    tree.Invalidate();
    desktop.Run();
    tree.labelRequests = 0;
    tree.Invalidate();
    desktop.Run();
    EXPECT_EQ("a", tree.GetItemText((*this)["a"]));
    EXPECT_EQ(0, tree.labelRequests);
}

TEST_F(TreeControlTest, AnInsertionWithoutMemoryIsRefusedAndLeavesNothing)
{
    Fill("a [b c]");
    const HTREEITEM hParent = (*this)["a"];
    const std::string name = "bb";
    TVINSERTSTRUCT insert{hParent, TVI_SORT, {}};
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    insert.item.pszText = const_cast<LPSTR>("a text that is too long to need no memory of its own");
    insert.item.lParam = reinterpret_cast<LPARAM>(&name);
    int inserted = 0;
    const int failures = FailEveryAllocation([&] {
        const UINT count = tree.GetCount();
        const HTREEITEM hItem = tree.InsertItem(&insert);
        inserted += hItem != nullptr;
        ASSERT_EQ(count + (hItem ? 1u : 0u), tree.GetCount());
    });
    EXPECT_GT(failures, 2);
    EXPECT_GE(inserted, 1);
    EXPECT_LE(inserted, failures);
    tree.DeleteAllItems(); // while their name lives
}

} // namespace
