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
    std::string AfterSlowClick(const std::string& name)
    {
        Click(name);
        desktop.Advance(GetDoubleClickTime());
        return FieldText();
    }
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

TEST_F(TreeLabelEditTest, ANameIsTakenByEnterAndByTheFocusElsewhereAndLeftByEscape)
{
    EXPECT_NE(nullptr, tree.EditLabel(tree.Find("b")));
    EXPECT_EQ(Ledger({"edit? b", "focus goes"}), TakeLedger());
    EXPECT_EQ("[b]", FieldText());
    desktop.Type("left");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited b 'left'"}), TakeLedger());
    EXPECT_EQ("a [*b c] d", State()) << "the owner did not take it";

    tree.refuses = [](const std::string& line) { return line == "edited b 'left'"; }; // it takes it
    Begin("b");
    desktop.Type("left");
    InputActivate(top.m_hWnd, false);
    desktop.Run();
    InputActivate(top.m_hWnd, true);
    desktop.Run();
    EXPECT_EQ(Ledger(), TakeLedger()) << "another window does not end it";
    other.SetFocus();
    EXPECT_EQ(Ledger({"edited b 'left'", "set 'left'"}), TakeLedger());

    Begin("left");
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(Ledger({"focus comes", "edited left not"}), TakeLedger());
    Begin("left");
    EXPECT_TRUE(tree.EndEditLabelNow(FALSE));
    EXPECT_FALSE(tree.EndEditLabelNow(FALSE));
    EXPECT_EQ(Ledger({"focus comes", "edited left 'left'"}), TakeLedger());

    tree.refuses = [](const std::string& line) { return line == "edit? d"; };
    EXPECT_EQ(nullptr, tree.EditLabel(tree.Find("d")));
    EXPECT_EQ(nullptr, tree.EditLabel(nullptr));

    tree.refuses = [](const std::string& line) { return line == "edited left 'x'"; };
    const HTREEITEM hItem = tree.Find("left");
    tree.SetItemText(hItem, "left"); // the control keeps this one
    tree.EditLabel(hItem);
    desktop.Type("x");
    desktop.Key(VK_RETURN);
    EXPECT_EQ("x", tree.GetItemText(hItem));
}

TEST_F(TreeLabelEditTest, OnlyASlowSecondClickOnTheSelectedLabelStartsIt)
{
    EXPECT_EQ("-", AfterSlowClick("c")); // selects it only
    EXPECT_EQ("[c]", AfterSlowClick("c"));
    desktop.Key(VK_ESCAPE);
    desktop.Click(tree.m_hWnd, IconOf("c"));
    EXPECT_EQ("-", TwoSecondsLater()) << "not its label";
    desktop.DoubleClick(tree.m_hWnd, LabelOf("c").CenterPoint());
    EXPECT_EQ("-", TwoSecondsLater());
    other.SetFocus();
    EXPECT_EQ("-", AfterSlowClick("c")) << "the click only brought the user back";
    Click("c");
    Key(VK_DOWN);
    EXPECT_EQ("-", TwoSecondsLater()) << "a key came between";
}

TEST_F(TreeLabelEditTest, TheFieldLiesOnItsLabelStaysWithItAndGrowsToTheTreesEdge)
{
    Begin("c");
    EXPECT_EQ(LabelOf("c").left, FieldRect(Field()).left);
    EXPECT_EQ(LabelOf("c").top, FieldRect(Field()).top);
    const int width = FieldRect(Field()).Width();
    tree.Add("aa", TVI_ROOT, TVI_FIRST);
    desktop.Run();
    EXPECT_EQ(LabelOf("c").top, FieldRect(Field()).top) << "its row moved down";
    desktop.Type("a longer name");
    EXPECT_LT(width, FieldRect(Field()).Width());
    desktop.Type(" that would need far more room than the tree has to its right");
    EXPECT_EQ(300, FieldRect(Field()).right);

    tree.Expand(tree.Find("a"), TVE_COLLAPSE);
    desktop.Run();
    EXPECT_GT(0, FieldRect(Field()).bottom) << "out of sight with its item";
    tree.Expand(tree.Find("a"), TVE_EXPAND);
    desktop.Run();
    EXPECT_EQ(LabelOf("c").top, FieldRect(Field()).top);
    EXPECT_EQ(Field(), ::GetFocus());
}

TEST_F(TreeLabelEditTest, AnItemThatIsDeletedTakesItsEditingAlong)
{
    Begin("c");
    tree.DeleteItem(tree.Find("b"));
    EXPECT_NE(nullptr, Field());
    TakeLedger();
    tree.DeleteItem(tree.Find("a"));
    EXPECT_EQ(nullptr, Field());
    const Ledger ledger = TakeLedger();
    EXPECT_NE(ledger.end(), std::find(ledger.begin(), ledger.end(), "edited c not"));
    EXPECT_EQ(tree.m_hWnd, ::GetFocus());

    Begin("d");
    tree.meanwhile = [this](const std::string& line) {
        if (line == "edited d 'x'")
            tree.DestroyWindow();
    };
    desktop.Type("x");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(nullptr, tree.m_hWnd);
}
