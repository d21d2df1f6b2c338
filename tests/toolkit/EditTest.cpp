// The edit control as its user and its parent see it.
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "tests/toolkit/EditFixture.h"

using namespace toolkit;

namespace
{

// Ten pixels a letter; the first run of capitals is written from right to left.
class Capitals : public TextEngine
{
public:
    Capitals() { InstallTextEngine(this); }
    ~Capitals() override { InstallTextEngine(nullptr); }

    int LineHeight() const override { return 12; }
    int Measure(std::string_view text, FontStyle) override { return 10 * static_cast<int>(text.size()); }
    std::vector<CharacterPlace> Places(std::string_view text, std::span<const std::size_t> starts,
                                       FontStyle style) override
    {
        auto places = TextEngine::Places(text, starts, style);
        const auto isCapital = [&](const CharacterPlace& place) { return std::isupper(text[place.leading / 10]); };
        const auto first = std::ranges::find_if(places, isCapital);
        const auto end = std::find_if_not(first, places.end(), isCapital);
        for (const int ends = first == end ? 0 : first->leading + (end - 1)->trailing;
             CharacterPlace & place : std::span(first, end))
            place = {ends - place.leading, ends - place.trailing};
        return places;
    }
    void Draw(Surface&, const CRect&, CPoint, std::string_view, COLORREF, FontStyle) override {}
};

} // namespace

TEST_F(EditTest, TypedTextGoesInPlaceOfTheSelectionAndEveryChangeIsTold)
{
    desktop.Type("aä");
    EXPECT_EQ("aä|", State());
    EXPECT_EQ(Ledger({"update", "change", "update", "change"}), TakeLedger());
    Key('A', kControl);
    desktop.Type("x");
    TakeLedger();
    Key(VK_RETURN);
    Key(VK_TAB);
    EXPECT_EQ("x|", AfterKey(VK_ESCAPE));
    EXPECT_EQ(Ledger(), TakeLedger());
    edit.SetWindowText("x"); // even to what it was
    EXPECT_EQ("|x", State());
    EXPECT_EQ(Ledger({"update", "change"}), TakeLedger());
    EXPECT_FALSE(edit.Undo()) << "nothing is left of what was typed";

    other.DestroyWindow();
    ASSERT_TRUE(other.CreateEx(0, "EDIT", "born", WS_CHILD, CRect(0, 0, 9, 9), &top, 1));
    EXPECT_EQ("born", other.GetWindowText());
    EXPECT_EQ(Ledger(), TakeLedger()) << "the text it is born with is no change";
}

TEST_F(EditTest, KeysMoveSelectAndDeleteByCharactersAndWords)
{
    struct Step
    {
        UINT vkey;
        Modifiers modifiers;
        const char* pszState;
    };
    const Step steps[] = {
        {VK_LEFT, {}, "walk le\u0301f|t"},
        {VK_LEFT, {}, "walk le\u0301|ft"},
        {VK_LEFT, {}, "walk l|e\u0301ft"}, // never between a letter and its mark
        {VK_LEFT, kBoth, "walk [l]e\u0301ft"},
        {VK_LEFT, kBoth, "[walk l]e\u0301ft"},
        {VK_RIGHT, {}, "walk l|e\u0301ft"}, // an arrow leaves the selection at its end
        {VK_END, kShift, "walk l[e\u0301ft]"},
        {VK_HOME, {}, "|walk le\u0301ft"},
        {VK_RIGHT, kControl, "walk |le\u0301ft"},
        {VK_DELETE, {}, "walk |e\u0301ft"},
        {VK_BACK, kControl, "|e\u0301ft"},
        {VK_BACK, {}, "|e\u0301ft"},
        {VK_DELETE, {}, "|ft"},
        {VK_END, kShift, "[ft]"},
        {VK_BACK, {}, "|"},
    };
    Set("walk le\u0301ft");
    for (const Step& step : steps)
        EXPECT_EQ(step.pszState, AfterKey(step.vkey, step.modifiers));
    EXPECT_EQ(8u, TakeLedger().size()) << "only deletions are changes";
}

TEST_F(EditTest, WhatIsReadFromRightToLeftHasItsCaretAndSelectionWhereItIsSeen)
{
    const Capitals engine;
    const auto afterKeys = [this](std::initializer_list<UINT> vkeys, Modifiers modifiers = {}) {
        std::vector<std::string> states;
        for (const UINT vkey : vkeys)
            states.push_back(AfterKey(vkey, modifiers));
        return states;
    };
    const auto selectedColumns = [this] { // in the line's middle, counted in letters
        const Surface seen = desktop.Dump(edit.m_hWnd);
        std::string columns;
        for (int x = 3 + 5; x < 3 + 70; x += 10)
            columns += seen.At(x + 1, 12) == ToPixel(GetSysColor(COLOR_HIGHLIGHT)) ? '#' : '.';
        return columns;
    };
    using States = std::vector<std::string>;
    Set("ABC"); // seen as CBA
    EXPECT_EQ(3, edit.PosFromChar(3).x);
    EXPECT_EQ(33, edit.PosFromChar(0).x);
    EXPECT_EQ(States({"ABC|", "AB|C", "A|BC", "|ABC", "|ABC"}),
              afterKeys({VK_LEFT, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RIGHT}));
    EXPECT_EQ(States({"[A]BC", "[AB]C"}), afterKeys({VK_LEFT, VK_LEFT}, kShift));
    EXPECT_EQ(".##....", selectedColumns());
    EXPECT_EQ("|ABC", AfterKey(VK_RIGHT)) << "leaves the selection at its right end";
    EXPECT_EQ(States({"ABC|", "|ABC"}), afterKeys({VK_LEFT, VK_RIGHT}, kControl));

    Set("ab CDE"); // seen as ab EDC
    edit.SetSel(1, 4);
    EXPECT_EQ(".##..#.", selectedColumns()) << "what is read in one go is seen in two parts";
    desktop.Click(edit.m_hWnd, {3 + 42, 10});
    EXPECT_EQ("ab CD|E", State());
    desktop.Type("F");
    EXPECT_EQ("ab CDF|E", State());
    desktop.DoubleClick(edit.m_hWnd, {3 + 32, 10});
    EXPECT_EQ("ab [CDFE]", State());
}

TEST_F(EditTest, TheClipboardKeysCutCopyPasteAndUndoOneStep)
{
    Set("walk left");
    Key('C', kControl);
    EXPECT_EQ("-", Clipboard()) << "nothing is selected";
    edit.SetSel(5, -1);
    EXPECT_EQ("walk |", AfterKey('X', kControl));
    EXPECT_EQ("left", Clipboard());
    Key('V', kControl);
    EXPECT_EQ("walk leftleft|", AfterKey(VK_INSERT, kShift));
    EXPECT_EQ("walk left|", AfterKey('Z', kControl));
    EXPECT_EQ("walk leftleft|", AfterKey(VK_BACK, kAlt)) << "undone twice is done again";
    desktop.Type("ab");
    EXPECT_EQ("walk leftleft|", AfterKey('Z', kControl)) << "what is typed in one go";
    desktop.Type("a");
    Key(VK_LEFT);
    desktop.Type("b");
    EXPECT_EQ("walk leftleft|a", AfterKey('Z', kControl)) << "elsewhere another thing begins";
    edit.SetWindowText("walk leftleft");
    edit.SetSel(0, 4);
    Key(VK_INSERT, kControl);
    EXPECT_EQ("walk", Clipboard());
    EXPECT_EQ("| leftleft", AfterKey(VK_DELETE, kShift));
    TakeClipboard("\r\nfirst \tline\nsecond");
    Key('A', kControl);
    EXPECT_EQ("first \tline|", AfterKey('V', kControl)) << "a single line takes one line";

    edit.LimitText(4); // cuts between characters, and says so
    Set("abc");
    TakeClipboard("€");
    EXPECT_EQ("abc|", AfterKey('V', kControl));
    EXPECT_EQ(Ledger({"too long"}), TakeLedger());
    TakeClipboard("xyz");
    EXPECT_EQ("abcx|", AfterKey('V', kControl));
    EXPECT_EQ(Ledger({"update", "change", "too long"}), TakeLedger());
    edit.SetSel(0, 2);
    desktop.Type("ä");
    EXPECT_EQ("ä|cx", State()) << "what it replaces makes room";
}

TEST_F(EditTest, TheContextMenuOffersWhatCanBeDoneNow)
{
    desktop.Type("ab");
    desktop.Choose("Select All");
    desktop.Click(edit.m_hWnd, At(1), MouseButton::Right);
    EXPECT_EQ("[ab]", State());
    desktop.Choose("Cut");
    EXPECT_EQ("|", AfterKey(VK_F10, kShift));
    EXPECT_EQ("ab", Clipboard());
    desktop.Choose("Paste");
    EXPECT_EQ("ab|", AfterKey(VK_APPS));
    EXPECT_EQ(std::vector<std::string>({"[Undo | - | (Cut) | (Copy) | Paste | (Delete) | - | Select All]",
                                        "[Undo | - | Cut | Copy | Paste | Delete | - | (Select All)]",
                                        "[Undo | - | (Cut) | (Copy) | Paste | (Delete) | - | (Select All)]"}),
              desktop.TakeMenus());
}

TEST_F(EditTest, PositionsAreBytesAndOnesInsideACharacterCountAsItsStart)
{
    Set("a€e\u0301x");
    edit.SetSel(2, 6);
    EXPECT_EQ("a[€]e\u0301x", State());
    edit.SetSel(0, -1);
    EXPECT_EQ(MAKELONG(0, 8), edit.SendMessage(EM_GETSEL));
    edit.SetSel(-1, 0);
    EXPECT_EQ("a€e\u0301x|", State()) << "the caret was at the end";
    edit.SetSel(4, 1);
    EXPECT_EQ("[a€]e\u0301x", AfterKey(VK_LEFT, kShift)) << "the second position is the caret's";
    edit.ReplaceSel("b", TRUE);
    EXPECT_EQ("b|e\u0301x", State());
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ("[a€]e\u0301x", State());
}

TEST_F(EditTest, TheMousePlacesTheCaretAndSelectsByDraggingByWordsAndWithShift)
{
    Set("walk left.png");
    desktop.Click(edit.m_hWnd, At(2));
    EXPECT_EQ("wa|lk left.png", State());
    desktop.Hold(kShift);
    desktop.Click(edit.m_hWnd, At(6));
    desktop.Hold({});
    EXPECT_EQ("wa[lk l]eft.png", State());
    desktop.Press(edit.m_hWnd, At(7));
    desktop.MoveTo(edit.m_hWnd, At(1));
    EXPECT_EQ("w[alk le]ft.png", State());
    desktop.MoveTo(other.m_hWnd, {-30, 5});
    EXPECT_EQ("[walk le]ft.png", State()) << "the mouse is captured";
    desktop.Release(edit.m_hWnd, At(1));
    EXPECT_EQ(nullptr, ::GetCapture());

    desktop.DoubleClick(edit.m_hWnd, At(9) - CPoint(2, 0)); // the right half of the last letter
    EXPECT_EQ("walk [left].png", State());
    desktop.Click(edit.m_hWnd, At(0));
    desktop.Press(edit.m_hWnd, At(0)); // the second press of a double click
    desktop.MoveTo(edit.m_hWnd, At(6));
    EXPECT_EQ("[walk left].png", State()) << "a drag after a double click takes words";
    desktop.Release(edit.m_hWnd, At(6));
    EXPECT_EQ(Cursor::Text, desktop.CurrentCursor());
    desktop.MoveTo(edit.m_hWnd, {-1, -1}); // on its border
    EXPECT_EQ(Cursor::Arrow, desktop.CurrentCursor());
}

TEST_F(EditTest, LongTextScrollsWithTheCaretAndUnderTheMouseHeldOutside)
{
    Set("a long text that does not fit the field at all");
    const auto nEnd = static_cast<UINT>(edit.GetWindowText().GetLength());
    EXPECT_NEAR(92, edit.PosFromChar(nEnd).x, 3) << "no farther than needed";
    Key(VK_HOME);
    edit.SetSel(0, -1, TRUE);
    EXPECT_EQ(3, edit.PosFromChar(0).x) << "selecting does not scroll when told not to";
    desktop.Press(edit.m_hWnd, At(2));
    desktop.MoveTo(edit.m_hWnd, {150, 5});
    desktop.Advance(3000);
    EXPECT_EQ("a [long text that does not fit the field at all]", State());
    desktop.Release(edit.m_hWnd, {150, 5});
    Key(VK_END);
    for (int i = 0; i < 40; ++i)
        Key(VK_BACK);
    EXPECT_EQ(3, edit.PosFromChar(0).x) << "no empty room is left at the right";
}

TEST_F(EditTest, TheCaretBlinksWhileTheFieldHasTheFocusAndStaysOnWhileItIsUsed)
{
    const auto isCaretSeen = [this](const CEdit& field, UINT at) {
        const CPoint place = field.PosFromChar(at) + CPoint(field.GetStyle() & WS_BORDER ? 1 : 0, 4);
        return desktop.Dump(field.m_hWnd).At(place.x, place.y) == ToPixel(GetSysColor(COLOR_WINDOWTEXT));
    };
    Set("");
    EXPECT_TRUE(isCaretSeen(edit, 0));
    desktop.Advance(530);
    EXPECT_FALSE(isCaretSeen(edit, 0));
    desktop.Advance(930);
    desktop.Type(" ");
    desktop.Advance(400);
    EXPECT_TRUE(isCaretSeen(edit, 1)) << "typing starts it anew";
    other.SetFocus();
    EXPECT_FALSE(isCaretSeen(edit, 1));
    EXPECT_TRUE(isCaretSeen(other, 0));
}

TEST_F(EditTest, AFieldThatIsDestroyedOrSetAnewByWhoHearsOfItsChangeIsSafe)
{
    top.meanwhile = [this](const std::string& line) {
        if (line == "update" && edit.GetWindowText() == "ab")
            edit.SetWindowText("anew");
        if (line == "change" && edit.GetWindowText().GetLength() > 5)
            edit.DestroyWindow();
    };
    desktop.Type("ab");
    EXPECT_EQ("|anew", State());
    desktop.Type("xyz");
    EXPECT_EQ(nullptr, edit.m_hWnd);
}
