// The timing of phases: set in fields, kept in their files.
#include "Editor/model/PhaseTiming.h"
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/Input.h"
#include "tests/editor/EditorFixture.h"

namespace
{

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
