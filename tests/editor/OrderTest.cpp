// In what order objects stand, and how one among many is found.
#include "tests/editor/EditorFixture.h"

namespace
{

class OrderTest : public EditorTest
{
protected:
    void ToggleFoldersFirst() { ChooseFromMenu(2, "Folders first"); }
};

TEST_F(OrderTest, NumbersCountByTheirValueAndFoldersStandFirstWhereThatIsWanted)
{
    folder.Make("walk14.bmp walk4.bmp Walk4b.bmp zoo/ zoo/10.bmp zoo/9.bmp walk04.bmp");
    folder.Write("act.phase", "walk4.bmp\nwalk14.bmp\nwalk4.bmp\n");
    Open();
    EXPECT_EQ("[act.phase walk4.bmp walk04.bmp Walk4b.bmp walk14.bmp zoo]", Rows());
    EXPECT_EQ("(/)[act.phase+ walk4.bmp walk04.bmp Walk4b.bmp walk14.bmp zoo+]", Branches());
    Click("walk14.bmp");
    ToggleFoldersFirst();
    EXPECT_EQ("[zoo act.phase walk4.bmp walk04.bmp Walk4b.bmp (*walk14.bmp)]", Rows());
    EXPECT_EQ("(/)[zoo+ act.phase+ walk4.bmp walk04.bmp Walk4b.bmp walk14.bmp]", Branches());

    folder.Make("walk5.bmp zoo2/");
    Press(VK_F5);
    EXPECT_EQ("[zoo zoo2 act.phase walk4.bmp walk04.bmp Walk4b.bmp walk5.bmp (*walk14.bmp)]", Rows());
    EXPECT_EQ("(/)[zoo+ zoo2 act.phase+ walk4.bmp walk04.bmp Walk4b.bmp walk5.bmp walk14.bmp]", Branches());
    DoubleClick("zoo");
    EXPECT_EQ("[9.bmp 10.bmp]", Rows());
    DoubleClick("9.bmp");
    Press(VK_BACK);
    EXPECT_EQ("[(*9.bmp) 10.bmp]", Rows()) << "found by the same order";
    Press(VK_UP, kAlt);
    DoubleClick("act.phase");
    EXPECT_EQ("[walk4.bmp walk14.bmp walk4.bmp]", Rows()) << "as the phase has it";
    Press(VK_UP, kAlt);
    ToggleFoldersFirst();
    EXPECT_EQ("[(*act.phase) walk4.bmp walk04.bmp Walk4b.bmp walk5.bmp walk14.bmp zoo zoo2]", Rows());
    EXPECT_NE(std::string::npos, Branches().find(" walk14.bmp zoo")) << Branches();
}

TEST_F(OrderTest, LettersGoToTheNextNameThatBeginsWithThem)
{
    folder.Make("apple.bmp bear.bmp beta.bmp Birch.bmp");
    Open();
    const auto typed = [&](const char* pszText) {
        desktop.Type(pszText);
        return Rows();
    };
    EXPECT_EQ("[apple.bmp (*bear.bmp) beta.bmp Birch.bmp]", typed("b"));
    EXPECT_EQ("[apple.bmp bear.bmp beta.bmp (*Birch.bmp)]", typed("i"));
    desktop.Advance(1500);
    EXPECT_EQ("[apple.bmp (*bear.bmp) beta.bmp Birch.bmp]", typed("B")) << "round from the end";
    EXPECT_EQ("[apple.bmp bear.bmp (*beta.bmp) Birch.bmp]", typed("b"));
    desktop.Advance(1500);
    EXPECT_EQ("[apple.bmp bear.bmp (*beta.bmp) Birch.bmp]", typed("x"));
}

TEST_F(OrderTest, WhatIsTypedIntoTheFilterLeavesThoseWhoseNamesHoldIt)
{
    folder.Make("Ada/ walk1.bmp walk2.bmp wave.bmp");
    Open();
    Select({"walk2.bmp"});
    Control('F');
    desktop.Type("ALK");
    EXPECT_EQ("/ | [walk1.bmp (*walk2.bmp)] | 2 objects, 2 hidden, 1 selected | walk2.bmp: 8 x 8 pixels", Screen());
    desktop.Type("9");
    EXPECT_EQ("/ | [] | 0 objects, 4 hidden", Screen());
    desktop.Key(VK_BACK);
    Press(VK_RETURN);
    EXPECT_EQ(List(), GetFocus());
    Control('A');
    folder.Remove("walk1.bmp");
    Press(VK_F5);
    EXPECT_EQ("/ | [(*walk2.bmp)] | 1 object, 2 hidden, 1 selected | walk2.bmp: 8 x 8 pixels", Screen());
    Press(VK_ESCAPE);
    EXPECT_EQ("/ | [Ada (*walk2.bmp) wave.bmp] | 3 objects, 1 selected | walk2.bmp: 8 x 8 pixels", Screen())
        << "all that were shown were selected, and no others";

    Control('F');
    desktop.Type("w");
    Control('2');
    desktop.Key(VK_DOWN);
    Control('2');
    EXPECT_EQ("[(*walk2.bmp) wave.bmp]", Rows()) << "in thumbnails, too";
    Press(VK_F6);
    Press(VK_DOWN);
    Press(VK_UP);
    EXPECT_EQ("[Ada walk2.bmp wave.bmp]", Rows()) << "who goes elsewhere leaves the filter behind";
    EXPECT_FALSE(Frame().GetFilter().IsOn());
}

TEST_F(OrderTest, NamesAreSearchedForInAllFoldersBelowAndEnterGoesThere)
{
    folder.Make("Ada/Poses/walk2.bmp Ada/Walks/ .hidden/walk.bmp walk1.bmp wave.bmp");
    folder.Link("Ada/back", folder.Path());
    folder.MakeEmptyFiles(1200, "many%d.txt");
    Open();
    const auto found = [&] {
        EXPECT_TRUE(desktop.RunUntil([&] { return !Frame().GetSearch().IsUnderWay(); }));
        std::string text;
        for (const auto& line : Frame().GetSearch().GetSheet().GetLines())
            text += line.what + " in /" + line.where.substr(line.where.find('/') + 1) + ", ";
        return text + Frame().GetSearch().GetSheet().GetNews();
    };
    Key('F', kBoth);
    desktop.Type("many");
    desktop.Key(VK_BACK);
    desktop.Type("yx");
    EXPECT_EQ("Nothing found", found());
    desktop.Key(VK_BACK);
    found();
    EXPECT_EQ("Only the first 1000 found", Frame().GetSearch().GetSheet().GetNews());
    for (int i = 0; i < 4; ++i)
        desktop.Key(VK_BACK);
    desktop.Type("ALK");
    EXPECT_EQ("walk1.bmp in /, Walks in /Ada, walk2.bmp in /Ada/Poses, 3 found", found()) << "each once";
    for (int i = 0; i < 3; ++i)
        desktop.Key(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_EQ("/Ada/Poses/ | [(*walk2.bmp)] | 1 object, 1 selected | walk2.bmp: 8 x 8 pixels", Screen());
    EXPECT_EQ(List(), GetFocus());

    Frame().GetViews().BeginSearch();
    desktop.Type("walk");
    desktop.Key(VK_ESCAPE);
    EXPECT_FALSE(Frame().GetSearch().IsUnderWay());
    EXPECT_EQ(List(), GetFocus());
    desktop.Run(); // what had been found by then
}

} // namespace
