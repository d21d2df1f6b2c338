// Commands given by menus, keys and tools, and the ways from place to place.
#include "tests/editor/EditorFixture.h"

#include <set>

namespace
{

class CommandDeskTest : public EditorTest
{
protected:
    std::string Path() { return Frame().Shown()->Path().substr(folder.Path().size()); }
};

TEST_F(CommandDeskTest, MenusAreWalkedByKeysAndMouseAndDoWhatTheySay)
{
    folder.Make("Ada/ a.bmp");
    Open();
    desktop.GoBeyondMenu(VK_RIGHT);
    desktop.GoBeyondMenu(VK_LEFT);
    desktop.Choose("Select all");
    desktop.Key(VK_F10);
    desktop.Key(VK_RIGHT);
    desktop.Key(VK_DOWN);
    EXPECT_EQ("/ | [(a.bmp) (Ada)] | 2 objects, 2 selected", Screen());
    const Ledger menus = desktop.TakeMenus();
    ASSERT_EQ(3u, menus.size());
    EXPECT_EQ(menus[0], menus[2]);
    EXPECT_EQ("[*Icons | Thumbnails | - ", menus[1].substr(0, 25));

    desktop.Key(VK_F10);
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ("/ | [(a.bmp) (Ada)] | 2 objects, 2 selected", Screen()) << "Escape was the bar's";
    ChooseFromMenu(2, "Thumbnails");
    EXPECT_EQ(editor::ListKind::Thumbnails, Frame().GetContent().GetKind());
    desktop.Choose("Close");
    Press('F', kAlt);
    EXPECT_EQ(1, nClosed);
}

TEST_F(CommandDeskTest, WhatCannotBeDoneSaysWhyAndEveryKeyMeansOneThing)
{
    folder.Make("Ada/ a.bmp");
    Open();
    Press(VK_F2);
    EXPECT_EQ("Rename: no object is selected", News());
    desktop.Click(Tree().m_hWnd, PlaceInTree("Ada"));
    EXPECT_EQ("", News());
    const CPoint remove = Frame().GetBars().GetTools().RectOf(editor::ID_REMOVE).CenterPoint();
    desktop.MoveTo(Frame().GetBars().GetTools().m_hWnd, remove);
    EXPECT_EQ("", desktop.ToolTip());
    desktop.Advance(500);
    EXPECT_EQ("Delete (Del)", desktop.ToolTip()) << "the tree's selection";
    ClickPath(0);
    ::SetFocus(List());
    Control('A');
    Control('A');
    desktop.MoveTo(Frame().GetBars().GetTools().m_hWnd, remove);
    desktop.MoveTo(List(), {1, 1});
    EXPECT_EQ("", desktop.ToolTip());

    std::set<std::string> keys;
    for (const editor::CommandEntry& command : editor::AllCommands())
        EXPECT_TRUE(command.key.vkey == 0 || keys.insert(command.key.Text()).second) << command.key.Text();
    Press(VK_F1);
    EXPECT_TRUE(Frame().GetKeysSheet().IsWindowVisible());
    EXPECT_EQ("Ctrl+O", Frame().GetKeysSheet().GetGroups().front().lines.front().key);
    Press(VK_ESCAPE);
    EXPECT_FALSE(Frame().GetKeysSheet().IsWindowVisible());
    EXPECT_EQ(List(), GetFocus());
}

TEST_F(CommandDeskTest, BackAndForthPastWhatIsGoneAndToWhatIsTyped)
{
    folder.Make("Ada/Poses/ Bo/b.bmp");
    const TempFolder other;
    other.WriteBmp("far.bmp");
    Open();
    DoubleClick("Ada");
    DoubleClick("Poses");
    Press(VK_LEFT, kAlt);
    Press(VK_LEFT, kAlt);
    EXPECT_EQ("", Path());
    folder.Remove("Ada/Poses");
    folder.Remove("Ada");
    Press(VK_F5);
    DoubleClick("Bo");
    Press(VK_LEFT, kAlt);
    Press(VK_RIGHT, kAlt);
    EXPECT_EQ("/Bo", Path());
    Press(VK_RIGHT, kAlt);
    EXPECT_EQ("Forward: nothing was left by going back", News());

    const auto type = [&](const std::string& path) {
        Control('L');
        Enter(path);
    };
    type("../none");
    EXPECT_EQ(folder.At("none") + ": no such file or folder", News());
    EXPECT_EQ(Frame().GetBars().GetPathBar().GetField().m_hWnd, GetFocus()) << "to be put right";
    Press(VK_ESCAPE);
    EXPECT_EQ(List(), GetFocus());
    type("b.bmp");
    EXPECT_EQ("/Bo/b.bmp", Path());
    type(other.At("far.bmp"));
    EXPECT_EQ("/far.bmp/ | picture |  | far.bmp: 8 x 8 pixels", Screen());
    Press(VK_UP, kAlt);
    Press(VK_LEFT, kAlt);
    Press(VK_LEFT, kAlt);
    Press(VK_LEFT, kAlt);
    EXPECT_EQ("/Bo/b.bmp", Path()) << "in the library before";

    Control('E');
    Key('C', kBoth);
    EXPECT_EQ(folder.At("Bo/b.bmp"), desktop.ReadPublished("text/plain"));
    EXPECT_EQ(Ledger({"show " + folder.At("Bo/b.bmp")}), desktop.TakeOutside());
    desktop.AnswerFolder(other.Path());
    Control('O');
    EXPECT_EQ("/ | [far.bmp] | 1 object", Screen());
    Control(VK_RETURN);
    EXPECT_EQ("Open in a new window: there is no desktop for another window", News());
}

} // namespace
