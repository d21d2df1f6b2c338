// Renaming in place: what list and tree do alike, and how the field lies in each.
#include "tests/toolkit/EditFixture.h"
#include "tests/toolkit/ListControlFixture.h"
#include "tests/toolkit/TreeControlFixture.h"

using namespace toolkit;

class ListLabels : public ListControlTest
{
protected:
    void SetUp() override
    {
        ListControlTest::SetUp();
        ModifyStyle(list.m_hWnd, 0, LVS_EDITLABELS);
        list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        desktop.Advance(1000);
        TakeLedger();
    }

    LedgerList& Control() { return list; }
    CPoint At(const std::string& name) { return LabelOf(name[0] - 'a'); }
    HWND Field() const { return list.GetEditControl(); }
    void Begin(const std::string& name)
    {
        list.EditLabel(name[0] - 'a');
        TakeLedger();
    }
};

class TreeLabels : public TreeControlTest
{
protected:
    void SetUp() override
    {
        TreeControlTest::SetUp();
        ModifyStyle(tree.m_hWnd, 0, TVS_EDITLABELS);
        Fill("a [b c] d e");
        tree.SetFocus();
        tree.SelectItem(tree.Find("b"));
        desktop.Advance(1000);
        TakeLedger();
    }

    LedgerTree& Control() { return tree; }
    CPoint At(const std::string& name) { return LabelOf(name).CenterPoint(); }
    HWND Field() const { return tree.GetEditControl(); }
    void Begin(const std::string& name)
    {
        tree.EditLabel(tree.Find(name));
        TakeLedger();
    }
};

// b is selected and has been for a while.
template <class Labels>
class LabelEditTest : public Labels
{
protected:
    void Click(const std::string& name) { this->desktop.Click(Window(), this->At(name)); }
    HWND Window() { return this->Control().m_hWnd; }
    void Activate(HWND hTop, bool active)
    {
        InputActivate(hTop, active);
        this->desktop.Run();
    }
    std::string FieldText() const { return FieldState(this->Field()); }
    std::string TwoSecondsLater()
    {
        this->desktop.Advance(2000);
        return FieldText();
    }
    Ledger TakeEdits() // what was told of labels and of the focus
    {
        Ledger lines = this->TakeLedger();
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("edit") && line[0] != 'f'; });
        return lines;
    }
};
using BothLabels = testing::Types<ListLabels, TreeLabels>;
TYPED_TEST_SUITE(LabelEditTest, BothLabels);

TYPED_TEST(LabelEditTest, OnlyASlowSecondClickOnTheOneSelectedLabelStartsIt)
{
    this->Click("b");
    EXPECT_EQ("[b]", this->TwoSecondsLater());
    EXPECT_EQ(Ledger({"edit b 'b'?", "focus goes"}), this->TakeEdits());
    this->desktop.Key(VK_ESCAPE);
    EXPECT_EQ(Ledger({"focus comes", "edited b not"}), this->TakeEdits());

    const HWND hWnd = this->Window(), hTop = this->top.m_hWnd;
    const CPoint b = this->At("b"), beside = b + CPoint(0, 8);
    const std::pair<const char*, std::function<void()>> others[] = {
        {"a double click opens", [&] { this->desktop.DoubleClick(hWnd, b); }},
        {"a key came between", [&] { this->Click("b"), this->desktop.Key(VK_HOME); }},
        {"the click only brought the user back",
         [&] { this->Activate(hTop, false), this->Activate(hTop, true), this->Click("a"); }},
        {"the click took the focus", [&] { this->other.SetFocus(), this->Click("a"); }},
        {"a drag",
         [&] {
             this->desktop.Press(hWnd, this->At("a"));
             this->desktop.MoveTo(hWnd, beside);
             this->desktop.Release(hWnd, beside);
         }},
    };
    for (const auto& [pszWhy, action] : others) {
        action();
        EXPECT_EQ("-", this->TwoSecondsLater()) << pszWhy;
    }
}

TYPED_TEST(LabelEditTest, TheFocusElsewhereTakesTheTextButAnotherWindowDoesNot)
{
    CWnd second; // another window of the program
    ASSERT_TRUE(second.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr, 0));
    const HWND hTop = this->top.m_hWnd;
    this->Begin("b");
    this->desktop.Type("left");
    this->Activate(hTop, false);
    this->Activate(second.m_hWnd, true);
    EXPECT_EQ(second.m_hWnd, ::GetFocus());
    this->Activate(second.m_hWnd, false);
    this->Activate(hTop, true);
    this->desktop.Type("!");
    EXPECT_EQ("left!|", this->FieldText());
    EXPECT_EQ(Ledger(), this->TakeEdits());
    this->Click("e");
    EXPECT_EQ(Ledger({"edited b 'left!'", "focus comes"}), this->TakeEdits());

    this->Begin("b");
    this->desktop.Type("right");
    this->Activate(hTop, false);
    this->Control().SetFocus(); // the press that brings the user back comes before the news that he is back
    EXPECT_EQ(Ledger({"edited b 'right'", "focus comes"}), this->TakeEdits());
}

TEST_F(ListLabels, TheFieldGrowsWithItsTextFollowsItsRowAndNeverNamesAnother)
{
    Fill(60);
    Begin("e");
    const CRect first = FieldRect(Field());
    desktop.Type("a name that needs");
    const CRect grown = FieldRect(Field());
    EXPECT_LT(first.Width(), grown.Width());
    EXPECT_NEAR(first.CenterPoint().x, grown.CenterPoint().x, 1);
    desktop.Type(" far more room than there is, whichever way the field may grow, so that it scrolls");
    EXPECT_EQ(ClientOf(list.m_hWnd).Width(), FieldRect(Field()).Width());
    desktop.Wheel(list.m_hWnd, {10, 10}, -1);
    EXPECT_EQ(first.top - 96, FieldRect(Field()).top);
    list.MoveEditLabel(0); // e is the first one now
    TakeLedger();
    SetWindowText(Field(), "left");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited a 'left'"}), TakeLedger());

    const std::function<void()> losses[] = {[&] { list.MoveEditLabel(-1); }, [&] { list.SetItemCount(3); }};
    for (const auto& lose : losses) {
        Begin("e");
        lose();
        EXPECT_EQ(Ledger({"focus comes", "edited e not"}), TakeLedger());
        EXPECT_EQ(nullptr, Field());
    }
}

TEST_F(TreeLabels, TheFieldLiesOnItsLabelStaysWithItAndGrowsToTheTreesEdge)
{
    Begin("b");
    tree.refuses = [](const std::string& line) { return line == "edited b 'left'"; }; // it takes it
    desktop.Type("left");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited b 'left'", "set 'left'"}), TakeLedger());

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
