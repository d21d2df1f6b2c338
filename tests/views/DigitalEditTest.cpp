// The numeric field under its keys. What it comes to under anything typed, pasted and set, the fuzzer knows.
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
    // "Home", "Back", "Delete": the keys; "All": all is selected; else a text that is typed.
    void Do(const std::string& step)
    {
        if (step == "All")
            field.SetSel(0, -1);
        else if (step == "Home" || step == "Back" || step == "Delete")
            desktop.Key(step == "Home" ? VK_HOME : step == "Back" ? VK_BACK : VK_DELETE);
        else
            desktop.Type(step.c_str());
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
        state += " " + std::to_string(std::exchange(pane.nChanges, 0));
        const std::string value = field.GetValue(nValue) ? std::to_string(nValue) : nValue == 4711 ? "none" : "touched";
        return value == text ? state : state + " = " + value;
    }

    Pane pane;
    CDigitalEdit field;
};

} // namespace

TEST_F(DigitalEditTest, ALeadingMinusIsTakenAndTheNumberIsPulledIntoTheRange)
{
    const struct
    {
        int nMin, nMax, nValue;
        std::vector<std::string> steps;
        const char* pszState;
    } rows[] = {
        {0, 100, 100, {"5"}, "100 2"}, // 1005, and what it became
        {100, 0, 4, {"2"}, "42 1"},
        {10, 20, 15, {"Back"}, "10 2"}, // 1 is below the range
        {-50, 50, 7, {"-"}, "7 0"},     // not at the start
        {-50, 50, 7, {"Home", "-"}, "-7 1"},
        {-50, 50, 7, {"All", "-"}, "- 1 = none"},  // in place of all
        {10, 20, 12, {"All", "Delete"}, "[10] 2"}, // emptied, refilled and selected
        {-5, 5, 3, {"Back", "4"}, "4 3"},
    };
    for (const auto& row : rows) {
        Begin(row.nMin, row.nMax, row.nValue);
        for (const std::string& step : row.steps)
            Do(step);
        EXPECT_EQ(row.pszState, State()) << row.steps.back();
    }
}

TEST_F(DigitalEditTest, ANewWindowBeginsWithANumber)
{
    field.SetDifferent();
    field.DestroyWindow();
    EXPECT_TRUE(field.IsDifferent());
    ASSERT_TRUE(field.Create(WS_CHILD, CRect(0, 0, 9, 9), &pane, kField));
    EXPECT_FALSE(field.IsDifferent());
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
