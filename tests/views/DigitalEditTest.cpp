// The numeric field, driven by keys and by what is pasted.
#include "Toolkit/base/Numbers.h"
#include "Views/controls/controls.h"
#include "tests/support/DesktopTest.h"

#include <climits>

namespace
{

class Pane : public CWnd
{
public:
    int nChanges = 0;

protected:
    afx_msg void OnFieldChange() { ++nChanges; }
    DECLARE_MESSAGE_MAP()
};

constexpr UINT kField = 5;

BEGIN_MESSAGE_MAP(Pane, CWnd)
    ON_CONTROL(EN_CHANGE, kField, OnFieldChange)
END_MESSAGE_MAP()

class DigitalEditTest : public DesktopTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(pane.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr, 0));
        ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 30), &pane, kField));
        field.SetFocus();
    }

    // A text without notice taken of it: the field is left with it, the caret at its end.
    void Begin(int nMin, int nMax, int nValue)
    {
        field.SetRange(nMin, nMax);
        field.SetValue(nValue);
        Key(VK_END);
        pane.nChanges = 0;
    }
    void Key(UINT vkey) { desktop.Key(vkey); }
    void Control(char letter)
    {
        desktop.Hold({.control = true});
        desktop.Key(static_cast<UINT>(letter));
        desktop.Hold({});
    }
    void Paste(const std::string& text) // over all there is
    {
        field.SetSel(0, -1);
        desktop.TakeClipboard({{"text/plain;charset=utf-8", text}});
        pane.nChanges = 0;
        Control('V');
    }

    // "[10] 2": the text, in brackets what is selected of it, and how many changes the parent was told of since the
    // last time. "different" when it is in that state.
    std::string State()
    {
        std::string text(field.GetWindowText());
        int nStart = 0, nEnd = 0;
        field.GetSel(nStart, nEnd);
        if (nStart != nEnd)
            text.insert(static_cast<std::size_t>(nEnd), "]").insert(static_cast<std::size_t>(nStart), "[");
        return text + " " + std::to_string(std::exchange(pane.nChanges, 0)) + (field.IsDifferent() ? " different" : "");
    }
    std::string Value() const
    {
        int nValue = 4711;
        return field.GetValue(nValue) ? std::to_string(nValue) : nValue == 4711 ? "none" : "touched";
    }

    Pane pane;
    CDigitalEdit field;
};

} // namespace

TEST_F(DigitalEditTest, ANumberBeyondTheRangeIsPulledBackAsItIsTyped)
{
    Begin(0, 100, 100);
    desktop.Type("5");
    EXPECT_EQ("100 2", State()) << "1005, and what it became";
    Begin(0, 100, 4);
    desktop.Type("2");
    EXPECT_EQ("42 1", State());
    Begin(10, 20, 15);
    Key(VK_BACK);
    EXPECT_EQ("10 2", State()) << "1 is below the range";
    Begin(-50, 50, -6);
    desktop.Type("0");
    EXPECT_EQ("-50 2", State());
}

TEST_F(DigitalEditTest, OnlyDigitsAndALeadingMinusWhereTheRangeHasOneAreTaken)
{
    Begin(0, 100, 7);
    desktop.Type("a +.é");
    EXPECT_EQ("7 0", State());
    Key(VK_HOME);
    desktop.Type("-");
    EXPECT_EQ("7 0", State());

    Begin(-50, 50, 7);
    desktop.Type("-");
    EXPECT_EQ("7 0", State()) << "not at the start";
    Key(VK_HOME);
    desktop.Type("-");
    EXPECT_EQ("-7 1", State());
    field.SetSel(0, -1);
    desktop.Type("-");
    EXPECT_EQ("- 1", State()) << "in place of all";
    EXPECT_EQ("none", Value());
    desktop.Type("3");
    EXPECT_EQ("-3 1", State());
    EXPECT_EQ("-3", Value());
    Key(VK_BACK);
    EXPECT_EQ("- 1", State()) << "control characters pass";
}

TEST_F(DigitalEditTest, AnEmptiedFieldIsRefilledAndSelectedSoThatADigitReplacesIt)
{
    Begin(10, 20, 12);
    field.SetSel(0, -1);
    Key(VK_DELETE);
    EXPECT_EQ("[10] 2", State());
    Begin(-5, 5, 3);
    Key(VK_BACK);
    EXPECT_EQ("[0] 2", State());
    desktop.Type("4");
    EXPECT_EQ("4 1", State());
    Begin(-20, -10, -15);
    field.SetSel(0, -1);
    Control('X');
    EXPECT_EQ("[-10] 3", State()) << "0 is above the range";
    field.SetWindowText("");
    EXPECT_EQ("[-10] 3", State());
}

TEST_F(DigitalEditTest, ValuesThatAreSetArePulledIntoTheRangeWhichHoldsFromTheNextChange)
{
    field.SetRange(100, 0);
    field.SetValue(500);
    EXPECT_EQ("100 2", State());
    EXPECT_EQ("100", Value());
    field.SetValue(-1);
    EXPECT_EQ("0 2", State());
    field.SetValue(30);
    field.SetRange(40, 50);
    EXPECT_EQ("30 1", State());
    Key(VK_END);
    desktop.Type("1");
    EXPECT_EQ("50 2", State());
}

TEST_F(DigitalEditTest, WhatIsPastedIsNotFilteredAndReadAsFarAsItIsANumber)
{
    Begin(0, 100, 0);
    Paste("  42abc");
    EXPECT_EQ("  42abc 1", State());
    EXPECT_EQ("42", Value());
    Paste("  420abc");
    EXPECT_EQ("100 2", State());
    Paste("four");
    EXPECT_EQ("four 1", State());
    EXPECT_EQ("none", Value());
    Paste("+7");
    EXPECT_EQ("+7 1", State());
    EXPECT_EQ("7", Value());
    Paste("- 7");
    EXPECT_EQ("- 7 1", State()) << "no digit follows the sign";
    EXPECT_EQ("none", Value());
    Control('Z');
    EXPECT_EQ("[+7] 1", State()) << "undone";
}

TEST_F(DigitalEditTest, TheMixedValueIsSelectedWithTheFocusAndAnyKeyEndsIt)
{
    Begin(10, 20, 12);
    field.SetDifferent();
    EXPECT_EQ("<Different> 1 different", State());
    EXPECT_EQ("none", Value());
    pane.SetFocus();
    field.SetFocus();
    EXPECT_EQ("[<Different>] 0 different", State());
    Key(VK_SHIFT);
    EXPECT_EQ("[10] 2", State());

    field.SetDifferent();
    pane.nChanges = 0;
    desktop.Type("1");
    EXPECT_EQ("10 4", State()) << "emptied, refilled, then 1, which is below the range";
    field.SetRange(0, 100);
    field.SetDifferent();
    pane.nChanges = 0;
    desktop.Type("5");
    EXPECT_EQ("5 3", State());
    field.SetDifferent();
    field.SetValue(8);
    EXPECT_EQ("8 2", State());
}

TEST_F(DigitalEditTest, TheMixedValueInCapitalsCountsAsSuchButIsNoMoreThanText)
{
    Begin(0, 100, 8);
    Paste("<DIFFERENT>");
    EXPECT_EQ("<DIFFERENT> 1 different", State());
    pane.SetFocus();
    field.SetFocus();
    EXPECT_EQ("<DIFFERENT> 0 different", State());
    Key(VK_SHIFT);
    EXPECT_EQ("<DIFFERENT> 0 different", State());
    Key(VK_BACK);
    EXPECT_EQ("<DIFFERENT 1", State());
    Paste("<Different>");
    EXPECT_EQ("<Different> 1 different", State());

    field.DestroyWindow();
    EXPECT_TRUE(field.IsDifferent());
    ASSERT_TRUE(field.Create(WS_CHILD, CRect(0, 0, 9, 9), &pane, kField));
    EXPECT_FALSE(field.IsDifferent()) << "a new window begins anew";
}

TEST(NumbersTest, TextBecomesTheNumberThatItBeginsWith)
{
    int nValue = 1;
    EXPECT_FALSE(StrToIntExA("", STIF_DEFAULT, &nValue));
    EXPECT_FALSE(StrToIntExA("+-1", STIF_DEFAULT, &nValue));
    EXPECT_EQ(1, nValue);
    EXPECT_TRUE(StrToIntExA(" \t-2147483648x", STIF_DEFAULT, &nValue));
    EXPECT_EQ(INT_MIN, nValue);
    EXPECT_TRUE(StrToIntExA("4294967297", STIF_DEFAULT, &nValue));
    EXPECT_EQ(1, nValue) << "the lower 32 bits";

    char buffer[33];
    EXPECT_STREQ("-2147483648", _itoa(INT_MIN, buffer, 10));
    EXPECT_STREQ("11111111111111111111111111111111", _itoa(-1, buffer, 2));
}
