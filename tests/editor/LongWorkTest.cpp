// Work that takes long: what the user sees of it, and what is left when it is cancelled.
#include "Editor/work/Questions.h"
#include "tests/editor/EditorFixture.h"

#include <filesystem>
#include <future>

namespace
{

// Long enough to be seen, and nothing but holes: what is read of it and written from it is zeros.
class LongWorkTest : public EditorTest
{
protected:
    LongWorkTest()
    {
        folder.WriteBmp("Ada/a.bmp");
        folder.Make("Ada/Long/ Bo/");
        folder.Write("Ada/Long/long.bmp", "");
        std::filesystem::resize_file(folder.At("Ada/Long/long.bmp"), 100 << 20);
    }

    // When the windows answer for the first time with the work so far on, and never again.
    void Once(std::function<bool()> isFarEnough, std::function<void()> script)
    {
        desktop.DuringWork([this, isFarEnough = std::move(isFarEnough), script = std::move(script)] {
            desktop.SetTicks(desktop.Ticks() + editor::LongWork::kUnseen);
            if (!isFarEnough())
                return;
            const auto once = script;
            desktop.DuringWork({});
            once();
        });
    }
    bool IsStripShown() { return ::IsWindowVisible(Frame().GetProgress().m_hWnd); }
};

TEST_F(LongWorkTest, ShowsHowFarItIsAndLetsNothingElseBeDone)
{
    Open();
    DoubleClick("Ada");
    Control('A');
    std::string seen, shown;
    Once([this] { return IsStripShown(); },
         [&] {
             seen = Frame().GetProgress().GetText();
             Press(VK_DELETE);
             Click("a.bmp");
             DoubleClick("a.bmp");
             shown = Rows();
         });
    Control('C');
    EXPECT_EQ("[(a.bmp) (Long)]", shown);
    EXPECT_EQ("Copying: ", seen.substr(0, 9));
    EXPECT_EQ(" of 105 MB", seen.substr(seen.find(" of ")));
    EXPECT_FALSE(IsStripShown());
    EXPECT_EQ(Ledger(), TakeBoxes());
    EXPECT_NE("", desktop.PublishedKinds());
}

TEST_F(LongWorkTest, ASlowDiskAnswersLaterAndHoldsUpNobody)
{
    editor::Questions questions;
    std::string heard;
    const auto ask = [&](std::function<bool()> question, const char* pszName) {
        const auto now = questions.Ask(std::move(question), [&heard, pszName](bool bAnswer) {
            heard += pszName + std::string(bAnswer ? ": yes " : ": no ");
        });
        return !now ? "later" : *now ? "yes" : "no";
    };
    std::promise<bool> slow;
    EXPECT_STREQ("later", ask([answer = slow.get_future().share()] { return answer.get(); }, "slow"));
    EXPECT_STREQ("later", ask([] { return false; }, "behind it"));
    slow.set_value(true);
    while (heard.find("behind") == heard.npos)
        desktop.Run();
    EXPECT_EQ("slow: yes behind it: no ", heard);
    EXPECT_STREQ("no", ask([] { return false; }, "fast"));
}

TEST_F(LongWorkTest, WhatIsCancelledLeavesWhatWasDoneAsOneStep)
{
    Open();
    DoubleClick("Ada");
    Control('A');
    Once([] { return true; }, [this] { desktop.Key(VK_ESCAPE); });
    Control('C');
    EXPECT_EQ("", desktop.PublishedKinds());
    EXPECT_EQ("Cancelled. Nothing was changed", News());

    Control('C');
    Press(VK_BACK);
    DoubleClick("Bo");
    Once([this] { return folder.Everything().find("Bo/a.bmp") != std::string::npos && IsStripShown(); },
         [this] {
             const CRect cancel = Frame().GetProgress().CancelRect();
             desktop.Click(Frame().GetProgress().m_hWnd, cancel.CenterPoint());
         });
    Control('V');
    EXPECT_EQ("/Bo/ | [(*a.bmp)] | 1 object, 1 selected | a.bmp: 8 x 8 pixels", Screen());
    EXPECT_EQ("Cancelled. Done: paste of \"a.bmp\". Ctrl+Z takes it back", News());
    EXPECT_EQ(Ledger(), TakeBoxes());
    Control('Z');
    EXPECT_EQ("Ada/ Ada/Long/ Ada/Long/long.bmp Ada/a.bmp Bo/", folder.Everything());
}

TEST_F(LongWorkTest, WhatIsLargeIsPastedByteForByteAsOftenAsOneLikes)
{
    std::string bytes(20 << 20, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 31 >> 8);
    folder.Write("Ada/Long/long.bmp", bytes);
    Open();
    DoubleClick("Ada");
    Click("Long");
    Control('C');
    folder.Remove("Ada/Long/long.bmp");
    Control('V');
    Control('V');
    EXPECT_EQ(Ledger(), TakeBoxes());
    EXPECT_TRUE(folder.Read("Ada/Long (2)/long.bmp") == bytes);
    EXPECT_TRUE(folder.Read("Ada/Long (3)/long.bmp") == bytes);
}

TEST_F(LongWorkTest, TheWindowIsClosedWhenTheWorkHasEnded)
{
    Open();
    DoubleClick("Ada");
    Control('A');
    Once([] { return true; }, [this] { toolkit::InputClose(Frame().m_hWnd); });
    Control('C');
    EXPECT_EQ("", desktop.PublishedKinds());
    EXPECT_EQ(1, nClosed);
}

} // namespace
