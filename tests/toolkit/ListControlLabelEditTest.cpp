// Renaming in place in the list control.
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

TEST_F(ListLabelEditTest, OnlyASlowSecondClickOnTheOneSelectedLabelStartsIt)
{
    desktop.Click(list.m_hWnd, LabelOf(1));
    EXPECT_EQ("[b]", TwoSecondsLater());
    EXPECT_EQ(Ledger({"click b", "edit b 'b'?", "focus goes"}), TakeLedger());
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(Ledger({"focus comes", "edited b not"}), TakeLedger());

    const std::pair<const char*, std::function<void()>> others[] = {
        {"a double click opens", [&] { desktop.DoubleClick(list.m_hWnd, LabelOf(1)); }},
        {"a key came between", [&] { desktop.Click(list.m_hWnd, LabelOf(1)), desktop.Key(VK_HOME); }},
        {"the click only brought the user back",
         [&] {
             InputActivate(top.m_hWnd, false);
             InputActivate(top.m_hWnd, true);
             desktop.Click(list.m_hWnd, LabelOf(0));
         }},
        {"a drag", [&] { AfterDrag(0); }},
        {"one of two", [&] { Click(3, kControl), desktop.Click(list.m_hWnd, LabelOf(3)); }},
    };
    for (const auto& [pszWhy, action] : others) {
        action();
        EXPECT_EQ("-", TwoSecondsLater()) << pszWhy;
    }
}

TEST_F(ListLabelEditTest, TheFocusElsewhereTakesTheTextButAnotherWindowDoesNot)
{
    CWnd second; // another window of the program
    ASSERT_TRUE(second.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr, 0));
    Begin(1);
    desktop.Type("left");
    InputActivate(top.m_hWnd, false);
    InputActivate(second.m_hWnd, true);
    desktop.Run();
    EXPECT_EQ(second.m_hWnd, ::GetFocus());
    InputActivate(second.m_hWnd, false);
    InputActivate(top.m_hWnd, true);
    desktop.Type("!");
    EXPECT_EQ("left!|", FieldText());
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

TEST_F(ListLabelEditTest, TheFieldGrowsWithItsTextFollowsItsRowAndNeverNamesAnother)
{
    Fill(60);
    Begin(4);
    const CRect first = FieldRect(Field());
    desktop.Type("a name that needs");
    const CRect grown = FieldRect(Field());
    EXPECT_LT(first.Width(), grown.Width());
    EXPECT_NEAR(first.CenterPoint().x, grown.CenterPoint().x, 1);
    desktop.Type(" far more room than there is, whichever way the field may grow, so that it scrolls");
    CRect client;
    list.GetClientRect(&client);
    EXPECT_EQ(client.Width(), FieldRect(Field()).Width());
    desktop.Wheel(list.m_hWnd, {10, 10}, -1);
    EXPECT_EQ(first.top - 96, FieldRect(Field()).top);
    list.MoveEditLabel(0); // e is the first one now
    TakeLedger();
    SetWindowText(Field(), "left");
    desktop.Key(VK_RETURN);
    EXPECT_EQ(Ledger({"focus comes", "edited a 'left'"}), TakeLedger());

    Begin(4);
    list.MoveEditLabel(-1);
    EXPECT_EQ(Ledger({"focus comes", "edited e not"}), TakeLedger());
    Begin(4);
    list.SetItemCount(3);
    EXPECT_EQ(Ledger({"focus comes", "edited e not"}), TakeLedger());
    EXPECT_EQ(nullptr, Field());
}
