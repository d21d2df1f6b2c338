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
        desktop.Key(VK_END);
        pane.nChanges = 0;
    }
    void Control(char letter)
    {
        desktop.Hold({.control = true});
        desktop.Key(static_cast<UINT>(letter));
        desktop.Hold({});
    }
    // "Home", "Back", "Delete": the keys; "All": all is selected; "Cut": Ctrl+X; else a text that is typed.
    void Do(const std::string& step)
    {
        if (step == "All")
            field.SetSel(0, -1);
        else if (step == "Cut")
            Control('X');
        else if (step == "Home" || step == "Back" || step == "Delete")
            desktop.Key(step == "Home" ? VK_HOME : step == "Back" ? VK_BACK : VK_DELETE);
        else
            desktop.Type(step.c_str());
    }
    void Paste(const std::string& text) // over all there is
    {
        field.SetSel(0, -1);
        desktop.TakeClipboard({{"text/plain;charset=utf-8", text}});
        pane.nChanges = 0;
        Control('V');
    }

    // "[10] 2 = 10": the text, in brackets what is selected of it, how many changes the parent was told of since the
    // last time, and the value when it is another text. "different" when it is in that state.
    std::string State()
    {
        const std::string text(field.GetWindowText());
        int nStart = 0, nEnd = 0, nValue = 4711;
        field.GetSel(nStart, nEnd);
        std::string state = text;
        if (nStart != nEnd)
            state.insert(static_cast<std::size_t>(nEnd), "]").insert(static_cast<std::size_t>(nStart), "[");
        state += " " + std::to_string(std::exchange(pane.nChanges, 0)) + (field.IsDifferent() ? " different" : "");
        const std::string value = field.GetValue(nValue) ? std::to_string(nValue) : nValue == 4711 ? "none" : "touched";
        return value == text ? state : state + " = " + value;
    }

    Pane pane;
    CDigitalEdit field;
};

} // namespace

TEST_F(DigitalEditTest, OnlyDigitsAndALeadingMinusAreTakenAndTheNumberIsPulledIntoTheRange)
{
    const struct
    {
        int nMin, nMax, nValue;
        std::vector<std::string> steps;
        const char* pszState;
    } rows[] = {
        {0, 100, 100, {"5"}, "100 2"}, // 1005, and what it became
        {0, 100, 4, {"2"}, "42 1"},
        {10, 20, 15, {"Back"}, "10 2"}, // 1 is below the range
        {-50, 50, -6, {"0"}, "-50 2"},
        {0, 100, 7, {"a +.é", "Home", "-"}, "7 0"},
        {-50, 50, 7, {"-"}, "7 0"}, // not at the start
        {-50, 50, 7, {"Home", "-"}, "-7 1"},
        {-50, 50, 7, {"All", "-"}, "- 1 = none"}, // in place of all
        {-50, 50, 7, {"All", "-", "3"}, "-3 2"},
        {-50, 50, 7, {"All", "-", "3", "Back"}, "- 3 = none"}, // control characters pass
        {10, 20, 12, {"All", "Delete"}, "[10] 2"},             // emptied, refilled and selected
        {-5, 5, 3, {"Back"}, "[0] 2"},
        {-5, 5, 3, {"Back", "4"}, "4 3"},
        {-20, -10, -15, {"All", "Cut"}, "[-10] 3"}, // 0 is above the range
    };
    for (const auto& row : rows) {
        Begin(row.nMin, row.nMax, row.nValue);
        for (const std::string& step : row.steps)
            Do(step);
        EXPECT_EQ(row.pszState, State()) << row.steps.back();
    }
    field.SetWindowText("");
    EXPECT_EQ("[-10] 3", State());
}

TEST_F(DigitalEditTest, ValuesThatAreSetArePulledIntoTheRangeWhichHoldsFromTheNextChange)
{
    field.SetRange(100, 0);
    field.SetValue(500);
    EXPECT_EQ("100 2", State());
    field.SetValue(-1);
    EXPECT_EQ("0 2", State());
    field.SetValue(30);
    field.SetRange(40, 50);
    EXPECT_EQ("30 1", State());
    desktop.Key(VK_END);
    desktop.Type("1");
    EXPECT_EQ("50 2", State());
}

TEST_F(DigitalEditTest, WhatIsPastedIsNotFilteredAndReadAsFarAsItIsANumber)
{
    Begin(0, 100, 0);
    const std::pair<const char*, const char*> rows[] = {
        {"  42abc", "  42abc 1 = 42"}, {"  420abc", "100 2"}, {"four", "four 1 = none"}, {"+7", "+7 1 = 7"},
        {"- 7", "- 7 1 = none"}, // no digit follows the sign
    };
    for (const auto& [pszText, pszState] : rows) {
        Paste(pszText);
        EXPECT_EQ(pszState, State());
    }
    Control('Z');
    EXPECT_EQ("[+7] 1 = 7", State()) << "undone";
}

TEST_F(DigitalEditTest, TheMixedValueIsSelectedWithTheFocusAndAnyKeyEndsIt)
{
    Begin(10, 20, 12);
    field.SetDifferent();
    EXPECT_EQ("<Different> 1 different = none", State());
    pane.SetFocus();
    field.SetFocus();
    EXPECT_EQ("[<Different>] 0 different = none", State());
    desktop.Key(VK_SHIFT);
    EXPECT_EQ("[10] 2", State());

    field.SetDifferent();
    desktop.Type("1");
    EXPECT_EQ("10 5", State()) << "emptied, refilled, then 1, which is below the range";
    field.SetRange(-50, 100);
    field.SetDifferent();
    desktop.Type("5");
    EXPECT_EQ("5 4", State());
    field.SetDifferent();
    field.SetSel(11, 11);
    desktop.Type("-5"); // the minus is a key, too
    EXPECT_EQ("-5 5", State());
    field.SetDifferent();
    field.SetValue(8);
    EXPECT_EQ("8 2", State());
}

TEST_F(DigitalEditTest, TheMixedValueInCapitalsCountsAsSuchButIsNoMoreThanText)
{
    Begin(0, 100, 8);
    Paste("<DIFFERENT>");
    EXPECT_EQ("<DIFFERENT> 1 different = none", State());
    pane.SetFocus();
    field.SetFocus();
    desktop.Key(VK_SHIFT);
    EXPECT_EQ("<DIFFERENT> 0 different = none", State());
    desktop.Key(VK_BACK);
    EXPECT_EQ("<DIFFERENT 1 = none", State());
    Paste("<Different>");
    EXPECT_EQ("<Different> 1 different = none", State());

    field.DestroyWindow();
    EXPECT_TRUE(field.IsDifferent());
    ASSERT_TRUE(field.Create(WS_CHILD, CRect(0, 0, 9, 9), &pane, kField));
    EXPECT_FALSE(field.IsDifferent()) << "a new window begins anew";
}

TEST(NumbersTest, TextBecomesTheNumberThatItBeginsWith)
{
    const auto number = [](const char* pszText) {
        int nValue = 1;
        return StrToIntExA(pszText, STIF_DEFAULT, &nValue) ? nValue : nValue == 1 ? 0 : -1;
    };
    EXPECT_EQ(0, number(""));
    EXPECT_EQ(0, number("+-1"));
    EXPECT_EQ(INT_MIN, number(" \t-2147483648x"));
    EXPECT_EQ(1, number("4294967297")) << "the lower 32 bits";

    char buffer[33];
    EXPECT_STREQ("-2147483648", _itoa(INT_MIN, buffer, 10));
    EXPECT_STREQ("11111111111111111111111111111111", _itoa(-1, buffer, 2));
}
