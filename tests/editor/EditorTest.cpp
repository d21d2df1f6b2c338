#include "Editor/frame/Look.h"
#include "Editor/model/ErrorInfo.h"
#include "tests/editor/EditorFixture.h"

#include <algorithm>
#include <filesystem>

namespace
{

TEST_F(EditorTest, AFolderIsWalkedByDoubleClicksAndBackspace)
{
    folder.WriteBmp("Ada/Poses/one.bmp");
    folder.WriteBmp("Ada/a.bmp");
    folder.MakeFolder("Bo");
    EXPECT_EQ("", Open());
    EXPECT_EQ("/ | [Ada Bo] | 2 objects", Screen());

    DoubleClick("Ada");
    EXPECT_EQ("/Ada/ | [a.bmp Poses] | 2 objects", Screen());
    DoubleClick("Poses");
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen());
    desktop.Key(VK_BACK);
    EXPECT_EQ("/Ada/ | [a.bmp (*Poses)] | 2 objects, 1 selected | Poses", Screen());
    AltUp();
    EXPECT_EQ("/ | [(*Ada) Bo] | 2 objects, 1 selected | Ada", Screen());
    desktop.Key(VK_BACK);
    AltUp();
    EXPECT_EQ("/ | [(*Ada) Bo] | 2 objects, 1 selected | Ada", Screen()) << "nothing is above the library";
    EXPECT_EQ(List(), GetFocus());
}

TEST_F(EditorTest, EnterOpensTheFocusedRowAndThePathLeadsBack)
{
    folder.WriteBmp("Ada/Poses/one.bmp");
    folder.MakeFolder("Bo");
    Open();

    desktop.Key(VK_RETURN);
    EXPECT_EQ("/ | [Ada Bo] | 2 objects", Screen()) << "no row has the focus";
    desktop.Key(VK_HOME);
    desktop.Key(VK_RETURN);
    DoubleClick("Poses");
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen());
    ClickPath(2);
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen()) << "where one is already";
    ClickPath(-1);
    EXPECT_EQ("/Ada/ | [(*Poses)] | 1 object, 1 selected | Poses", Screen());
    DoubleClick("Poses");
    desktop.Press(Frame().GetPathBar().GetSafeHwnd(), {24, 20});
    SetCapture(List());
    ReleaseCapture();
    desktop.Release(Frame().GetPathBar().GetSafeHwnd(), {24, 20});
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen()) << "someone took the mouse away";
    ClickPath(0);
    EXPECT_EQ("/ | [(*Ada) Bo] | 2 objects, 1 selected | Ada", Screen());
    ClickPath(-1);
    EXPECT_EQ("/ | [(*Ada) Bo] | 2 objects, 1 selected | Ada", Screen());
}

TEST_F(EditorTest, APictureIsShownLargeInTheListsPlace)
{
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF102030);
    folder.WriteBmp("tiny.bmp", 4, 4, 0xFF405060);
    Open();
    reader.TakeReads();
    const HWND hPicture = Frame().GetPictureView().GetSafeHwnd();

    DoubleClick("large.bmp");
    EXPECT_EQ("/large.bmp/ | picture |  | large.bmp: 2000 x 1000 pixels", Screen());
    EXPECT_EQ(Ledger({"large.bmp"}), reader.TakeReads()) << "at the pane's size";
    EXPECT_EQ(0xFF102030, MiddleOf(hPicture));
    EXPECT_EQ(hPicture, GetFocus());
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF708090);
    desktop.Key(VK_F5);
    Settle();
    EXPECT_EQ(0xFF708090, MiddleOf(hPicture)) << "read anew";
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ("/ | [(*large.bmp) tiny.bmp] | 2 objects, 1 selected | large.bmp: 2000 x 1000 pixels", Screen());
    EXPECT_EQ(List(), GetFocus());

    DoubleClick("tiny.bmp");
    const toolkit::Surface shown = desktop.Dump(hPicture);
    EXPECT_EQ(16 * 16, std::count(shown.Row(0), shown.Row(0) + shown.Width() * shown.Height(), 0xFF405060))
        << "enlarged four times, no more";
    desktop.Key(VK_RETURN);
    EXPECT_EQ("/ | [large.bmp (*tiny.bmp)] | 2 objects, 1 selected | tiny.bmp: 4 x 4 pixels", Screen());
    desktop.Key(VK_RETURN);
    desktop.Key(VK_BACK);
    EXPECT_EQ("/ | [large.bmp (*tiny.bmp)] | 2 objects, 1 selected | tiny.bmp: 4 x 4 pixels", Screen());
}

TEST_F(EditorTest, WhileAPictureIsSizedTheOneThatIsThereIsShown)
{
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF102030);
    Open();
    DoubleClick("large.bmp");
    const HWND hPicture = Frame().GetPictureView().GetSafeHwnd();
    reader.Hold();

    toolkit::InputResize(App().GetMainWindow(), {400, 300});
    desktop.Run();
    EXPECT_EQ(0xFF102030, MiddleOf(hPicture));
    reader.AllowAll();
    Settle();
    EXPECT_EQ(0xFF102030, MiddleOf(hPicture));
    CRect window;
    GetWindowRect(hPicture, &window);
    EXPECT_EQ(400, window.right) << "to the new edge";
}

TEST_F(EditorTest, APictureThatTakesItsTimeSaysThatItIsComing)
{
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF102030);
    Open();
    reader.Hold();
    desktop.DoubleClick(List(), PlaceOf("large.bmp"));
    const HWND hPicture = Frame().GetPictureView().GetSafeHwnd();
    const auto countInk = [&] {
        const toolkit::Surface shown = desktop.Dump(hPicture);
        const toolkit::Pixel* const first = shown.Row(0);
        const auto count = static_cast<std::ptrdiff_t>(shown.Width()) * shown.Height();
        return count - std::count(first, first + count, toolkit::ToPixel(editor::CalmColor()));
    };
    EXPECT_EQ(0, countInk()) << "nothing flashes up";
    desktop.Advance(1000);
    EXPECT_GT(countInk(), 0);
    reader.AllowAll();
    Settle();
    EXPECT_EQ(0xFF102030, MiddleOf(hPicture));
}

TEST_F(EditorTest, APictureThatCannotBeReadSaysWhy)
{
    folder.Write("bad.bmp", "no picture");
    folder.Write("story.phase", "lost.bmp\n");
    Open();

    Click("bad.bmp");
    EXPECT_EQ("/ | [(*bad.bmp) story.phase] | 2 objects, 1 selected | ! bad.bmp: not a BMP picture", Screen());
    DoubleClick("bad.bmp");
    EXPECT_EQ("/bad.bmp/ | picture |  | ! bad.bmp: not a BMP picture", Screen());
    EXPECT_NE(toolkit::ToPixel(editor::CalmColor()), MiddleOf(Frame().GetPictureView().GetSafeHwnd()));
    desktop.Key(VK_BACK);
    DoubleClick("story.phase");
    DoubleClick("lost.bmp");
    EXPECT_EQ("/story.phase/lost.bmp/ | picture |  | ! lost.bmp: no such file or directory", Screen());
    desktop.Key(VK_BACK);
    desktop.Key(VK_BACK);
    EXPECT_EQ("/ | [bad.bmp (*story.phase)] | 2 objects, 1 selected | story.phase", Screen());
}

TEST_F(EditorTest, AFolderThatCannotBeOpenedSaysWhyInTheListsPlace)
{
    folder.MakeFolder("Ada");
    folder.Link("ring", ".");
    Open();

    DoubleClick("Ada");
    const toolkit::Surface empty = desktop.Dump(List());
    EXPECT_EQ("/Ada/ | [] | 0 objects", Screen());
    desktop.Key(VK_BACK);
    DoubleClick("ring");
    EXPECT_EQ("/ring/ | [] | 0 objects | ! ring: a link to a folder that holds it, not opened", Screen());
    const toolkit::Surface ring = desktop.Dump(List());
    const auto countInk = [](const toolkit::Surface& shown) {
        return shown.Width() * shown.Height() -
               std::count(shown.Row(0), shown.Row(0) + shown.Width() * shown.Height(), 0xFFFFFFFF);
    };
    EXPECT_GT(countInk(empty), 0) << "tells that there is nothing";
    EXPECT_GT(countInk(ring), countInk(empty)) << "and here why";
    desktop.Key(VK_BACK);
    EXPECT_EQ("/ | [Ada (*ring)] | 2 objects, 1 selected | ! ring: a link to a folder that holds it, not opened",
              Screen());
}

TEST_F(EditorTest, ReadingAnewKeepsSelectionFocusAndPlace)
{
    for (int i = 100; i < 400; ++i)
        folder.WriteBmp(std::to_string(i) + ".bmp");
    Open();
    desktop.Key(VK_END);
    Settle();
    desktop.Hold({.control = true});
    Click("397.bmp");
    Click("395.bmp");
    desktop.Hold({});
    const toolkit::Surface before = desktop.Dump(List());
    EXPECT_EQ("300 objects, 3 selected", Frame().GetStatus().text);

    desktop.Key(VK_F5);
    Settle();
    const toolkit::Surface after = desktop.Dump(List());
    EXPECT_TRUE(std::equal(before.Row(0), before.Row(0) + before.Width() * before.Height(), after.Row(0)));

    folder.Remove("397.bmp");
    folder.WriteBmp("000.bmp");
    folder.WriteBmp("001.bmp");
    desktop.Key(VK_F5);
    Settle();
    EXPECT_EQ("301 objects, 2 selected", Frame().GetStatus().text);
    EXPECT_NE(std::string::npos, Rows().find("394.bmp (*395.bmp) 396.bmp 398.bmp (399.bmp)]"));
    folder.Remove("395.bmp");
    desktop.Key(VK_F5);
    Settle();
    EXPECT_NE(std::string::npos, Rows().find("394.bmp *396.bmp 398.bmp (399.bmp)]")) << "the next has the focus";

    desktop.Hold({.control = true});
    desktop.Key('A');
    desktop.Hold({});
    folder.Remove("000.bmp");
    desktop.Key(VK_F5);
    EXPECT_EQ("299 objects, 299 selected", Frame().GetStatus().text);
}

TEST_F(EditorTest, AFolderThatVanishedIsShownEmptyWithTheReason)
{
    folder.WriteBmp("Ada/a.bmp");
    Open();
    DoubleClick("Ada");
    folder.Remove("Ada");

    desktop.Key(VK_F5);
    Settle();
    EXPECT_EQ("/Ada/ | [] | 0 objects | ! Ada: no such file or directory", Screen());
    desktop.Key(VK_BACK);
    desktop.Key(VK_F5);
    EXPECT_EQ("/ | [] | 0 objects", Screen());
}

TEST_F(EditorTest, OfAHundredThousandPicturesOnlyThoseInSightAreRead)
{
    constexpr int kFiles = 100'000;
    folder.MakeEmptyFiles(kFiles, "frame %06d.bmp");
    Open();
    const std::size_t nFirst = reader.TakeReads().size();
    EXPECT_GT(nFirst, 5u);
    EXPECT_LT(nFirst, 60u);

    desktop.Hold({.control = true});
    desktop.Key('A');
    desktop.Hold({});
    EXPECT_EQ("100000 objects, 100000 selected", Frame().GetStatus().text);
    desktop.Key(VK_END);
    Settle();
    const Ledger reads = reader.TakeReads();
    EXPECT_LT(reads.size(), 60u);
    EXPECT_EQ(1, std::count(reads.begin(), reads.end(), "frame 099999.bmp"));
    EXPECT_EQ("frame 099999.bmp: not a BMP picture", Frame().GetStatus().detail);
}

TEST_F(EditorTest, WhatCannotBeOpenedLeavesEverythingAsItWas)
{
    folder.WriteBmp("a.bmp");
    folder.Write("file", "");
    EXPECT_EQ(folder.At("none") + ": no such file or directory", Open(folder.At("none")));
    EXPECT_EQ(nullptr, App().GetMainWindow());

    Open();
    Click("a.bmp");
    EXPECT_EQ(folder.At("file") + ": not a folder", Open(folder.At("file")));
    EXPECT_EQ("/ | [(*a.bmp)] | 1 object, 1 selected | a.bmp: 8 x 8 pixels", Screen());
}

TEST_F(EditorTest, AnotherLibraryTakesThePlaceOfTheFirst)
{
    folder.WriteBmp("Ada/a.bmp");
    folder.WriteBmp("Bo/b.bmp");
    Open(folder.At("Ada"));
    DoubleClick("a.bmp");
    Open(folder.At("Bo"));
    EXPECT_EQ("/ | [b.bmp] | 1 object", Screen());
    EXPECT_STREQ("Bo - Views", GetWindowText(App().GetMainWindow()));
}

TEST_F(EditorTest, ClosingTheWindowTellsTheProgramAndAFolderCanBeOpenedAgain)
{
    folder.WriteBmp("a.bmp");
    Open();
    toolkit::InputClose(App().GetMainWindow());
    desktop.Run();
    EXPECT_EQ(1, nClosed);
    EXPECT_EQ(nullptr, App().GetMainWindow());
    Open();
    EXPECT_EQ("/ | [a.bmp] | 1 object", Screen());
}

TEST_F(EditorTest, TheEditorEndsWhilePicturesAreBeingRead)
{
    for (const char* name : {"1.bmp", "2.bmp", "3.bmp", "4.bmp"})
        folder.WriteBmp(name);
    reader.Hold();
    EXPECT_EQ("", App().OpenFolder(folder.Path()));
    desktop.Run();
    reader.WaitForReads(2);
    reader.AllowAll();
    CloseApp();
    desktop.Run();
}

TEST_F(EditorTest, AnErrorIsShownWithItsCaptionAndLine)
{
    Open();
    ShowAtomError(List(), 0xE00A, editor::CErrorInfo::Make("walk.png: not a PNG picture").Get());
    ShowAtomError(nullptr, 0xE012, nullptr);
    EXPECT_EQ(std::vector<std::string>({"The name cannot be shown: walk.png: not a PNG picture",
                                        "The name was not changed: The reason is not known."}),
              desktop.TakeMessageBoxes());
}

} // namespace
