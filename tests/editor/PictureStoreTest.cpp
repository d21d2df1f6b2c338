#include "Toolkit/graphics/Gdi.h"
#include "tests/editor/LibraryFixture.h"

namespace
{

// Pictures as icons and as thumbnails.
class PictureStoreTest : public LibraryTest
{
protected:
    static auto Thumbnail(const CStubRef<IAtom>& pAtom) { return CStubRef<IAtomThumbnail>::From(pAtom.Get()); }
    auto Thumbnail(const char* pszName) { return Thumbnail(Find(pszName)); }

    // Drawn into 80 by 80 pixels of white: the picture's colour and place, or "none yet", "fails", "nothing".
    static std::string Drawn(IAtomThumbnail* pThumb, UINT nFrame = 0)
    {
        toolkit::Surface surface({100, 100}, toolkit::ScreenScale(), 0xFFFFFFFF);
        const HDC hdc = toolkit::CreateSurfaceDC(surface, {}, toolkit::Region({{}, surface.Size()}));
        CRect rect(10, 10, 90, 90);
        const BOOL bDrawn = pThumb->Draw(hdc, rect, 0, 2, nFrame);
        DeleteDC(hdc);
        CRect place;
        bool isRed = false; // as the mark on a broken picture is
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x) {
                const toolkit::Pixel pixel = surface.At(x, y);
                if (pixel != 0xFFFFFFFF)
                    place = place | CRect(x, y, x + 1, y + 1);
                isRed |= (pixel >> 16 & 0xFF) > 2 * (pixel >> 8 & 0xFF);
            }
        if (!bDrawn)
            return place.IsRectEmpty() ? "fails" : "fails, but draws";
        const toolkit::Pixel pixel = surface.At(place.left, place.top);
        if (pixel != surface.At(surface.Width() / 2, surface.Height() / 2))
            return isRed ? "broken" : "none yet";
        char text[80];
        std::snprintf(text, sizeof text, "%06X at %d,%d-%d,%d", pixel & 0xFFFFFF, place.left, place.top, place.right,
                      place.bottom);
        return text;
    }
};

TEST_F(PictureStoreTest, TheNewestWishIsReadFirstAndWhoWaitsTooLongAsksAgain)
{
    folder.Make("1.bmp 2.bmp 3.bmp 4.bmp 5.bmp");
    Open();
    const auto p1 = Find("1.bmp"), p2 = Find("2.bmp"), p3 = Find("3.bmp"), p4 = Find("4.bmp"), p5 = Find("5.bmp");
    reader.Hold();
    Icon(p1.Get());
    reader.WaitForReads(1);
    for (IAtom* pAtom : {p2.Get(), p3.Get(), p4.Get(), p5.Get()})
        Icon(pAtom); // three may wait
    desktop.Run();
    EXPECT_EQ(Ledger({"2.bmp"}), TakeArrivals()) << "sent away without a picture";
    EXPECT_EQ("none yet", Icon(p2.Get())) << "a new wish, which sends the next one away";
    desktop.Run();
    EXPECT_EQ(Ledger({"3.bmp"}), TakeArrivals());

    ReadAll();
    EXPECT_EQ(Ledger({"1.bmp", "2.bmp", "5.bmp", "4.bmp"}), reader.TakeReads());
    EXPECT_EQ(Ledger({"1.bmp", "2.bmp", "5.bmp", "4.bmp"}), TakeArrivals());
    EXPECT_EQ("3080C0", Icon(p2.Get()));
}

TEST_F(PictureStoreTest, AllWhoWaitForOneFileHearOfItAndItIsReadOnce)
{
    folder.Make("same.bmp new.bmp gone.bmp");
    folder.Write("walk.phase", "same.bmp\nsame.bmp\n");
    Open();
    const auto pPhase = Container("walk.phase");
    const auto pFirst = At(pPhase.Get(), 0), pSame = At(pPhase.Get(), 1);
    const auto pNew = Find("new.bmp"), pGone = Find("gone.bmp");
    for (const auto* pAtom : {&pFirst, &pSame, &pNew, &pGone})
        Icon(pAtom->Get());
    Settle();
    EXPECT_EQ(4u, TakeArrivals().size());
    EXPECT_EQ(3u, reader.TakeReads().size());

    folder.WriteBmp("new.bmp", 9, 9, 0xFF405060);
    folder.Remove("gone.bmp");
    pPictures->Recheck();
    for (const auto* pAtom : {&pSame, &pNew, &pGone})
        EXPECT_EQ("3080C0", Icon(pAtom->Get())) << "what is known serves until then";
    Settle();
    EXPECT_EQ(Ledger({"new.bmp"}), reader.TakeReads());
    EXPECT_EQ(2u, TakeArrivals().size());
    EXPECT_EQ("3080C0", Icon(pSame.Get()));
    EXPECT_EQ("405060", Icon(pNew.Get()));
    EXPECT_EQ("broken", Icon(pGone.Get()));
}

TEST_F(PictureStoreTest, WhatWasNotWantedForTheLongestLeavesTheMemoryFirst)
{
    for (const char* name : {"1.bmp", "2.bmp", "3.bmp"})
        folder.WriteBmp(name, 32, 32);
    Open();
    editor::PictureStore::Limits limits;
    limits.bytes = 2 * 32 * 32 * 4 + 2000; // two of them
    limits.threads = 1;
    editor::PictureStore small(reader, limits, [](IAtom*) {});
    const auto pAtom = Find("1.bmp");
    std::string held;
    for (const char* pszName : {"1.bmp", "2.bmp", "1.bmp", "3.bmp", "1.bmp", "2.bmp"}) {
        held += small.Find(folder.At(pszName), {48, 48}, pAtom.Get()).pPicture ? " yes" : " no";
        EXPECT_TRUE(desktop.RunUntil([&] { return small.IsIdle(); }));
    }
    EXPECT_EQ(" no no yes no yes no", held) << "the second made room for the third";
}

TEST_F(PictureStoreTest, WhileAPictureIsSizedOnlyTheLastSizeWaits)
{
    folder.WriteBmp("large.bmp", 900, 90);
    folder.WriteBmp("other.bmp");
    Open();
    const auto pAtom = Find("large.bmp");
    const auto isThere = [&](int extent) {
        return pPictures->Find(folder.At("large.bmp"), {extent, extent}, pAtom.Get()).pPicture != nullptr;
    };
    reader.Hold();
    EXPECT_FALSE(isThere(500));
    reader.WaitForReads(1);
    for (const int extent : {510, 520, 530, 600, 600})
        EXPECT_FALSE(isThere(extent));
    ReadAll();
    EXPECT_EQ(2u, reader.TakeReads().size()) << "the one that had begun, and the last";
    EXPECT_EQ(Ledger({"large.bmp"}), TakeArrivals());
    EXPECT_TRUE(isThere(600));

    reader.Hold();
    EXPECT_FALSE(isThere(700));
    reader.WaitForReads(3);
    EXPECT_FALSE(isThere(710));
    EXPECT_FALSE(isThere(700));
    Icon(Find("other.bmp").Get()); // goes before what is wished for again
    reader.Allow(1);
    reader.WaitForReads(4);
    desktop.Run();
    EXPECT_TRUE(isThere(700)) << "what had begun serves";
    ReadAll();
    EXPECT_EQ(Ledger({"large.bmp", "other.bmp"}), reader.TakeReads());
}

TEST_F(PictureStoreTest, AfterStoppingNobodyIsToldAnythingAndNothingIsRead)
{
    folder.Make("1.bmp 2.bmp");
    Open();
    const auto p1 = Find("1.bmp"), p2 = Find("2.bmp");
    reader.Hold();
    Icon(p1.Get());
    reader.WaitForReads(1);

    pPictures->Stop(); // not held up by what is being read
    reader.AllowAll();
    Icon(p2.Get());
    desktop.Run();
    EXPECT_EQ(Ledger({"1.bmp"}), reader.TakeReads());
    EXPECT_EQ(Ledger{}, TakeArrivals());
    EXPECT_EQ("none yet", Icon(p1.Get()));
}

TEST_F(PictureStoreTest, APictureIsDrawnInTheMiddleNeverEnlargedAndABrokenOneAsSuch)
{
    folder.WriteBmp("wide.bmp", 320, 160, 0xFF102030);
    folder.WriteBmp("small.bmp", 16, 10, 0xFF405060);
    folder.Write("bad.bmp", "BMPnot");
    folder.MakeFolder("Ada");
    folder.Write("walk.phase", "wide.bmp\n../outside.bmp\n");
    Open();
    const auto pWide = Thumbnail("wide.bmp"), pSmall = Thumbnail("small.bmp"), pBad = Thumbnail("bad.bmp");
    EXPECT_FALSE(Thumbnail("Ada"));
    for (const auto* p : {&pWide, &pSmall, &pBad})
        EXPECT_EQ("none yet", Drawn(p->Get()));
    Settle();
    EXPECT_EQ(3u, TakeArrivals().size());
    EXPECT_EQ("102030 at 10,30-90,70", Drawn(pWide.Get()));
    EXPECT_EQ("405060 at 42,45-58,55", Drawn(pSmall.Get()));
    EXPECT_EQ("broken", Drawn(pBad.Get()));

    const auto pPhase = Container("walk.phase");
    EXPECT_EQ("102030 at 10,30-90,70", Drawn(Thumbnail(At(pPhase.Get(), 0)).Get()));
    EXPECT_EQ("broken", Drawn(Thumbnail(At(pPhase.Get(), 1)).Get()));
    EXPECT_EQ(3u, reader.TakeReads().size());
}

TEST_F(PictureStoreTest, UntilItIsReadAtItsSizeAPictureIsDrawnAsItIsKnown)
{
    folder.WriteBmp("wide.bmp", 320, 160, 0xFF102030);
    Open();
    const CStubRef<IAtom> pWide = Find("wide.bmp");
    Icon(pWide.Get());
    Settle();
    reader.Hold();
    EXPECT_EQ("102030 at 10,30-90,70", Drawn(Thumbnail(pWide).Get()));
    EXPECT_FALSE(pPictures->IsIdle()) << "it is being read";
    ReadAll();
    EXPECT_EQ("102030 at 10,30-90,70", Drawn(Thumbnail(pWide).Get()));
}

TEST_F(PictureStoreTest, OnAFineScreenPicturesAreReadAtItsPixelsAndAsLargeAsElsewhere)
{
    folder.WriteBmp("wide.bmp", 320, 160, 0xFF102030);
    folder.WriteBmp("small.bmp", 16, 10, 0xFF405060);
    desktop.ShowScale(toolkit::PixelScale(2));
    Open();
    const CStubRef<IAtom> pWide = Find("wide.bmp"), pSmall = Find("small.bmp");
    Drawn(Thumbnail(pWide).Get());
    Drawn(Thumbnail(pSmall).Get());
    Settle();
    EXPECT_EQ("102030 at 20,60-180,140", Drawn(Thumbnail(pWide).Get()));
    EXPECT_EQ("405060 at 84,90-116,110", Drawn(Thumbnail(pSmall).Get()));
    const editor::PictureStore::Answer answer = pPictures->Find(folder.At("wide.bmp"), {160, 160}, pWide.Get());
    ASSERT_TRUE(answer.pPicture) << "that is what was read";
    EXPECT_EQ(160, answer.pPicture->Width());

    ICONREQUEST request{32, 32, nullptr};
    ASSERT_TRUE(CStubRef<IAtomIcon>::From(pWide.Get())->GetIcon(&request));
    EXPECT_EQ(CSize(32, 32), toolkit::IconSurface(request.hIcon)->Size());
    EXPECT_EQ(64, toolkit::IconSurface(request.hIcon)->Width());
    DestroyIcon(request.hIcon);
}

TEST_F(PictureStoreTest, AnAnimatedPictureIsDrawnFrameByFrame)
{
    folder.WriteBmp("film.bmp", 100, 300, 0xFF102030);
    Open();
    const auto pFilm = Thumbnail("film.bmp");
    EXPECT_EQ(1u, pFilm->GetFrameCount());
    EXPECT_EQ("none yet", Drawn(pFilm.Get(), 2));
    Settle();
    EXPECT_EQ(3u, pFilm->GetFrameCount());
    EXPECT_EQ("none yet", Drawn(pFilm.Get(), 2));
    Settle();
    EXPECT_EQ("102030 at 10,10-90,90", Drawn(pFilm.Get(), 2));
    EXPECT_EQ("102030 at 10,10-90,90", Drawn(pFilm.Get(), 0));
    EXPECT_EQ("fails", Drawn(pFilm.Get(), 3));
    EXPECT_EQ(2u, reader.TakeReads().size());
}

} // namespace
