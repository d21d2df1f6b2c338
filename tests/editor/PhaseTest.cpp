// A phase in the user's hand: the frames that its list shows, and its timing, set in fields and kept in its file.
#include "Editor/model/PhaseTiming.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/Input.h"
#include "tests/editor/EditorFixture.h"

namespace
{

class PhaseFramesTest : public EditorTest
{
protected:
    PhaseFramesTest()
    {
        folder.Make("a.bmp b.bmp c.bmp d.bmp e.bmp Ada/x.bmp");
        folder.Write("Ada/walk.phase", kWalk);
        Open();
        Frame().MoveWindow(CRect(0, 0, 960, 720));
        DoubleClick("Ada");
        DoubleClick("walk.phase");
    }

    // A few pixels beside the middle of a frame: the gap at its left or right.
    CPoint Before(const char* pszName) { return PlaceOf(pszName) - CPoint(5, 0); }
    CPoint Behind(const char* pszName) { return PlaceOf(pszName) + CPoint(5, 0); }
    void DropAt(CPoint at) { DropOn(List(), at); }
    std::string Walk() { return folder.Read("Ada/walk.phase"); }

    static constexpr const char* kWalk = "#delay 80\na.bmp\nb.bmp\n# the turn\nc.bmp\nd.bmp\ne.bmp\n";
};

TEST_F(PhaseFramesTest, FramesDraggedBetweenOthersComeThereInTheirOrderInOneStep)
{
    EXPECT_EQ("[a.bmp b.bmp c.bmp d.bmp e.bmp]", Rows());
    Select({"d.bmp", "b.bmp"});
    Drag(List(), PlaceOf("b.bmp"), [&] { DropAt(Before("a.bmp")); });
    EXPECT_EQ("[(*b.bmp) (d.bmp) a.bmp c.bmp e.bmp]", Rows());
    EXPECT_EQ("#delay 80\nb.bmp\nd.bmp\na.bmp\n# the turn\nc.bmp\ne.bmp\n", Walk());
    Drag(List(), PlaceOf("b.bmp"), [&] { DropAt(Behind("e.bmp")); });
    EXPECT_EQ("[a.bmp c.bmp e.bmp (*b.bmp) (d.bmp)]", Rows());

    EXPECT_EQ("order of frames in \"walk.phase\"", NextUndo());
    Control('Z');
    Control('Z');
    EXPECT_EQ(kWalk, Walk());
    EXPECT_EQ("", NextUndo());
    Drag(List(), PlaceOf("c.bmp"), [&] { DropAt(Before("d.bmp")); });
    EXPECT_EQ(kWalk, Walk());
    EXPECT_EQ("", NextUndo()) << "nothing has changed its place";
    desktop.Hold({.control = true});
    Drag(List(), PlaceOf("c.bmp"), [&] { DropAt(Before("a.bmp")); });
    desktop.Hold({});
    EXPECT_EQ("[(*c.bmp) a.bmp b.bmp c.bmp d.bmp e.bmp]", Rows()) << "with Ctrl it is shown once more";
    EXPECT_EQ(Ledger(), TakeBoxes());
}

TEST_F(PhaseFramesTest, KeysMoveTheSelectedFramesOnePlaceAndTheyStaySelected)
{
    const auto move = [&](UINT vkey) {
        Key(vkey, {.shift = true, .alt = true});
        return Rows();
    };
    Select({"b.bmp", "c.bmp", "e.bmp"});
    EXPECT_EQ("[(*b.bmp) (c.bmp) a.bmp (e.bmp) d.bmp]", move(VK_LEFT));
    EXPECT_EQ("[(*b.bmp) (c.bmp) (e.bmp) a.bmp d.bmp]", move(VK_LEFT)) << "what is the first already stays";
    EXPECT_EQ("#delay 80\nb.bmp\nc.bmp\ne.bmp\na.bmp\n# the turn\nd.bmp\n", Walk());
    move(VK_LEFT);
    EXPECT_EQ("Frames one place earlier: nothing comes before them", News());
    EXPECT_EQ("[a.bmp (*b.bmp) (c.bmp) (e.bmp) d.bmp]", move(VK_RIGHT));
    EXPECT_EQ("order of frames in \"walk.phase\"", NextUndo());
    for (int i = 0; i < 3; ++i)
        Control('Z');
    EXPECT_EQ(kWalk, Walk());

    std::string lines;
    for (int i = 0; i < 300; ++i)
        lines += i % 2 ? "a.bmp\n" : "b.bmp\n";
    folder.Write("Ada/walk.phase", lines);
    desktop.Key(VK_F5);
    desktop.Key(VK_END);
    for (int i = 0; i < 150; ++i)
        move(VK_LEFT);
    const int nRow = Frame().GetList().GetFocusedRow();
    CRect row;
    Frame().GetList().GetItemRect(nRow, &row, LVIR_ICON);
    EXPECT_EQ(149, nRow);
    EXPECT_TRUE(row.top >= 0 && row.bottom <= ClientOf(List()).bottom) << "it stays in sight";
}

TEST_F(PhaseFramesTest, TheGapIsMarkedWhileADragIsOverIt)
{
    const auto marked = [&] {
        LVINSERTMARK mark{};
        SendMessage(List(), LVM_GETINSERTMARK, 0, reinterpret_cast<LPARAM>(&mark));
        return mark.iItem;
    };
    Drag(List(), PlaceOf("e.bmp"), [&] {
        EXPECT_EQ(-1, marked());
        desktop.MoveTo(List(), Before("c.bmp"));
        EXPECT_EQ(2, marked());
        desktop.MoveTo(Tree().m_hWnd, {5, 5});
        EXPECT_EQ(-1, marked());
        desktop.MoveTo(List(), Before("c.bmp"));
        desktop.Key(VK_ESCAPE);
    });
    EXPECT_EQ(-1, marked());
    EXPECT_EQ(kWalk, Walk());
}

TEST_F(PhaseFramesTest, PicturesFromElsewhereComeWhereTheyAreDropped)
{
    const TempFolder outside;
    outside.WriteBmp("far.bmp");
    const auto uri = [](const TempFolder& from, const char* pszName) { return "file://" + from.At(pszName) + "\r\n"; };
    desktop.DragIn({{"text/uri-list", uri(folder, "Ada/x.bmp")}});
    DropAt(Before("b.bmp"));
    EXPECT_EQ("[a.bmp (*x.bmp) b.bmp c.bmp d.bmp e.bmp]", Rows());
    EXPECT_EQ("new frames in \"walk.phase\"", NextUndo());
    desktop.DragIn({{"text/uri-list", uri(folder, "e.bmp") + uri(outside, "far.bmp") + uri(folder, "d.bmp")}});
    DropAt(Before("a.bmp"));
    Settle();
    EXPECT_EQ("[(*e.bmp) (d.bmp) a.bmp x.bmp b.bmp c.bmp d.bmp e.bmp]", Rows());
    EXPECT_EQ(
        Ledger({"Views: Not everything was taken: far.bmp: only pictures of the same library can be put into a phase"}),
        TakeBoxes());
    desktop.TakeClipboard({{"text/uri-list", uri(folder, "a.bmp") + uri(folder, "b.bmp")}});
    Control('V');
    EXPECT_EQ("[e.bmp d.bmp a.bmp x.bmp b.bmp c.bmp d.bmp e.bmp (*a.bmp) (b.bmp)]", Rows());
    Control('Z');
    Control('Z');
    Control('Z');
    EXPECT_EQ(kWalk, Walk());
}

TEST_F(PhaseFramesTest, FramesThatAreRemovedGoInOneStep)
{
    Select({"a.bmp", "c.bmp", "d.bmp"});
    Delete();
    EXPECT_EQ("#delay 80\nb.bmp\n# the turn\ne.bmp\n", Walk());
    EXPECT_EQ(Ledger({"Views: Remove 3 objects from the phase?"}), TakeBoxes());
    Control('Z');
    EXPECT_EQ(kWalk, Walk());
}

TEST(PhaseTimingTest, StandsInLinesOfItsOwnAndLeavesTheRestAlone)
{
    using editor::PhaseTiming;
    EXPECT_EQ((PhaseTiming{100, 1}), editor::TimingOf("a.bmp\n# delay 5\n"));
    EXPECT_EQ((PhaseTiming{80, 0}), editor::TimingOf("a.bmp\r\n#delay 80 \r\n#repeat 0"));
    EXPECT_EQ((PhaseTiming{100, 1}), editor::TimingOf("#delay 70000\n#delay 5\n#repeat x\n"));
    EXPECT_EQ("#delay 50\n#repeat 2\n# walk\na.bmp", editor::WithTiming("# walk\na.bmp", {50, 2}));
    EXPECT_EQ("a.bmp\r\n#delay 7\r\n", editor::WithTiming("a.bmp\r\n#delay 80\r\n", {7, 1}));
    EXPECT_EQ("#delay x\n", editor::WithTiming("#delay x\n", {100, 1}));
}

class PropertiesTest : public EditorTest
{
protected:
    PropertiesTest()
    {
        folder.Make("a.bmp");
        folder.Write("run.phase", "#delay 40\na.bmp\n");
        folder.Write("walk.phase", "#delay 80\na.bmp\n");
    }
    // "40 ms, 1 times | text", "<Different> ..." or the text alone.
    std::string Shown()
    {
        editor::CPropertiesPane& pane = Frame().GetProperties();
        desktop.Run();
        if (!pane.GetDelay().IsWindowVisible())
            return pane.GetText();
        return std::string(pane.GetDelay().GetWindowText()) + " ms, " + std::string(pane.GetRepeat().GetWindowText()) +
               " times | " + pane.GetText();
    }
    void SetDelayOfWalk(const char* pszDelay)
    {
        Open();
        Click("walk.phase");
        desktop.Key(VK_F4);
        desktop.Type(pszDelay);
    }
};

TEST_F(PropertiesTest, ANumberThatIsEnteredGoesToAllSelectedPhasesAndIsSavedByKey)
{
    Open();
    EXPECT_EQ("Select a phase to set its timing.", Shown());
    Click("run.phase");
    EXPECT_EQ("40 ms, 1 times | run.phase", Shown());
    Select({"run.phase", "walk.phase"});
    EXPECT_EQ("<Different> ms, 1 times | 2 phases", Shown());

    desktop.Key(VK_F4);
    desktop.Key(VK_SHIFT);
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ("<Different> ms, 1 times | 2 phases", Shown()) << "a field that was only looked at";
    EXPECT_EQ(List(), GetFocus());
    desktop.Key(VK_F4);
    desktop.Type("65");
    EXPECT_EQ("#delay 40\na.bmp\n", folder.Read("run.phase"));
    desktop.Key(VK_TAB);
    desktop.TakeClipboard({{"text/plain;charset=utf-8", "3"}});
    Control('V'); // as good as typed
    desktop.Key(VK_RETURN);
    EXPECT_EQ("65 ms, 3 times | 2 phases: not saved yet (Ctrl+S)", Shown());
    EXPECT_EQ("#delay 40\na.bmp\n", folder.Read("run.phase"));

    Control('S');
    EXPECT_EQ("65 ms, 3 times | 2 phases", Shown());
    EXPECT_EQ("#repeat 3\n#delay 65\na.bmp\n", folder.Read("run.phase"));
    EXPECT_EQ("#repeat 3\n#delay 65\na.bmp\n", folder.Read("walk.phase"));
    EXPECT_EQ(List(), GetFocus());
}

TEST_F(PropertiesTest, ClosingAsksWhatIsToBecomeOfWhatWasEntered)
{
    SetDelayOfWalk("7");
    const HWND hFrame = Frame().GetSafeHwnd();
    const auto close = [&](int nAnswer) {
        desktop.Answer(nAnswer);
        toolkit::InputClose(hFrame);
        desktop.Run();
        return TakeBoxes().size();
    };
    EXPECT_EQ(1u, close(IDCANCEL));
    EXPECT_EQ("#delay 80\na.bmp\n", folder.Read("walk.phase"));
    EXPECT_EQ("7 ms, 1 times | walk.phase: not saved yet (Ctrl+S)", Shown());
    EXPECT_EQ(1u, close(IDYES));
    EXPECT_EQ("#delay 7\na.bmp\n", folder.Read("walk.phase"));
    EXPECT_EQ(1, nClosed);
}

TEST_F(PropertiesTest, APhaseThatIsRenamedTakesItsNumbersAlongAndWhatCannotBeSavedIsToldAndKept)
{
    SetDelayOfWalk("7");
    desktop.Key(VK_RETURN);
    editor::CMember* const pWalk = editor::CMember::Of(Frame().GetList().GetAtom(2).Get());
    EXPECT_EQ("", Frame().GetCommands().GetPlain().Rename(pWalk, "stroll.phase"));
    Settle();
    const std::string stroll = folder.Read("stroll.phase");
    folder.Remove("stroll.phase");
    Control('S');
    EXPECT_EQ(Ledger({"Views: Not everything was saved: stroll.phase: no such file or directory"}), TakeBoxes());
    EXPECT_EQ("7 ms, 1 times | stroll.phase: not saved yet (Ctrl+S)", Shown());
    folder.Write("stroll.phase", stroll);
    Control('S');
    EXPECT_EQ(Ledger(), TakeBoxes());
    EXPECT_EQ("#delay 7\na.bmp\n", folder.Read("stroll.phase"));
}

} // namespace
