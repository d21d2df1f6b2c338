// Renaming in place in the tree control.
#include "tests/toolkit/EditFixture.h"
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

class TreeLabelEditTest : public TreeControlTest
{
protected:
    void SetUp() override
    {
        TreeControlTest::SetUp();
        ModifyStyle(tree.m_hWnd, 0, TVS_EDITLABELS);
        Fill("a [b c] d");
        tree.SetFocus();
        tree.SelectItem(tree.Find("b"));
        desktop.Advance(1000);
        TakeLedger();
    }

    HWND Field() const { return tree.GetEditControl(); }
    std::string FieldText() const { return FieldState(Field()); }
    std::string TwoSecondsLater()
    {
        desktop.Advance(2000);
        return FieldText();
    }
    void Begin(const std::string& name)
    {
        tree.EditLabel(tree.Find(name));
        TakeLedger();
    }
};

TEST_F(TreeLabelEditTest, ANameIsTakenByTheFocusElsewhereButNotByAnotherWindow)
{
    Click("b");
    EXPECT_EQ("[b]", TwoSecondsLater());
    EXPECT_EQ(Ledger({"click", "edit? b", "focus goes"}), TakeLedger());
    tree.refuses = [](const std::string& line) { return line == "edited b 'left'"; }; // it takes it
    desktop.Type("left");
    InputActivate(top.m_hWnd, false);
    desktop.Run();
    InputActivate(top.m_hWnd, true);
    desktop.Run();
    EXPECT_EQ(Ledger(), TakeLedger());
    other.SetFocus();
    EXPECT_EQ(Ledger({"edited b 'left'", "set 'left'"}), TakeLedger());

    Click("left");
    EXPECT_EQ("-", TwoSecondsLater()) << "only brings the user back";
}

TEST_F(TreeLabelEditTest, TheFieldLiesOnItsLabelStaysWithItAndGrowsToTheTreesEdge)
{
    Begin("c");
    EXPECT_EQ(LabelOf("c").TopLeft(), FieldRect(Field()).TopLeft());
    tree.Add("aa", TVI_ROOT, TVI_FIRST);
    desktop.Run();
    EXPECT_EQ(LabelOf("c").top, FieldRect(Field()).top) << "its row moved down";
    desktop.Type("a longer name that would need far more room than the tree has to its right");
    EXPECT_EQ(300, FieldRect(Field()).right);
    tree.Expand(tree.Find("a"), TVE_COLLAPSE);
    desktop.Run();
    EXPECT_GT(0, FieldRect(Field()).bottom) << "out of sight with its item";
    tree.Expand(tree.Find("a"), TVE_EXPAND);
    desktop.Run();
    EXPECT_EQ(LabelOf("c").top, FieldRect(Field()).top);
    EXPECT_EQ(Field(), ::GetFocus());

    tree.DeleteItem(tree.Find("a"));
    EXPECT_EQ(nullptr, Field());
    EXPECT_EQ(tree.m_hWnd, ::GetFocus());
    Begin("d");
    // It takes it, and goes.
    tree.refuses = [this](const std::string& line) { return line == "edited d 'x'" && tree.DestroyWindow(); };
    desktop.Type("x");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(nullptr, tree.m_hWnd);
}
