// What every desktop promises, tried on each of them from outside.
#include "Toolkit/desktop/MessageBoxTypes.h"
#include "tests/desktop/Stage.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <utility>

std::string Stage::Hear(const std::string& beginning)
{
    for (;;)
        if (const std::string line = NextLine(); line.empty() || line.starts_with(beginning))
            return line;
}

std::string Stage::Ask(const std::string& command, const std::string& beginning)
{
    Tell(command);
    return Hear(beginning);
}

void Stage::Do(const std::string& command)
{
    Ask(command, "done");
}

namespace
{

struct Desktop
{
    const char* pszName;
    std::unique_ptr<Stage> (*make)();
    const char* pszBetween = "move"; // what a drag to another program does
};

// Under Wayland a target is not told whether Ctrl is held, nor what the source proposes: it copies.
constexpr Desktop kHeadless{"Headless", MakeHeadlessStage}, kX11{"X11", MakeX11Stage},
    kWayland{"Wayland", MakeWaylandStage, "copy"};

void PrintTo(const Desktop& desktop, std::ostream* pStream)
{
    *pStream << desktop.pszName;
}

class ContractTest : public testing::TestWithParam<Desktop>
{
protected:
    void SetUp() override
    {
        if (const std::string missing = stage.Missing(); !missing.empty())
            GTEST_SKIP() << missing << " is missing";
        ASSERT_TRUE(stage.Start());
        stage.Do("ignore active");
    }

    const std::unique_ptr<Stage> m_stage = GetParam().make();
    Stage& stage = *m_stage;
};

std::string NameOf(const testing::TestParamInfo<Desktop>& info)
{
    return info.param.pszName;
}

class EveryDesktop : public ContractTest
{};
INSTANTIATE_TEST_SUITE_P(Contract, EveryDesktop, testing::Values(kHeadless, kX11, kWayland), NameOf);

// The headless desktop answers menus and message boxes at once: nothing happens meanwhile.
class Screens : public ContractTest
{};
INSTANTIATE_TEST_SUITE_P(Contract, Screens, testing::Values(kX11, kWayland), NameOf);

// Wayland tells programs neither where their windows are nor that the user has moved them, and gives Escape to nobody
// while something is dragged.
class NotOnWayland : public ContractTest
{};
INSTANTIATE_TEST_SUITE_P(Contract, NotOnWayland, testing::Values(kHeadless, kX11), NameOf);

// Under Wayland a drag lasts as long as its target takes with the drop, which may be for ever; without a screen there
// is no such target.
class OnlyX11 : public ContractTest
{};
INSTANTIATE_TEST_SUITE_P(Contract, OnlyX11, testing::Values(kX11), NameOf);

// The clipboard is the active program's, elsewhere it is everybody's; and see NotOnWayland.
class OnlyWayland : public ContractTest
{};
INSTANTIATE_TEST_SUITE_P(Contract, OnlyWayland, testing::Values(kWayland), NameOf);

TEST_P(EveryDesktop, AWindowIsSeenInItsSizeAsLongAsItIsShown)
{
    EXPECT_TRUE(stage.IsSeen({200, 120}));
    stage.Do("heed size");
    EXPECT_EQ("size 320,90", stage.Ask("place 100 100 420 190"));
    EXPECT_TRUE(stage.IsSeen({320, 90}));
    stage.Do("hide");
    EXPECT_TRUE(stage.IsSeen({0, 0}));
    stage.Do("show");
    EXPECT_TRUE(stage.IsSeen({320, 90}));
    stage.Do("vanish");
    EXPECT_TRUE(stage.IsSeen({0, 0}));
}

TEST_P(EveryDesktop, TheUserSizesTheWindowAndAsksItToCloseWhichItMayRefuse)
{
    stage.Do("heed size");
    stage.Resize({260, 150});
    EXPECT_EQ("size 260,150", stage.Hear("size 260"));
    EXPECT_TRUE(stage.IsSeen({260, 150}));
    stage.Close();
    EXPECT_EQ("close", stage.Hear("close"));
    EXPECT_TRUE(stage.IsSeen({260, 150}));
}

TEST_P(NotOnWayland, AWindowIsWhereTheProgramOrTheUserHasPutIt)
{
    EXPECT_EQ("done", stage.Ask("place 140 160 340 280"));
    EXPECT_TRUE(stage.IsSeenAt({140, 160}));
    stage.Do("heed moved");
    stage.MoveWindow({30, -20});
    EXPECT_EQ("moved", stage.Hear());
    int x = 0, y = 0;
    ASSERT_EQ(2, std::sscanf(stage.Ask("where", "1").c_str(), "%d,%d", &x, &y));
    EXPECT_NE(CPoint(140, 160), CPoint(x, y));
    EXPECT_TRUE(stage.IsSeenAt({x, y}));
}

TEST_P(EveryDesktop, KeysComeAsTheKeysTheyAreAndTextAsItIsTyped)
{
    const std::pair<const char*, std::vector<const char*>> keys[] = {
        {"F2", {"key F2"}},
        {"a", {"key A", "char 97"}},
        {"7", {"key 7", "char 55"}},
        {"shift+Tab", {"key Tab", "char 9"}},
        {"ctrl+c", {"key C", "char 3"}},
        {"Delete", {"key Delete"}},
    };
    for (const auto& [pszKey, heard] : keys) {
        stage.Key(pszKey);
        for (const char* pszLine : heard)
            EXPECT_EQ(pszLine, stage.Hear()) << pszKey;
    }
}

TEST_P(EveryDesktop, TheMouseIsFollowedPressesLandWhereTheyWereMadeAndTheWheelTurns)
{
    stage.Move({30, 40});
    stage.Hold("ctrl", true);
    stage.Press(1);
    stage.Release(1);
    stage.Hold("ctrl", false);
    EXPECT_EQ("ldown 30,40 control", stage.Hear());
    EXPECT_EQ("lup 30,40 control", stage.Hear());
    stage.Move({60, 40}); // too far away for a double click
    stage.DoubleClick();
    for (const char* pszLine : {"ldown 60,40", "lup 60,40", "ldouble 60,40", "lup 60,40"})
        EXPECT_EQ(pszLine, stage.Hear());
    stage.Press(3);
    stage.Release(3);
    EXPECT_EQ("rdown 60,40", stage.Hear());
    EXPECT_EQ("rup 60,40", stage.Hear());
    stage.Wheel(1);
    EXPECT_EQ("wheel 120", stage.Hear());
    stage.Wheel(-1);
    EXPECT_EQ("wheel -120", stage.Hear());

    stage.Do("heed leave");
    stage.Do("heed move");
    stage.Move({150, 100});
    EXPECT_EQ("move 150,100", stage.Hear());
    stage.Leave();
    EXPECT_EQ("leave", stage.Hear());
}

TEST_P(EveryDesktop, KeysAreForTheActiveWindowAlone)
{
    stage.Do("heed active");
    stage.Do("heed inactive");
    stage.GoToOther();
    EXPECT_EQ("inactive", stage.Hear());
    stage.ComeBack();
    EXPECT_EQ("active", stage.Hear("active"));
    stage.Key("F2");
    EXPECT_EQ("key F2", stage.Hear("key"));
}

TEST_P(EveryDesktop, TimersAreNeverEarlyAndTasksOfAnotherThreadRunInOrder)
{
    EXPECT_EQ("ticked 5", stage.Ask("timers 5"));
    EXPECT_EQ("task 1", stage.Ask("threads"));
    EXPECT_EQ("task 2", stage.Hear());
}

TEST_P(EveryDesktop, AMenuOpensWhereItIsToAndGivesTheChosenCommand)
{
    const auto open = [this] { stage.Tell("menu 60 40"); };
    EXPECT_TRUE(stage.Choose(open, {60, 40}, {"Grid"}));
    EXPECT_EQ("chose 2", stage.Hear("chose"));
    EXPECT_TRUE(stage.Choose(open, {60, 40}, {"New", "Folder"}));
    EXPECT_EQ("chose 3", stage.Hear("chose"));
    EXPECT_TRUE(stage.Choose(open, {60, 40}, {}));
    EXPECT_EQ("chose 0", stage.Hear("chose"));
    stage.Key("F2"); // the window has its keys again
    EXPECT_EQ("key F2", stage.Hear("key"));
}

TEST_P(EveryDesktop, AMenuAskedForByKeyOpensAtTheMouse)
{
    stage.Move({70, 50});
    EXPECT_TRUE(stage.Choose([this] { stage.Key("Menu"); }, {70, 50}, {"Grid"}));
    EXPECT_EQ("chose 2", stage.Hear("chose"));
}

TEST_P(Screens, AMenuAskedForByKeyOpensAtTheMouseThoughThatHasNotMovedYet)
{
    EXPECT_TRUE(stage.Choose([this] { stage.Key("Menu"); }, {90, 50}, {"Grid"}));
    EXPECT_EQ("chose 2", stage.Hear("chose"));
}

TEST_P(EveryDesktop, AMessageBoxGivesTheUsersAnswer)
{
    const std::pair<UINT, int> cases[] = {{MB_OK, IDOK},
                                          {MB_OKCANCEL | MB_ICONEXCLAMATION, IDCANCEL},
                                          {MB_YESNOCANCEL | MB_ICONQUESTION, IDYES},
                                          {MB_YESNO, IDNO}};
    for (const auto& [nType, nAnswer] : cases) {
        stage.Answer("box " + std::to_string(nType), nAnswer);
        EXPECT_EQ("answered " + std::to_string(nAnswer), stage.Hear("answered"));
    }
}

TEST_P(Screens, TimersGoOnWhileAMenuOrAMessageBoxWaits)
{
    EXPECT_EQ("shown menu", stage.Ask("menu 60 40"));
    EXPECT_EQ("ticked 3", stage.Ask("timers 3", "t"));
    stage.Key("Escape");
    EXPECT_EQ("chose 0", stage.Hear("chose"));
    EXPECT_EQ("shown box", stage.Ask("box 0", "shown"));
    EXPECT_EQ("ticked 3", stage.Ask("timers 3"));
    stage.Key("Escape");
    EXPECT_EQ("answered 1", stage.Hear("answered"));
}

TEST_P(Screens, AMenuEndsWhenTheUserGoesToAnotherProgramAndWithItsWindow)
{
    EXPECT_EQ("shown menu", stage.Ask("menu 60 40"));
    stage.GoToOther();
    EXPECT_EQ("chose 0", stage.Hear("chose"));
    stage.ComeBack();
    EXPECT_EQ("shown menu", stage.Ask("menu 60 40", "shown"));
    EXPECT_EQ("chose 0", stage.Ask("vanish", "chose"));
}

TEST_P(EveryDesktop, WhatIsCopiedIsTheProgramsOwnUntilAnotherCopies)
{
    stage.Key("F2"); // copying is what a user has asked for
    stage.Hear("key");
    EXPECT_EQ("copied", stage.Ask("copy"));
    EXPECT_EQ("from left", stage.Ask("paste"));
    EXPECT_EQ("its own", stage.Ask("owner"));
    EXPECT_EQ("from left", stage.OtherPastes());
    stage.OtherCopies();
    stage.ComeBack();
    EXPECT_EQ("from other", stage.Ask("paste", "from"));
    EXPECT_EQ("not its own", stage.Ask("owner"));
}

TEST_P(EveryDesktop, ADragIsFollowedAndHasTheEffectThatItWasGiven)
{
    stage.DragWithin({30, 40}, {120, 80});
    EXPECT_EQ("drop move from left", stage.Hear("drop"));
    EXPECT_EQ("dragged move", stage.Hear("dragged"));
    stage.Do("drop refuse");
    stage.DragWithin({30, 40}, {120, 80});
    EXPECT_EQ("drop move from left", stage.Hear("drop"));
    EXPECT_EQ("dragged none", stage.Hear("dragged"));
    stage.DragToNowhere({30, 40});
    EXPECT_EQ("dragged none", stage.Hear("dragged"));
}

TEST_P(NotOnWayland, ADragEndsWithEscape)
{
    stage.DragAndCancel({30, 40});
    EXPECT_EQ("dragged none", stage.Hear("dragged"));
}

TEST_P(EveryDesktop, ADragToAnotherProgramHasTheEffectThatItConfirms)
{
    const std::string effect = GetParam().pszBetween;
    stage.DragToOther({30, 40}, "take");
    EXPECT_EQ("dragged " + effect, stage.Hear("dragged"));
    stage.DragToOther({30, 40}, "refuse");
    EXPECT_EQ("dragged none", stage.Hear("dragged"));
    EXPECT_EQ("dragged " + effect, stage.DragFromOther({120, 80}));
    EXPECT_EQ("drop " + effect + " from other", stage.Hear("drop"));
    stage.Do("drag"); // once the button is held, and it is not any more
    stage.Do("heed move");
    stage.Move({60, 60});
    EXPECT_EQ("move 60,60", stage.Hear("move"));
    EXPECT_EQ("not its own", stage.Ask("owner"));
}

TEST_P(Screens, ADragOutlivesTheWindowThatItWasDroppedOnAndTheOneItCameFrom)
{
    stage.DragToOther({30, 40}, "vanish");
    EXPECT_EQ(std::string("dragged ") + GetParam().pszBetween, stage.Hear("dragged"));
    stage.Do("drop vanish");
    stage.DragWithin({30, 40}, {120, 80});
    EXPECT_EQ("dragged move", stage.Hear("dragged"));
    EXPECT_TRUE(stage.IsSeen({0, 0}));
}

TEST_P(Screens, ADragOfWhatIsGoneEnds)
{
    stage.Do("drop forget");
    stage.DragToNowhere({30, 40});
    EXPECT_EQ("dragged none", stage.Hear("dragged"));
}

TEST_P(Screens, ATargetThatDiesHasCopied)
{
    stage.DragToOther({30, 40}, "die");
    EXPECT_EQ("dragged copy", stage.Hear("dragged"));
}

TEST_P(OnlyX11, ATargetThatNeverAnswersHasCopiedAndHoldsNobodyUp)
{
    stage.DragToOther({30, 40}, "hold");
    EXPECT_EQ("dragged copy", stage.Hear("dragged"));
    stage.ComeBack();
    stage.Key("F2");
    EXPECT_EQ("key F2", stage.Hear("key"));
}

TEST_P(OnlyWayland, AMenuIsInItsPlaceThoughNobodyKnowsWhereTheWindowIs)
{
    stage.Do("place 140 160 340 280");
    stage.MoveWindow({30, -20});
    EXPECT_TRUE(stage.Choose([this] { stage.Tell("menu 60 40"); }, {60, 40}, {"Grid"}));
    EXPECT_EQ("chose 2", stage.Hear("chose"));
}

TEST_P(OnlyWayland, WhatAnotherHasCopiedIsThereAsSoonAsTheWindowIsActive)
{
    stage.OtherCopies();
    EXPECT_EQ("nothing", stage.Ask("paste"));
    stage.Do("heed active");
    stage.ComeBack();
    EXPECT_EQ("active", stage.Hear("active"));
    EXPECT_EQ("from other", stage.Ask("paste", "from"));
}

} // namespace
