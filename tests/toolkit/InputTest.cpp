#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

namespace
{

using toolkit::MouseButton;

class InputTest : public DesktopTest, public LedgerBook
{
protected:
    InputTest()
    {
        frame.Show(nullptr, {100, 50, 300, 150}); // screen
        a.Show(&frame, {10, 10, 60, 60}, WS_BORDER);
        b.Show(&frame, {70, 10, 120, 60});
        inner.Show(&a, {5, 5, 25, 25});
    }

    // What was written since the last time, only lines with one of the words.
    Ledger LinesWith(std::initializer_list<std::string_view> words)
    {
        Ledger lines = TakeLedger();
        std::erase_if(lines, [&](const std::string& line) {
            return std::none_of(words.begin(), words.end(), [&](auto word) { return line.find(word) != line.npos; });
        });
        return lines;
    }

    static const std::set<UINT> kInput;
    SpyWnd frame{"frame", *this, kInput}, a{"a", *this, kInput}, b{"b", *this, kInput}, inner{"inner", *this, kInput};
};
const std::set<UINT> InputTest::kInput = {WM_MOUSEMOVE,   WM_MOUSELEAVE, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK,
                                          WM_RBUTTONDOWN, WM_MOUSEWHEEL, WM_KEYDOWN,     WM_CHAR};

TEST_F(InputTest, TheMouseGoesToTheInnermostWindowUnderItAndLeavesTheOther)
{
    desktop.MoveTo(inner.m_hWnd, {1, 2});
    POINT cursor{};
    GetCursorPos(&cursor);
    EXPECT_EQ(CPoint(117, 68), CPoint(cursor)); // frame, child, border, inner
    EXPECT_EQ(inner.m_hWnd, WindowFromPoint(cursor));
    desktop.MoveTo(a.m_hWnd, {40, 40});
    desktop.MoveTo(a.m_hWnd, {-1, 20}); // its border
    EXPECT_EQ(Ledger({"inner MOUSEMOVE 1,2", "inner MOUSELEAVE", "a MOUSEMOVE 40,40", "a MOUSELEAVE"}), TakeLedger());
    desktop.MoveTo(b.m_hWnd, {3, 3});
    EXPECT_EQ(Ledger({"b MOUSEMOVE 3,3"}), TakeLedger());

    SetCapture(b.m_hWnd);
    desktop.MoveTo(inner.m_hWnd, {0, 0});
    ReleaseCapture();
    toolkit::InputMouseLeave(frame.m_hWnd);
    desktop.Run();
    EXPECT_EQ(Ledger({"b MOUSEMOVE -54,6", "b MOUSELEAVE"}), TakeLedger());

    toolkit::InputMouseMove(frame.m_hWnd, {1, 1}, {});
    toolkit::InputMouseMove(frame.m_hWnd, {2, 2}, {}); // movements in a row are the last one
    toolkit::InputMouseButton(frame.m_hWnd, {3, 3}, MouseButton::Left, true, {});
    desktop.Run();
    EXPECT_GT(0, GetKeyState(VK_LBUTTON));
    EXPECT_EQ(Ledger({"frame MOUSEMOVE 2,2", "frame LBUTTONDOWN 3,3"}), TakeLedger());

    SetFocus(b.m_hWnd);
    a.Answer(WM_MOUSEWHEEL, 0);
    desktop.Wheel(inner.m_hWnd, {1, 1}, -2); // to what is under the mouse, and from there up
    EXPECT_EQ(Ledger({"frame MOUSELEAVE", "inner MOUSEMOVE 1,1", "inner MOUSEWHEEL -240 at 117,67",
                      "a MOUSEWHEEL -240 at 117,67"}),
              TakeLedger());
}

TEST_F(InputTest, TwoQuickPressesInOnePlaceAreADoubleClick)
{
    const auto press = [&](CWnd& wnd, CPoint at, MouseButton button = MouseButton::Left) {
        desktop.Press(wnd.m_hWnd, at, button);
        desktop.Release(wnd.m_hWnd, at, button);
        return LinesWith({"BUTTONDOWN", "DBLCLK"}).at(0);
    };
    EXPECT_EQ("b LBUTTONDOWN 10,10", press(b, {10, 10}));
    desktop.Advance(499);
    EXPECT_EQ("b LBUTTONDBLCLK 14,6", press(b, {14, 6}));
    EXPECT_EQ("b LBUTTONDOWN 14,6", press(b, {14, 6})); // the third one begins anew
    desktop.Advance(500);
    EXPECT_EQ("b LBUTTONDOWN 14,6", press(b, {14, 6})); // too late
    EXPECT_EQ("b LBUTTONDOWN 19,6", press(b, {19, 6})); // too far
    EXPECT_EQ("b RBUTTONDOWN 19,6", press(b, {19, 6}, MouseButton::Right));
    EXPECT_EQ("frame LBUTTONDOWN 69,30", press(frame, {69, 30})); // another window
}

class SwallowingWnd : public SpyWnd
{
public:
    using SpyWnd::SpyWnd;
    UINT swallowed = 0;

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        SpyWnd::PreTranslateMessage(pMsg);
        return pMsg->message == WM_KEYDOWN && pMsg->wParam == swallowed;
    }
};

TEST_F(InputTest, KeysAreOfferedToTheFocusAndItsAncestorsAndBecomeTheCharactersTheyType)
{
    SwallowingWnd pane("pane", *this, {WM_KEYDOWN, WM_CHAR});
    pane.Show(&frame, {0, 70, 100, 100});
    SpyWnd field("field", *this, {WM_KEYDOWN, WM_KEYUP, WM_CHAR});
    field.Show(&pane, {0, 0, 10, 10});
    desktop.Key(VK_RETURN); // no focus, nobody
    EXPECT_EQ(Ledger(), TakeLedger());
    SetFocus(field.m_hWnd);
    pane.swallowed = VK_RETURN;
    desktop.Key(VK_RETURN);
    EXPECT_EQ(
        Ledger({"field is asked of KEYDOWN", "pane is asked of KEYDOWN", "field is asked of KEYUP", "field KEYUP 13"}),
        TakeLedger());
    desktop.Key(VK_BACK);
    EXPECT_EQ(Ledger({"field KEYDOWN 8", "field CHAR 8", "field KEYUP 8"}),
              LinesWith({"field KEYDOWN", "field CHAR", "field KEYUP"}));

    SetFocus(b.m_hWnd);
    desktop.Type("aé\U0001F600\n\xFF");
    desktop.Key(VK_ESCAPE);
    desktop.Key(VK_LEFT);
    desktop.Hold({.control = true});
    desktop.Key('C');
    EXPECT_GT(0, GetKeyState(VK_CONTROL));
    desktop.Hold({});
    EXPECT_EQ(Ledger({"b CHAR 97", "b CHAR 233", "b CHAR 128512", "b CHAR 27", "b CHAR 3"}), LinesWith({"b CHAR"}));
    desktop.Type("7-\"");
    EXPECT_EQ(Ledger({"b KEYDOWN 55", "b CHAR 55", "b KEYDOWN 189", "b CHAR 45", "b KEYDOWN 255", "b CHAR 34"}),
              LinesWith({"b CHAR", "b KEYDOWN"})); // each is a key's
}

} // namespace
