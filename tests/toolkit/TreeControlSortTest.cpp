// Where a tree puts its items: sorted insertion, and sorting what is there.
#include "tests/support/AllocationFailures.h"
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{

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
