#include "Editor/widgets/Look.h"
#include "Toolkit/graphics/Scale.h"
#include "tests/editor/EditorFixture.h"
#include "tests/support/BmpFile.h"

#include <algorithm>

namespace
{

int CountDifferent(const toolkit::Surface& a, const toolkit::Surface& b)
{
    int n = 0;
    for (int y = 0; y < a.Height(); ++y)
        for (int x = 0; x < a.Width(); ++x)
            n += a.At(x, y) != b.At(x, y);
    return n;
}

TEST_F(EditorTest, EnterOpensTheFocusedRowAndThePathLeadsBack)
{
    folder.Make("Ada/Poses/one.bmp Bo/");
    Open();

    desktop.Key(VK_RETURN);
    EXPECT_EQ("/ | [Ada Bo] | 2 objects", Screen()) << "no row has the focus";
    desktop.Key(VK_HOME);
    desktop.Key(VK_RETURN);
    DoubleClick("Poses");
    ClickPath(2);
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen()) << "where one is already";
    const HWND hWays = Frame().GetBars().GetWays().GetSafeHwnd();
    const CPoint up = Frame().GetBars().GetWays().RectOf(editor::ID_UP).CenterPoint();
    desktop.Press(hWays, up);
    SetCapture(List());
    ReleaseCapture();
    desktop.Release(hWays, up);
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen()) << "someone took the mouse away";
    ClickPath(-1);
    EXPECT_EQ("/Ada/ | [(*Poses)] | 1 object, 1 selected | Poses", Screen());
    ClickPath(0);
    EXPECT_EQ("/ | [(*Ada) Bo] | 2 objects, 1 selected | Ada", Screen());
}

TEST_F(EditorTest, APictureIsShownLargeInTheListsPlace)
{
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF102030);
    folder.WriteBmp("tiny.bmp", 4, 4, 0xFF405060);
    Open();
    reader.TakeReads();
    DoubleClick("large.bmp");
    EXPECT_EQ("/large.bmp/ | picture |  | large.bmp: 2000 x 1000 pixels", Screen());
    EXPECT_EQ(Ledger({"large.bmp"}), reader.TakeReads()) << "at the pane's size";
    EXPECT_EQ(Picture(), GetFocus());
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF708090);
    Press(VK_F5);
    EXPECT_EQ(0xFF708090, MiddleOf(Picture())) << "read anew";
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(List(), GetFocus());

    DoubleClick("tiny.bmp");
    const toolkit::Surface shown = desktop.Dump(Picture());
    EXPECT_EQ(16 * 16, std::count(shown.Row(0), shown.Row(0) + shown.Width() * shown.Height(), 0xFF405060))
        << "enlarged four times, no more";
    for (const UINT vkey : {VK_RETURN, VK_BACK}) {
        desktop.Key(vkey);
        EXPECT_EQ("/ | [large.bmp (*tiny.bmp)] | 2 objects, 1 selected | tiny.bmp: 4 x 4 pixels", Screen());
        desktop.Key(VK_RETURN);
    }
}

TEST_F(EditorTest, TheArrowsLeadFromPictureToPictureAndWhatIsTransparentLiesOnChecks)
{
    folder.Make("1.bmp 3/");
    folder.WriteBmp("2.bmp", 40, 40, 0);
    folder.WriteBmp("10.bmp", 40, 40, 0xFF405060);
    Open();
    DoubleClick("1.bmp");
    Press(VK_RIGHT);
    EXPECT_EQ("/2.bmp/ | picture |  | 2.bmp: 40 x 40 pixels", Screen());
    const toolkit::Surface shown = desktop.Dump(Picture());
    const CPoint middle(shown.Width() / 2, shown.Height() / 2);
    EXPECT_NE(shown.At(middle.x + 4, middle.y + 4), shown.At(middle.x - 4, middle.y + 4));
    EXPECT_EQ(shown.At(middle.x + 4, middle.y + 4), shown.At(middle.x - 4, middle.y - 4));
    for (int i = 0; i < 2; ++i) // past the folder, and no further
        Press(VK_RIGHT);
    EXPECT_EQ("/10.bmp/ | picture |  | 10.bmp: 40 x 40 pixels", Screen());
    EXPECT_EQ(0xFF405060u, MiddleOf(Picture()));
    Press(VK_LEFT);
    EXPECT_EQ("2.bmp", Frame().Shown()->ShownName());
    EXPECT_EQ(Picture(), GetFocus());
}

TEST_F(EditorTest, APictureIsZoomedWhereTheMouseIsAndDraggedAndItsOwnPixelsAreShown)
{
    toolkit::Surface picture({1000, 800}, 0xFF000000);
    for (int y = 0; y < 800; ++y)
        for (int x = 0; x < 1000; ++x)
            picture.Row(y)[x] = 0xFF000000u | static_cast<unsigned>(x) << 8 | static_cast<unsigned>(y / 4);
    folder.Write("a.bmp", EncodeBmp(picture));
    folder.WriteBmp("b.bmp", 1000, 800, 0xFF102030);
    Open();
    DoubleClick("a.bmp");
    const CPoint middle = toolkit::Centred({}, desktop.Dump(Picture()).Bounds());
    const auto under = [&](CPoint at) { return desktop.Dump(Picture()).At(at.x, at.y); };
    const auto isNear = [](toolkit::Pixel a, toolkit::Pixel b) {
        return std::abs(static_cast<int>(a >> 8 & 0xFFFF) - static_cast<int>(b >> 8 & 0xFFFF)) <= 3;
    };
    const CPoint at(middle.x + 20, middle.y - 10);
    const toolkit::Pixel before = under(at);
    for (int i = 0; i < 3; ++i)
        desktop.Wheel(Picture(), at, 1);
    Settle();
    EXPECT_PRED2(isNear, before, under(at)) << "the same point";
    Press('1');
    EXPECT_EQ("100 %", Frame().GetStatus().text);
    EXPECT_EQ(under(middle) + 0x100, under(middle + CPoint(1, 0))) << "pixel by pixel";
    const toolkit::Pixel center = under(middle);
    desktop.Press(Picture(), middle);
    desktop.MoveTo(Picture(), middle - CPoint(50, 0));
    desktop.Release(Picture(), middle - CPoint(50, 0));
    EXPECT_EQ(center + 50 * 0x100, under(middle));
    for (int i = 0; i < 20; ++i)
        Press(VK_ADD);
    EXPECT_EQ("3200 %", Frame().GetStatus().text);
    EXPECT_EQ(under(middle), under(middle + CPoint(1, 0))) << "squares";
    Press(VK_RIGHT);
    EXPECT_EQ("3200 %", Frame().GetStatus().text) << "the next picture, likewise";
    Press('0');
    EXPECT_EQ("", Frame().GetStatus().text);
    EXPECT_EQ(0xFF102030, MiddleOf(Picture()));
}

TEST_F(EditorTest, ThumbnailsHaveTheSizeTheUserWantsAndWhatWasSeenStaysInSight)
{
    for (int i = 0; i < 60; ++i)
        folder.WriteBmp(std::to_string(i) + ".bmp", i == 30 ? 8 : 200, i == 30 ? 8 : 150, 0xFF405060);
    Open();
    Control('2');
    Frame().GetList().SetItemState(30, LVIS_SELECTED, LVIS_SELECTED);
    Frame().GetList().FocusSelection();
    Frame().GetList().SetItemState(30, 0, LVIS_SELECTED);
    Settle();
    const auto extent = [&] { return Frame().GetContent().GetThumbnailExtent(); };
    const auto isSeen = [&] {
        CRect row;
        Frame().GetList().GetItemRect(30, &row, LVIR_ICON);
        return row.top >= 0 && row.top < ClientOf(List()).bottom;
    };
    reader.TakeReads();
    std::string sizes;
    for (const UINT vkey : {VK_OEM_PLUS, VK_OEM_PLUS, VK_OEM_MINUS, UINT{'0'}}) {
        Control(vkey);
        sizes += std::to_string(extent()) + (isSeen() ? " " : "! ");
    }
    EXPECT_EQ("160 192 160 128 ", sizes);
    const HWND hSlider = Frame().GetBars().GetSizeSlider().m_hWnd;
    desktop.Click(hSlider, Frame().GetBars().GetSizeSlider().PlaceOf(512) + CPoint(8, 0));
    EXPECT_TRUE(isSeen() && extent() == 512);
    Settle();
    const auto countOf = [&] {
        const toolkit::Surface shown = desktop.Dump(List());
        return std::count(shown.Row(0), shown.Row(0) + shown.Width() * shown.Height(), 0xFF405060);
    };
    EXPECT_EQ(64, countOf()) << "as it is";
    Frame().GetViews().TogglePixels();
    Settle();
    EXPECT_LT(300 * 300, countOf()) << "its pixels as squares";
    desktop.Hold({.control = true});
    desktop.Wheel(List(), {50, 50}, -1);
    desktop.Hold({});
    EXPECT_EQ(384, extent());
}

TEST_F(EditorTest, WhatIsNoPictureTravelsWithTheOthersAndIsOpenedByItsProgram)
{
    folder.Make("Ada/ a.bmp b.kra v1.5/");
    Open();
    DoubleClick("b.kra");
    Press(VK_RETURN);
    EXPECT_EQ(Ledger({"open " + folder.At("b.kra"), "open " + folder.At("b.kra")}), desktop.TakeOutside());
    EXPECT_EQ("[a.bmp Ada (*b.kra) v1.5]", Rows()) << "nothing else is shown";

    Select({"b.kra", "v1.5"});
    Control('C');
    Control('V');
    EXPECT_EQ("Ada/ a.bmp b (2).kra b.kra v1.5 (2)/ v1.5/", folder.Everything())
        << "numbered before what tells its kind";
    Control('Z');
    desktop.Click(Tree().m_hWnd, PlaceInTree("b.kra"));
    EXPECT_EQ(Ledger(), desktop.TakeOutside()) << "a click shows its sign";
    SetFocus(Picture());
    Press(VK_RETURN);
    EXPECT_EQ(Ledger({"open " + folder.At("b.kra")}), desktop.TakeOutside());
    Press(VK_LEFT);
    EXPECT_EQ("a.bmp", editor::CMember::Of(Frame().GetContent().GetPicture().GetAtom())->ShownName())
        << "the next picture";
}

TEST_F(EditorTest, APictureThatTakesItsTimeSaysSoAndIsShownWhileItIsSizedAnew)
{
    folder.WriteBmp("large.bmp", 2000, 1000, 0xFF102030);
    Open();
    reader.Hold();
    desktop.DoubleClick(List(), PlaceOf("large.bmp"));
    EXPECT_EQ(0, CountInk(desktop.Dump(Picture()), editor::CalmColor())) << "nothing flashes up";
    desktop.Advance(1000);
    EXPECT_GT(CountInk(desktop.Dump(Picture()), editor::CalmColor()), 0);
    ReadAll();
    reader.Hold();
    ResizeWindow({400, 300});
    EXPECT_EQ(0xFF102030, MiddleOf(Picture())) << "the one that is there";
    EXPECT_EQ(400, PlaceOnScreen(Picture()).right) << "to the new edge";
    ReadAll();
    EXPECT_EQ(0xFF102030, MiddleOf(Picture()));
}

TEST_F(EditorTest, AFolderThatIsEmptyOrCannotBeOpenedSaysSoInTheListsPlace)
{
    folder.Make("Ada/");
    folder.Link("ring", ".");
    Open();
    DoubleClick("Ada");
    EXPECT_EQ("/Ada/ | [] | 0 objects", Screen());
    const int nInkOfEmpty = CountInk(desktop.Dump(List()), RGB(255, 255, 255));
    EXPECT_GT(nInkOfEmpty, 0) << "tells that there is nothing";
    folder.Remove("Ada");
    Press(VK_F5);
    EXPECT_EQ("/Ada/ | [] | 0 objects | ! Ada: no such file or directory", Screen());
    desktop.Key(VK_BACK);
    DoubleClick("ring");
    EXPECT_EQ("/ring/ | [] | 0 objects | ! ring: a link to a folder that holds it, not opened", Screen());
    EXPECT_GT(CountInk(desktop.Dump(List()), RGB(255, 255, 255)), nInkOfEmpty) << "and here why";
}

TEST_F(EditorTest, ReadingAnewKeepsSelectionFocusAndPlace)
{
    for (int i = 100; i < 400; ++i)
        folder.WriteBmp(std::to_string(i) + ".bmp");
    Open();
    Press(VK_END);
    Select({"399.bmp", "397.bmp", "395.bmp"});
    const toolkit::Surface before = desktop.Dump(List());
    Press(VK_F5);
    const toolkit::Surface after = desktop.Dump(List());
    EXPECT_TRUE(std::equal(before.Row(0), before.Row(0) + before.Width() * before.Height(), after.Row(0)));

    folder.Remove("397.bmp");
    folder.Make("000.bmp 001.bmp");
    Press(VK_F5);
    EXPECT_EQ("301 objects, 2 selected", Frame().GetStatus().text);
    EXPECT_TRUE(Rows().ends_with("394.bmp (*395.bmp) 396.bmp 398.bmp (399.bmp)]"));
    folder.Remove("395.bmp");
    Press(VK_F5);
    EXPECT_TRUE(Rows().ends_with("394.bmp *396.bmp 398.bmp (399.bmp)]")) << "the next has the focus";
}

TEST_F(EditorTest, OfAHundredThousandPicturesOnlyThoseInSightAreRead)
{
    folder.MakeEmptyFiles(100'000, "frame %06d.bmp");
    Open();
    const std::size_t nFirst = reader.TakeReads().size();
    EXPECT_GT(nFirst, 5u);
    EXPECT_LT(nFirst, 60u);
    Control('A');
    EXPECT_EQ("100000 objects, 100000 selected", Frame().GetStatus().text);
    Press(VK_END);
    EXPECT_EQ("frame 099999.bmp: not a BMP picture", Frame().GetStatus().detail);
    EXPECT_LT(reader.TakeReads().size(), 60u);
    Press(VK_F6);
    Press(VK_END);
    EXPECT_EQ("frame 099999.bmp", Frame().GetBars().GetPathBar().GetPath().back());
    EXPECT_LT(reader.TakeReads().size(), 100u);
}

TEST_F(EditorTest, WhatCannotBeOpenedLeavesEverythingAsItWasAndAfterClosingAFolderCanBeOpenedAgain)
{
    folder.Make("a.bmp");
    EXPECT_EQ(folder.At("none") + ": no such file or directory", Open(folder.At("none")));
    EXPECT_EQ(nullptr, App().GetMainWindow());
    Open();
    Click("a.bmp");
    EXPECT_EQ(folder.At("a.bmp") + ": not a folder", Open(folder.At("a.bmp")));
    EXPECT_EQ("/ | [(*a.bmp)] | 1 object, 1 selected | a.bmp: 8 x 8 pixels", Screen());

    CloseWindow();
    EXPECT_EQ(1, nClosed);
    EXPECT_EQ(nullptr, App().GetMainWindow());
    Open();
    EXPECT_EQ("/ | [a.bmp] | 1 object", Screen());
}

TEST_F(EditorTest, TheEditorEndsWhilePicturesAreBeingRead)
{
    folder.Make("1.bmp 2.bmp 3.bmp 4.bmp");
    reader.Hold();
    EXPECT_EQ("", App().OpenFolder(folder.Path()));
    desktop.Run();
    reader.WaitForReads(2);
    reader.AllowAll();
    CloseApp();
    desktop.Run();
}

TEST_F(EditorTest, SwitchingKeepsWhatIsShownSelectedAndFocused)
{
    for (const char* pszName : {"a.bmp", "b.bmp"})
        folder.WriteBmp(pszName, 90, 90, 0xFF102030);
    Open();
    Click("b.bmp");
    const HWND hIcons = List();
    const std::string before = Screen();
    Control('2');
    const HWND hThumbnails = List();
    EXPECT_EQ(hThumbnails, GetFocus());
    EXPECT_FALSE(IsWindowVisible(hIcons));
    EXPECT_EQ(before, Screen());
    CRect icon;
    Frame().GetList().GetItemRect(0, &icon, LVIR_ICON);
    const toolkit::Surface shown = desktop.Dump(hThumbnails);
    EXPECT_EQ(0xFF102030u, shown.At(icon.left + 24, icon.top + 24)) << "80 pixels wide, in the middle of 128";
    EXPECT_EQ(0xFFFFFFFFu, shown.At(icon.left + 23, icon.top + 24));

    hostkit::CPane& pane = static_cast<hostkit::CPane&>(*CWnd::FromHandle(GetParent(hThumbnails)));
    desktop.Click(pane.GetSafeHwnd(), pane.ChoiceRect(0).CenterPoint());
    EXPECT_EQ(hIcons, List());
    EXPECT_EQ(before, Screen());
    DoubleClick("b.bmp");
    Control('2'); // behind the picture
    EXPECT_TRUE(IsWindowVisible(Picture()));
    EXPECT_FALSE(IsWindowVisible(hThumbnails));
    Press(VK_BACK);
    EXPECT_EQ(before, Screen());
    EXPECT_EQ(hThumbnails, List());
    EXPECT_EQ(hThumbnails, GetFocus());
}

TEST_F(EditorTest, DarkAtOnceIsAsDarkFromTheStart)
{
    const toolkit::ColorScheme dark{RGB(27, 30, 32), RGB(252, 252, 252), RGB(61, 174, 233), RGB(252, 252, 252)};
    for (const char* pszName : {"a.bmp", "b.bmp"})
        folder.WriteBmp(pszName, 90, 90, 0xFF102030);
    folder.Make("Ada/ notes.txt walk.phase");
    const auto open = [&] {
        Open();
        Control('2');
        Click("b.bmp");
        return desktop.Dump(Frame().GetSafeHwnd());
    };
    const toolkit::Surface light = open();
    desktop.ShowColors(dark);
    const toolkit::Surface changed = desktop.Dump(Frame().GetSafeHwnd());
    desktop.ShowColors({});
    EXPECT_EQ(0, CountDifferent(light, desktop.Dump(Frame().GetSafeHwnd()))) << "and light again";

    desktop.ShowColors(dark);
    StartAnew();
    EXPECT_EQ(0, CountDifferent(open(), changed));
    EXPECT_LT(light.Width() * light.Height() * 9 / 10, CountDifferent(light, changed));
}

TEST_F(EditorTest, TextsCanBeReadOnEveryGroundInWhateverColours)
{
    const toolkit::ColorScheme schemes[] = {
        {},
        {RGB(255, 255, 255), RGB(35, 38, 41), RGB(61, 174, 233), RGB(255, 255, 255)},
        {RGB(27, 30, 32), RGB(252, 252, 252), RGB(61, 174, 233), RGB(252, 252, 252)},
        {RGB(45, 45, 45), RGB(140, 140, 140), RGB(255, 200, 0), RGB(255, 255, 255)}};
    folder.Write("a.bmp", "no picture");
    Open();
    DoubleClick("a.bmp");
    const CRect picture = desktop.Dump(Picture()).Bounds();
    const CRect reason(0, picture.CenterPoint().y + 50, picture.right, picture.bottom); // below its sign
    editor::CPathBar& path = Frame().GetBars().GetPathBar();
    const CRect crumb = path.AccParts().front().place;
    const auto ink = [&](HWND hWnd, CRect part) { // the farthest from what it lies on
        const toolkit::Surface shown = desktop.Dump(hWnd);
        double most = 0;
        for (int y = part.top; y < part.bottom; ++y)
            for (int x = part.left; x < part.right; ++x)
                most = std::max(most, toolkit::Contrast(toolkit::ToColor(shown.At(x, y)),
                                                        toolkit::ToColor(shown.At(part.left, part.top))));
        return most;
    };
    for (const toolkit::ColorScheme& scheme : schemes) {
        SCOPED_TRACE(scheme.text);
        desktop.ShowColors(scheme);
        EXPECT_LE(4.5, ink(Picture(), reason));
        desktop.MoveTo(Tree().m_hWnd, {5, 5});
        EXPECT_LE(4.5, ink(path.m_hWnd, crumb));
        desktop.MoveTo(path.m_hWnd, crumb.CenterPoint());
        EXPECT_LE(4.5, ink(path.m_hWnd, crumb));
        desktop.Press(path.m_hWnd, crumb.CenterPoint());
        EXPECT_LE(4.5, ink(path.m_hWnd, crumb));
        desktop.MoveTo(Tree().m_hWnd, {5, 5});
        desktop.Release(Tree().m_hWnd, {5, 5});
    }
}

TEST_F(EditorTest, PicturesScrolledPastAreNotRead)
{
    for (int i = 0; i < 300; ++i)
        folder.WriteBmp(std::to_string(1000 + i) + ".bmp");
    Open();
    Control('2');
    const auto first = reader.TakeReads().size();
    reader.Hold();
    for (int i = 0; i < 30; ++i)
        desktop.Key(VK_NEXT);
    reader.AllowAll();
    Press(VK_END);
    const Ledger reads = reader.TakeReads();
    EXPECT_LT(reads.size(), 2 * first) << "the pictures at the end, and those that had begun";
    EXPECT_NE(reads.end(), std::find(reads.begin(), reads.end(), "1299.bmp"));
}

} // namespace
