// Objects copied, cut, pasted and removed by their keys, on the disk.
#include "Toolkit/menu/MessageBox.h"
#include "tests/editor/EditorFixture.h"
#include "tests/support/FailingDisk.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class CommandsTest : public EditorTest
{
protected:
    CommandsTest()
    {
        folder.WriteBmp("Ada/a.bmp", 8, 8, 0xFF102030);
        folder.Make("Ada/b.bmp Bo/");
    }
};

TEST_F(CommandsTest, WhatIsCopiedIsPastedWhereOneIsAndSelectedThere)
{
    folder.WriteBmp("Ada/c.bmp");
    Open();
    Control('C');
    Control('V');
    EXPECT_EQ(Ledger({"Views: Nothing was pasted: there are no objects on the clipboard"}), TakeBoxes())
        << "nothing was selected";

    DoubleClick("Ada");
    Click("b.bmp");
    Control('X');
    EXPECT_EQ("/Ada/ | [a.bmp *c.bmp] | 2 objects", Screen()) << "the focus stays in its place";
    EXPECT_EQ("Ada/ Ada/a.bmp Ada/c.bmp Bo/", folder.Everything());
    Control('V');
    EXPECT_EQ("/Ada/ | [a.bmp (*b.bmp) c.bmp] | 3 objects, 1 selected | b.bmp: 8 x 8 pixels", Screen());
    Control('A');
    Control('C');
    Control('V');
    EXPECT_EQ("[(*a (2).bmp) a.bmp (b (2).bmp) b.bmp (c (2).bmp) c.bmp]", Rows());
    Press(VK_BACK);
    DoubleClick("Bo");
    Control('V');
    EXPECT_EQ("/Bo/ | [(*a.bmp) (b.bmp) (c.bmp)] | 3 objects, 3 selected", Screen());
    EXPECT_EQ("Ada/ Ada/a (2).bmp Ada/a.bmp Ada/b (2).bmp Ada/b.bmp Ada/c (2).bmp Ada/c.bmp Bo/ Bo/a.bmp Bo/b.bmp "
              "Bo/c.bmp",
              folder.Everything());
    EXPECT_EQ(Ledger(), TakeBoxes());
}

TEST_F(CommandsTest, RemovingAsksFirst)
{
    Open();
    DoubleClick("Ada");
    Press(VK_DELETE);
    EXPECT_EQ(Ledger(), TakeBoxes());
    Click("a.bmp");
    desktop.Answer(IDNO);
    Press(VK_DELETE);
    EXPECT_EQ("/Ada/ | [(*a.bmp) b.bmp] | 2 objects, 1 selected | a.bmp: 8 x 8 pixels", Screen());
    EXPECT_EQ(List(), GetFocus());
    Control('A');
    Delete();
    EXPECT_EQ(Ledger({"Views: Move \"a.bmp\" to the trash?", "Views: Move 2 objects to the trash?"}), TakeBoxes());
    EXPECT_EQ("/Ada/ | [] | 0 objects", Screen());
    EXPECT_EQ("Ada/ Bo/", folder.Everything());
}

TEST_F(CommandsTest, WhatNoTrashTakesIsRemovedForGoodOnlyAfterAQuestionOfItsOwn)
{
    Open();
    DoubleClick("Ada");
    Control('A');
    const OwnFileSystem disk(folder.Path());
    const std::string noTrash = ".Trash-" + std::to_string(geteuid());
    folder.Link(noTrash, "/tmp");
    const Ledger questions{"Views: Move 2 objects to the trash?",
                           "Views: a.bmp: not removed, there is no trash on its file system.\n\n"
                           "Remove 2 objects for good?"};
    for (const int nAnswer : {IDNO, IDYES}) {
        desktop.Answer(IDYES);
        desktop.Answer(nAnswer);
        Press(VK_DELETE);
        EXPECT_EQ(questions, TakeBoxes());
        EXPECT_EQ(noTrash + (nAnswer == IDYES ? " Ada/ Bo/" : " Ada/ Ada/a.bmp Ada/b.bmp Bo/"), folder.Everything());
    }
}

TEST_F(CommandsTest, ThePictureThatIsShownAndTheTreesItemCanBeRemovedToo)
{
    Open();
    DoubleClick("Ada");
    DoubleClick("a.bmp");
    Press(VK_F6);
    Press(VK_F6);
    Control('C');
    Control('V');
    EXPECT_EQ("Ada/ Ada/a (2).bmp Ada/a.bmp Ada/b.bmp Bo/", folder.Everything());
    EXPECT_EQ("[(*a (2).bmp) a.bmp b.bmp]", Rows()) << "what is done next is done to it";
    DoubleClick("a.bmp");
    Delete();
    EXPECT_EQ("/Ada/b.bmp/ | picture |  | b.bmp: 8 x 8 pixels", Screen()) << "on to the next one";
    EXPECT_EQ(Picture(), GetFocus());
    Delete();
    Delete();
    EXPECT_EQ("/Ada/ | [a (2).bmp] | 1 object", Screen());
    EXPECT_EQ(List(), GetFocus());
    Press(VK_F6);
    Delete();
    EXPECT_EQ("/Bo/ | [] | 0 objects", Screen());
    EXPECT_EQ("Bo/", folder.Everything());
}

// What the focused field says, and what stands below it.
static std::string Field()
{
    CRect rect;
    GetWindowRect(GetFocus(), &rect);
    const HWND hBelow = WindowFromPoint({rect.CenterPoint().x, rect.bottom + 4});
    return GetWindowText(GetFocus()).GetString() + std::string(" | ") + GetWindowText(hBelow).GetString();
}

TEST_F(CommandsTest, ANameIsTypedOverTheLabelAndOneLeftAsItIsStaysAsItIsOnTheDisk)
{
    folder.Make("Bo/b.bmp Bo/c.bmp");
    folder.WriteBmp("Bo/caf\xE9.bmp"); // by a program that knew no UTF-8
    Open();
    DoubleClick("Bo");
    const auto rename = [&](const char* pszShown, const char* pszName) {
        Click(pszShown);
        Press(VK_F2);
        Enter(pszName);
        return TakeBoxes();
    };
    EXPECT_EQ(Ledger(), rename("caf\xEF\xBF\xBD.bmp", ""));
    EXPECT_EQ(Ledger(), rename("c.bmp", "b"));
    EXPECT_EQ("b.bmp | c.bmp: there is a \"b.bmp\" already", Field()) << "open again, with what was typed";
    desktop.Type("a");
    EXPECT_EQ("a.bmp | ", Field()) << "typed over the stem; what was wrong is gone";
    Press(VK_RETURN);
    EXPECT_EQ("/Bo/ | [(*a.bmp) b.bmp caf\xEF\xBF\xBD.bmp] | 3 objects, 1 selected | a.bmp: 8 x 8 pixels", Screen());
    rename("a.bmp", "b");
    desktop.Click(List(), PlaceOf("b.bmp"));
    Settle();
    EXPECT_EQ("b.bmp | a.bmp: there is a \"b.bmp\" already", Field()) << "also for who goes on elsewhere";
    Press(VK_ESCAPE);
    EXPECT_EQ(List(), GetFocus());
    Press(VK_F6);
    Press(VK_F2);
    Enter("Ada");
    EXPECT_EQ("Ada | Bo: there is a \"Ada\" already", Field());
    rename("a.bmp", ""); // a click into the list ends the field: what was typed is refused again, and given up
    Press(VK_ESCAPE);
    EXPECT_EQ(Ledger(), TakeBoxes());
    EXPECT_EQ("Ada/ Ada/a.bmp Ada/b.bmp Bo/ Bo/a.bmp Bo/b.bmp Bo/caf\xE9.bmp", folder.Everything());
}

TEST_F(CommandsTest, WhatCannotBeDoneIsToldWithItsReason)
{
    folder.Write("Ada/walk.phase", "a.bmp\n");
    folder.MakeFolder("Ada/Poses");
    mkfifo(folder.At("Ada/Poses/pipe").c_str(), 0600);
    Open();
    DoubleClick("Ada");
    Click("Poses");
    for (const int nAnswer : {IDNO, IDYES}) {
        desktop.Answer(nAnswer);
        Control('C');
        EXPECT_EQ(Ledger({"Views: Poses/pipe: neither a file nor a folder.\n\nGo on with the rest?"}), TakeBoxes());
        Control('V');
        EXPECT_EQ(nAnswer == IDYES, std::filesystem::exists(folder.At("Ada/Poses (2)")));
        TakeBoxes();
    }
    DoubleClick("walk.phase");
    Control('V');
    EXPECT_EQ(Ledger({"Views: Nothing was pasted: walk.phase: it does not take these objects"}), TakeBoxes());
    EXPECT_EQ("a.bmp\n", folder.Read("Ada/walk.phase"));
}

TEST_F(CommandsTest, WhatARefusedCutHadTakenIsThereAgainAsItWas)
{
    folder.WriteBmp("Bo/a.bmp");
    folder.Link("Bo/b.bmp", "a.bmp");
    folder.Write("Bo/c.phase", "#delay 80\n");
    folder.MakeFolder("Bo/data/Trash/files"); // what holds the trash itself cannot go
    folder.MakeFolder("Bo/data/Trash/info");
    trash.Point(folder.At("Bo/data"));
    Open();
    DoubleClick("Bo");
    Click("c.phase");
    SetDelay("7");
    ::SetFocus(List());
    const std::string before = folder.Everything();
    Control('A');
    Control('X');
    EXPECT_EQ(Ledger({"Views: Nothing was cut: data: invalid argument"}), TakeBoxes());
    EXPECT_EQ(before, folder.Everything());
    EXPECT_TRUE(std::filesystem::is_symlink(folder.At("Bo/b.bmp")));
    EXPECT_EQ("[(a.bmp) (b.bmp) (*c.phase) (data)]", Rows());
    Control('S');
    EXPECT_EQ("#delay 7\n", folder.Read("Bo/c.phase")) << "what was not saved is not forgotten";
}

} // namespace
