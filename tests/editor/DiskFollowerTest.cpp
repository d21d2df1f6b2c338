// What other programs do to the files while they are shown.
#include "tests/editor/EditorFixture.h"

#include <filesystem>

namespace
{

namespace fs = std::filesystem;

class DiskFollowerTest : public EditorTest
{
protected:
    DiskFollowerTest() : EditorTest(true)
    {
        folder.Make("Ada/a.bmp Ada/b.bmp Ada/Poses/one.bmp Bo/ c.bmp");
        folder.Write("walk.phase", "c.bmp\n");
        Open();
    }

    // What the system tells comes at any time: waits until the screen shows it, or for far longer than it may take.
    void Await(const std::string& screen)
    {
        desktop.RunUntil([&] { return Screen() == screen; });
        EXPECT_EQ(screen, Screen());
    }
    void Rename(const char* pszFrom, const char* pszTo) { fs::rename(folder.At(pszFrom), folder.At(pszTo)); }
};

TEST_F(DiskFollowerTest, FilesComeGoAndChangeInEveryViewAndSelectionAndBranchesStay)
{
    DoubleClick("Ada");
    Tree().Expand(FindItem("Ada"), TVE_EXPAND);
    Click("b.bmp");
    folder.Write("Ada/unfinished.tmp", folder.Read("c.bmp"));
    Rename("Ada/unfinished.tmp", "Ada/new.bmp");
    fs::remove(folder.At("Ada/a.bmp"));
    folder.MakeFolder("Ada/Moves");
    Await("/Ada/ | [(*b.bmp) Moves new.bmp Poses] | 4 objects, 1 selected | b.bmp: 8 x 8 pixels");
    EXPECT_EQ("/[(Ada)[b.bmp Moves new.bmp Poses+] Bo c.bmp walk.phase+]", Branches());
    folder.WriteBmp("Ada/b.bmp", 20, 10);
    Await("/Ada/ | [(*b.bmp) Moves new.bmp Poses] | 4 objects, 1 selected | b.bmp: 20 x 10 pixels");
    Rename("Ada/b.bmp", "Ada/z.bmp");
    Await("/Ada/ | [Moves new.bmp Poses (*z.bmp)] | 4 objects, 1 selected | z.bmp: 20 x 10 pixels");
    Click("Poses");
    Rename("Ada/z.bmp", "Ada/a.bmp");
    Await("/Ada/ | [a.bmp Moves new.bmp (*Poses)] | 4 objects, 1 selected | Poses");
}

TEST_F(DiskFollowerTest, WhatIsShownIsFollowedWhereItGoesAndLeftWhenItIsGone)
{
    DoubleClick("Ada");
    DoubleClick("Poses");
    Rename("Ada", "Ann");
    Await("/Ann/ | [a.bmp b.bmp Poses] | 3 objects");
    DoubleClick("Poses");
    folder.MakeFolder("Ann/Zoe");
    fs::remove_all(folder.At("Ann/Poses"));
    Await("/Ann/ | [a.bmp b.bmp Zoe] | 3 objects");
    EXPECT_EQ("Poses: is not there any more", News());
    Press(VK_BACK);
    DoubleClick("walk.phase");
    folder.Write("walk.phase", "Ann/a.bmp\nc.bmp\n");
    Await("/walk.phase/ | [a.bmp c.bmp] | 2 objects");
    const auto frame = [&] { return desktop.Dump(List()).At(PlaceOf("c.bmp").x, PlaceOf("c.bmp").y); };
    Settle();
    const toolkit::Pixel shown = frame();
    fs::remove(folder.At("c.bmp"));
    desktop.RunUntil([&] { return frame() != shown; });
    EXPECT_NE(shown, frame()) << "a frame whose picture has gone is seen to miss it";
    Click("c.bmp");
    EXPECT_EQ("c.bmp: there is no \"c.bmp\" in the library", Frame().GetStatus().detail);
}

TEST_F(DiskFollowerTest, AStormOfChangesIsReadAsAWhole)
{
    DoubleClick("Ada");
    Click("b.bmp");
    folder.MakeEmptyFiles(10'000, "Ada/x%05d.bmp");
    const auto count = [&] { return Frame().GetList().GetItemCount(); };
    desktop.RunUntil([&] { return count() == 10'003; });
    EXPECT_EQ(10'003, count());
    EXPECT_EQ("b.bmp", editor::CMember::Of(Frame().GetList().GetAtom(Frame().GetList().GetFocusedRow()).Get())->Name());
}

} // namespace
