// Renaming in place in the list control.
#include "Toolkit/controls/Edit.h"
#include "tests/toolkit/EditFixture.h"
#include "tests/toolkit/ListControlFixture.h"

using namespace toolkit;

class ListLabelEditTest : public ListControlTest
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

    HWND Field() const { return list.GetEditControl(); }
    std::string FieldText() const { return FieldState(Field()); }
    std::string AfterSlowClick(CPoint at)
    {
        desktop.Click(list.m_hWnd, at);
        desktop.Advance(GetDoubleClickTime());
        return FieldText();
    }
    std::string TwoSecondsLater()
    {
        desktop.Advance(2000);
        return FieldText();
    }
    void Begin(int row)
    {
        list.EditLabel(row);
        TakeLedger();
    }
};

TEST_F(ListLabelEditTest, EditingTakesTheFocusAsksAndOffersTheWholeLabel)
{
    other.SetFocus();
    TakeLedger();
    const HWND hField = list.EditLabel(1);
    EXPECT_EQ(Ledger({"focus comes", "edit b 'b'?", "focus goes"}), TakeLedger());
    EXPECT_EQ(hField, Field());
    EXPECT_EQ(hField, ::GetFocus());
    EXPECT_EQ("[b]", FieldText());
    EXPECT_TRUE(IsWindowVisible(hField));

    desktop.Type("left");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited b 'left'"}), TakeLedger());
    EXPECT_EQ(nullptr, Field());
    EXPECT_EQ(list.m_hWnd, ::GetFocus());

    Begin(1);
    desktop.Type("left");
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(Ledger({"focus comes", "edited b not"}), TakeLedger());

    Begin(1);
    list.CancelEditLabel();
    EXPECT_EQ(Ledger({"focus comes", "edited b not"}), TakeLedger());
    list.refuses = [](const std::string& line) { return line == "edit b 'b'?"; };
    EXPECT_EQ(nullptr, list.EditLabel(1));
    EXPECT_EQ(list.m_hWnd, ::GetFocus());
    EXPECT_EQ(nullptr, list.EditLabel(99));
}

TEST_F(ListLabelEditTest, OnlyASlowSecondClickOnTheOneSelectedLabelStartsIt)
{
    EXPECT_EQ("[b]", AfterSlowClick(LabelOf(1)));
    desktop.Key(VK_ESCAPE);

    EXPECT_EQ("-", AfterSlowClick(LabelOf(2))); // selects it only
    EXPECT_EQ("-", AfterSlowClick(IconOf(2)));  // no label

    desktop.DoubleClick(list.m_hWnd, LabelOf(2));
    EXPECT_EQ("-", TwoSecondsLater()) << "a double click opens";
    desktop.Click(list.m_hWnd, LabelOf(2));
    desktop.Key(VK_HOME);
    EXPECT_EQ("-", TwoSecondsLater()) << "a key came between";

    InputActivate(top.m_hWnd, false);
    InputActivate(top.m_hWnd, true);
    EXPECT_EQ("-", AfterSlowClick(LabelOf(0))) << "the click only brought the user back";
    desktop.Press(list.m_hWnd, LabelOf(0));
    desktop.MoveTo(list.m_hWnd, LabelOf(0) + CPoint(0, 20));
    desktop.Release(list.m_hWnd, LabelOf(0) + CPoint(0, 20));
    EXPECT_EQ("-", TwoSecondsLater()) << "a drag";

    Click(3, kControl);
    EXPECT_EQ("-", AfterSlowClick(LabelOf(3))); // one of two: leaves it alone selected
    EXPECT_EQ("[d]", AfterSlowClick(LabelOf(3)));
}

TEST_F(ListLabelEditTest, TheFocusElsewhereTakesTheTextButAnotherWindowDoesNot)
{
    Begin(1);
    desktop.Type("left");
    InputActivate(top.m_hWnd, false);
    desktop.Run();
    EXPECT_EQ(nullptr, ::GetFocus());
    InputActivate(top.m_hWnd, true);
    desktop.Run();
    EXPECT_EQ("left|", FieldText());
    EXPECT_EQ(Field(), ::GetFocus());

    CWnd second; // another window of the program
    ASSERT_TRUE(second.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr, 0));
    InputActivate(second.m_hWnd, true);
    desktop.Run();
    EXPECT_EQ("left|", FieldText());
    InputActivate(second.m_hWnd, false);
    InputActivate(top.m_hWnd, true);
    desktop.Type("!");
    EXPECT_EQ(Ledger(), TakeLedger());

    Click(4);
    EXPECT_EQ(Ledger({"edited b 'left!'", "focus comes", "b? -selected", "b: -selected", "e? +selected +focused",
                      "b? -focused", "b: -focused", "e: +selected +focused", "click e"}),
              TakeLedger());

    Begin(1);
    desktop.Type("right");
    InputActivate(top.m_hWnd, false);
    desktop.Run();
    list.SetFocus(); // the press that brings the user back comes before the news that he is back
    EXPECT_EQ(Ledger({"edited b 'right'", "focus comes"}), TakeLedger());
}

TEST_F(ListLabelEditTest, TheFieldGrowsWithItsTextUpToTheListsEdges)
{
    Begin(1);
    const CRect first = FieldRect(Field());
    const int middle = first.CenterPoint().x;
    desktop.Type("a name that needs");
    const CRect grown = FieldRect(Field());
    EXPECT_LT(first.Width(), grown.Width());
    EXPECT_NEAR(middle, grown.CenterPoint().x, 1);
    desktop.Type(" far more room than there is, whichever way the field may grow, so that it scrolls");
    CRect client;
    list.GetClientRect(&client);
    EXPECT_EQ(client.left, FieldRect(Field()).left);
    EXPECT_EQ(client.right, FieldRect(Field()).right);
}

TEST_F(ListLabelEditTest, TheFieldFollowsItsRowAndNoOtherRowIsEverGivenItsName)
{
    Fill(60);
    Begin(4);
    const CRect first = FieldRect(Field());
    desktop.Wheel(list.m_hWnd, {10, 10}, -1);
    CRect label;
    list.GetItemRect(4, &label, LVIR_LABEL);
    EXPECT_LT(FieldRect(Field()).top, first.top);
    EXPECT_NEAR(label.top, FieldRect(Field()).top, 2);
    desktop.Type("left");

    list.text = [](int row) { return LedgerList::NameOf(row == 0 ? 4 : row <= 4 ? row - 1 : row); };
    list.MoveEditLabel(0); // e is the first one now
    TakeLedger();
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited a 'left'"}), TakeLedger());

    Begin(4);
    list.MoveEditLabel(-1);
    EXPECT_EQ(Ledger({"focus comes", "edited e not"}), TakeLedger());
    Begin(4);
    list.SetItemCount(3);
    EXPECT_EQ(Ledger({"focus comes", "edited e not"}), TakeLedger());
    EXPECT_EQ(nullptr, Field());

    Begin(1);
    desktop.Type("left");
    list.text = [](int) { return "another"; }; // is what the row shows now; it is the same row
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited b 'left'"}), TakeLedger());
}

TEST_F(ListLabelEditTest, TheListMayBeDestroyedWhileItAsksOrTells)
{
    for (const std::string when : {"edit b 'b'?", "focus goes", "edited b 'b'"}) {
        if (!list.m_hWnd)
            ShowList(LVS_EDITLABELS);
        list.SetItemCount(6);
        list.SetFocus();
        list.meanwhile = [&](const std::string& line) {
            if (line == when)
                list.DestroyWindow();
        };
        const HWND hField = list.EditLabel(1);
        EXPECT_EQ(when == "edited b 'b'", hField != nullptr) << when;
        desktop.Key(VK_RETURN);
        EXPECT_EQ(nullptr, list.m_hWnd) << when;
    }
}
