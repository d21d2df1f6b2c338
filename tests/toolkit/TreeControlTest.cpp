// Clicks, keys and messages: how a tree's selection and its branches follow them, and what its owner is told.
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

namespace
{

TEST_F(TreeControlTest, AClickSelectsAtTheReleaseAndTellsEachStep)
{
    Fill("a [b c] d");
    tree.SetFocus();
    EXPECT_EQ("*a [b c] d", State());
    EXPECT_EQ(Ledger({"selecting - -> a", "selected - -> a", "focus comes"}), TakeLedger());

    desktop.Press(tree.m_hWnd, LabelOf("c").CenterPoint());
    EXPECT_EQ("*a [b c] d", State());
    desktop.Release(tree.m_hWnd, LabelOf("c").CenterPoint());
    EXPECT_EQ("a [b *c] d", State());
    EXPECT_EQ(Ledger({"click", "selecting a -> c by mouse", "selected a -> c by mouse"}), TakeLedger());
}

} // namespace
