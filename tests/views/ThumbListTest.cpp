// The pictures of a thumbnail list, its images, and what the mouse has passed over.
#include "Toolkit/run/Run.h"
#include "tests/support/AllocationFailures.h"
#include "tests/views/ListTest.h"

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255), kBlue = RGB(0, 0, 255), kGreen = RGB(0, 255, 0),
                   kBack = RGB(222, 247, 254), kFolder = RGB(200, 100, 50), kMarker = RGB(255, 255, 0);
constexpr CRect kMiddle(24, 24, 104, 104);

using Fills = std::vector<std::pair<CRect, COLORREF>>;

// A picture as it must be, filled by filled rectangle; the frame comes last.
toolkit::Surface Picture(Fills fills)
{
    constexpr COLORREF kLight = RGB(243, 243, 243), kDark = RGB(105, 105, 105);
    fills.insert(fills.begin(), {{0, 0, 128, 128}, kWhite});
    for (int i = 0; i < 2; ++i) { // raised outside, sunken inside
        const COLORREF topLeft = i ? kDark : kLight, bottomRight = i ? kLight : kDark;
        fills.push_back({{i, i, i + 1, 128 - i}, topLeft});
        fills.push_back({{i, i, 128 - i, i + 1}, topLeft});
        fills.push_back({{127 - i, i, 128 - i, 128 - i}, bottomRight});
        fills.push_back({{i, 127 - i, 128 - i, 128 - i}, bottomRight});
    }
    toolkit::Surface picture({128, 128});
    for (const auto& [rect, color] : fills)
        for (int y = rect.top; y < rect.bottom; ++y)
            std::fill(picture.Row(y) + rect.left, picture.Row(y) + rect.right, toolkit::ToPixel(color));
    return picture;
}

const Fills kFolderFills{{{64, 44, 104, 84}, kFolder}};
const Fills kThumbFills{{kMiddle, kBack}, {{24, 24, 64, 104}, kBlue}};

// "" when both are the same, else where they first differ.
std::string Difference(const toolkit::Surface& expected, const toolkit::Surface& actual)
{
    char text[60] = "";
    for (int y = 127; y >= 0; --y)
        for (int x = 127; x >= 0; --x)
            if (expected.At(x, y) != actual.At(x, y))
                std::snprintf(text, sizeof text, "%d,%d: %08X instead of %08X", x, y, actual.At(x, y),
                              expected.At(x, y));
    return text;
}

// The brush behind thumbnails stays from the first list on: it is no leak of a test.
const bool s_brushMade = (CThumbList(), true);

class ThumbListTest : public ListTest
{
protected:
    ThumbListTest()
    {
        toolkit::Surface folder({40, 20}, 0xFFFF0000); // the left half is transparent
        for (int y = 0; y < 20; ++y)
            std::fill_n(folder.Row(y) + 20, 20, toolkit::ToPixel(kFolder));
        resources.AddBitmap(1006, folder);
        resources.AddBitmap(1011, toolkit::Surface({20, 20}, toolkit::ToPixel(kMarker)));
        for (const AtomRef& pMember : box->members)
            pMember->pLedger = &drawn;
        a->hasIcon = b->hasIcon = true;
        a->nFrames = 1;
    }

    FakeContainer* AddContainer(const std::string& strName, int nFrames)
    {
        auto* const pNew = new FakeContainer(strName);
        pNew->nFrames = nFrames;
        pNew->pLedger = &drawn;
        box->Add(pNew);
        return pNew;
    }

    // Not shown: a test hints the rows it wants.
    CThumbList& MakeHidden()
    {
        m_pList = std::make_unique<CThumbList>();
        EXPECT_TRUE(m_pList->Create(&frame));
        m_pList->MoveWindow(CRect(0, 0, 700, 400));
        m_pList->SetRootAtom(box);
        return *m_pList;
    }
    CThumbList& MakeShown()
    {
        CThumbList& list = MakeHidden();
        list.ShowWindow(SW_SHOW);
        desktop.Run();
        return list;
    }

    static HIMAGELIST Images(const CThumbList& list)
    {
        return reinterpret_cast<HIMAGELIST>(list.SendMessage(LVM_GETIMAGELIST, LVSIL_NORMAL));
    }
    static int CountImages(const CThumbList& list) { return ImageList_GetImageCount(Images(list)); }
    static std::string ImageDifference(const CThumbList& list, int nImage, const Fills& fills)
    {
        toolkit::Surface image({128, 128});
        const HDC hdc = toolkit::CreateSurfaceDC(image, {}, toolkit::Region(image.Bounds()));
        EXPECT_TRUE(ImageList_Draw(Images(list), nImage, hdc, 0, 0, ILD_NORMAL));
        DeleteDC(hdc);
        return Difference(Picture(fills), image);
    }
    // Moves there; whether the animation's timer, stopped before, has been started again.
    bool Animates(CThumbList& list, CPoint at)
    {
        list.KillTimer(1234);
        desktop.MoveTo(list.m_hWnd, at);
        return toolkit::CountWindows().timers != 0;
    }

    FakeContainer* const box = MakeBox({"a", "b", "c", "d"});
    FakeAtom* const a = box->Named("a");
    FakeAtom* const b = box->Named("b");
    Ledger drawn;

private:
    std::unique_ptr<CThumbList> m_pList;
};

TEST_F(ThumbListTest, APictureIsTheThumbnailElseTheIconElseTheFolder)
{
    CThumbList& list = MakeHidden();
    EXPECT_EQ(1, CountImages(list));
    EXPECT_EQ("", ImageDifference(list, 0, kFolderFills));

    AddContainer("e", 3);
    FakeContainer* const pThumb = AddContainer("f", 1); // what fails gives the folder without a marker
    FakeContainer* const pIcon = AddContainer("g", 0);
    pThumb->hasIcon = pIcon->hasIcon = pThumb->thumbFails = pIcon->iconFails = true;
    list.SetRootAtom(box);
    Hint(list, 0, 6);
    EXPECT_EQ("a 1, b 2, c 3, d 4, e 5, f 6, g 7", Shown(list, 0, 6));
    EXPECT_EQ(Ledger({"draw a at 24,24-104,104 (0, 2, 0)", "icon b 48x48", "draw e at 24,24-104,104 (0, 2, 0)",
                      "draw f at 24,24-104,104 (0, 2, 0)", "icon g 48x48"}),
              drawn);
    EXPECT_EQ("", ImageDifference(list, 1, kThumbFills));
    EXPECT_EQ("", ImageDifference(list, 2, {{kMiddle, kGreen}}));
    for (const int nImage : {3, 6, 7})
        EXPECT_EQ("", ImageDifference(list, nImage, kFolderFills));
    EXPECT_EQ("", ImageDifference(list, 5, {kThumbFills[0], kThumbFills[1], {{108, 108, 124, 124}, kMarker}}));
}

TEST_F(ThumbListTest, TheHostChoosesHowLargePicturesAreAndLargeOnesLeaveTheMemorySooner)
{
    FakeContainer* const pMany = MakeBox({});
    for (int i = 0; i < 200; ++i)
        pMany->Add(new FakeAtom("n" + std::to_string(i)));
    CThumbList& list = MakeShown();
    list.SetRootAtom(pMany);
    EXPECT_FALSE(list.SetPictureExtent(31));
    for (const auto& [nExtent, nDrawn] : {std::pair(64, 40), {512, 464}, {128, 80}, {512, 464}}) {
        EXPECT_TRUE(list.SetPictureExtent(nExtent));
        desktop.Run();
        int cx = 0, cy = 0;
        ImageList_GetIconSize(Images(list), &cx, &cy);
        EXPECT_EQ(CSize(nExtent, nExtent), CSize(cx, cy));
        EXPECT_EQ(nDrawn, list.GetDrawingExtent());
    }
    for (int i = 0; i < 200; ++i, desktop.Advance(10)) {
        list.EnsureVisible(i, FALSE);
        desktop.Run();
    }
    EXPECT_LE(CountImages(list), 70) << "of a megabyte each";
}

TEST_F(ThumbListTest, WithoutTheHostsBitmapsPicturesAreBlankAndNeverAnotherRows)
{
    resources.Leave();
    CThumbList& list = MakeHidden();
    EXPECT_EQ("", ImageDifference(list, 0, {}));
    Hint(list, 0, 0);
    list.OnChangeAtom(a, nullptr); // its image is free
    Hint(list, 2, 2);
    EXPECT_EQ("c 1", Shown(list, 2));
    EXPECT_EQ("", ImageDifference(list, 1, {}));
    resources.Join();
}

TEST_F(ThumbListTest, WhereMemoryRunsOutARowHasNoPictureOrTheFolderAndTheNextOneItsOwn)
{
    CThumbList& list = MakeHidden();
    const int nFailures = FailEveryAllocation([&] {
        list.OnChangeAtom(a, nullptr);
        Hint(list, 0, 0);
    });
    EXPECT_GT(nFailures, 5);
    desktop.TakeMessageBoxes(); // of the row's name
    list.SetRootAtom(box);
    Hint(list, 0, 1);
    const int nImage = std::stoi(Shown(list, 0).substr(2));
    EXPECT_EQ("", ImageDifference(list, nImage, kThumbFills));
}

TEST_F(ThumbListTest, TheAnimatedThumbnailsTheMousePassedOverAreHeldUntilTheRowsGo)
{
    FakeAtom* const pAnimated = box->Named("c");
    pAnimated->nFrames = 2;
    CThumbList& list = MakeShown();
    EXPECT_EQ(1, toolkit::CountWindows().timers);
    const int nBefore = pAnimated->CountReferences();
    EXPECT_FALSE(Animates(list, PointOf(list, 0))); // a single frame
    EXPECT_FALSE(Animates(list, PointOf(list, 1))); // an icon
    EXPECT_TRUE(Animates(list, PointOf(list, 2)));
    EXPECT_FALSE(Animates(list, PointOf(list, 2))); // known already
    EXPECT_EQ(nBefore + 1, pAnimated->CountReferences());

    list.SetRootAtom(a); // no container: the view is emptied
    EXPECT_EQ(1, pAnimated->CountReferences());
    list.SetRootAtom(box);
    desktop.MoveTo(list.m_hWnd, PointOf(list, 2));
    list.DestroyWindow();
    EXPECT_EQ(1, pAnimated->CountReferences());
}

TEST_F(ThumbListTest, ThePaneIsTheThumbnailPaneAndItsTimerRunsWhileItIsShownAndChangesNothing)
{
    resources.AddString(1009, "Pictures");
    CThumbList& list = MakeShown();
    EXPECT_EQ("pane 1 \"Pictures\"", editor.TakeLedger().at(1));
    EXPECT_EQ("", ImageDifference(list, 1, kThumbFills));
    drawn.clear();
    desktop.Advance(500);
    EXPECT_EQ(Ledger(), drawn);
    list.ShowWindow(SW_HIDE);
    EXPECT_EQ(0, toolkit::CountWindows().timers);
}

} // namespace
