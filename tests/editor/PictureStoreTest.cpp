#include "Editor/pictures/IconPainter.h"
#include "Toolkit/graphics/ImageList.h"
#include "tests/editor/LibraryFixture.h"

namespace
{

class PictureStoreTest : public LibraryTest
{};

TEST_F(PictureStoreTest, AnIconIsAPlaceholderUntilItsPictureArrives)
{
    folder.WriteBmp("ball.bmp", 16, 16, 0xFF102030);
    folder.Write("bad.bmp", "BMPnot");
    folder.MakeFolder("Ada");
    Open();
    const auto pBall = Find("ball.bmp"), pBad = Find("bad.bmp"), pAda = Find("Ada");
    EXPECT_EQ(Ledger{}, reader.TakeReads()) << "nothing is read at opening";

    EXPECT_EQ("folder", Icon(pAda.Get()));
    EXPECT_EQ("none yet", Icon(pBall.Get()));
    EXPECT_EQ("none yet", Icon(pBad.Get()));
    EXPECT_EQ("", Error(pBad.Get()));
    Settle();
    EXPECT_EQ("102030", Icon(pBall.Get()));
    EXPECT_EQ("broken", Icon(pBad.Get()));
    EXPECT_EQ("bad.bmp: not a BMP picture", Error(pBad.Get()));
    EXPECT_EQ("", Error(pBall.Get()));
    Settle();
    EXPECT_EQ(2u, reader.TakeReads().size()) << "read once, good or bad";
}

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

    reader.AllowAll();
    Settle();
    EXPECT_EQ(Ledger({"1.bmp", "2.bmp", "5.bmp", "4.bmp"}), reader.TakeReads());
    EXPECT_EQ(Ledger({"1.bmp", "2.bmp", "5.bmp", "4.bmp"}), TakeArrivals());
    EXPECT_EQ("3080C0", Icon(p2.Get()));
}

TEST_F(PictureStoreTest, AllWhoWaitForOneFileHearOfItAndItIsReadOnce)
{
    folder.Make("ball.bmp");
    folder.Write("walk.phase", "ball.bmp\nball.bmp\n");
    Open();
    const auto pPhase = Container("walk.phase");
    const auto pFirst = At(pPhase.Get(), 0), pSecond = At(pPhase.Get(), 1);
    Icon(pFirst.Get());
    Icon(pSecond.Get());
    Settle();
    EXPECT_EQ(Ledger({"ball.bmp", "ball.bmp"}), TakeArrivals());
    EXPECT_EQ(Ledger({"ball.bmp"}), reader.TakeReads());
}

TEST_F(PictureStoreTest, AfterARecheckOnlyFilesThatChangedAreReadAndToldOf)
{
    folder.Make("same.bmp new.bmp gone.bmp");
    Open();
    const auto pSame = Find("same.bmp"), pNew = Find("new.bmp"), pGone = Find("gone.bmp");
    for (IAtom* pAtom : {pSame.Get(), pNew.Get(), pGone.Get()})
        Icon(pAtom);
    Settle();
    TakeArrivals();
    reader.TakeReads();

    folder.WriteBmp("new.bmp", 9, 9, 0xFF405060);
    folder.Remove("gone.bmp");
    pPictures->Recheck();
    for (IAtom* pAtom : {pSame.Get(), pNew.Get(), pGone.Get()})
        EXPECT_EQ("3080C0", Icon(pAtom)) << "what is known serves until then";
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
    const auto want = [&](const char* pszName) {
        const bool isThere = small.Find(folder.At(pszName), {48, 48}, pAtom.Get()).pPicture != nullptr;
        EXPECT_TRUE(desktop.RunUntil([&] { return small.IsIdle(); }));
        return isThere;
    };

    EXPECT_FALSE(want("1.bmp"));
    EXPECT_FALSE(want("2.bmp"));
    EXPECT_TRUE(want("1.bmp"));
    EXPECT_FALSE(want("3.bmp"));
    EXPECT_TRUE(want("1.bmp"));
    EXPECT_FALSE(want("2.bmp")) << "made room for the third";
}

TEST_F(PictureStoreTest, OneFileIsReadAgainForALargerSizeOnlyWhenThatShowsMore)
{
    folder.WriteBmp("small.bmp", 20, 10);
    folder.WriteBmp("large.bmp", 400, 200);
    Open();
    const auto pAtom = Find("small.bmp");
    const auto sizeOf = [&](const char* pszName, CSize size) {
        pPictures->Find(folder.At(pszName), size, pAtom.Get());
        Settle();
        const toolkit::Surface* const pPicture = pPictures->Find(folder.At(pszName), size, pAtom.Get()).pPicture;
        return std::to_string(pPicture->Width()) + "x" + std::to_string(pPicture->Height());
    };

    EXPECT_EQ("20x10", sizeOf("small.bmp", {48, 48}));
    EXPECT_EQ("20x10", sizeOf("small.bmp", {500, 500}));
    EXPECT_EQ("48x24", sizeOf("large.bmp", {48, 48}));
    EXPECT_EQ("300x150", sizeOf("large.bmp", {300, 300}));
    EXPECT_EQ("48x24", sizeOf("large.bmp", {48, 48}));
    EXPECT_EQ(Ledger({"small.bmp", "large.bmp", "large.bmp"}), reader.TakeReads());
    EXPECT_EQ(CSize(400, 200), pPictures->FullSizeOf(folder.At("large.bmp")));
}

TEST_F(PictureStoreTest, WhileAPictureIsSizedOnlyTheLastSizeWaits)
{
    folder.WriteBmp("large.bmp", 900, 90);
    folder.WriteBmp("other.bmp");
    Open();
    const auto pAtom = Find("large.bmp");
    const auto isThere = [&](CSize size) {
        return pPictures->Find(folder.At("large.bmp"), size, pAtom.Get()).pPicture != nullptr;
    };
    reader.Hold();
    EXPECT_FALSE(isThere({500, 500}));
    reader.WaitForReads(1);
    for (const int extent : {510, 520, 530, 600, 600})
        EXPECT_FALSE(isThere({extent, extent}));

    reader.AllowAll();
    Settle();
    EXPECT_EQ(2u, reader.TakeReads().size()) << "the one that had begun, and the last";
    EXPECT_EQ(Ledger({"large.bmp"}), TakeArrivals());
    EXPECT_TRUE(isThere({600, 600}));

    reader.Hold();
    EXPECT_FALSE(isThere({700, 700}));
    reader.WaitForReads(3);
    EXPECT_FALSE(isThere({710, 710}));
    EXPECT_FALSE(isThere({700, 700}));
    Icon(Find("other.bmp").Get()); // goes before what is wished for again
    reader.Allow(1);
    reader.WaitForReads(4);
    desktop.Run();
    EXPECT_TRUE(isThere({700, 700})) << "what had begun serves";
    reader.AllowAll();
    Settle();
    EXPECT_EQ(Ledger({"large.bmp", "other.bmp"}), reader.TakeReads());
}

TEST_F(PictureStoreTest, AnIconGoesToTheSlotItIsGivenOrToANewOne)
{
    folder.MakeFolder("Ada");
    Open();
    const auto pIcon = CStubRef<IAtomIcon>::From(Find("Ada").Get());
    CImageList images;
    images.Create(32, 32, ILC_COLOR32, 0, 4);

    EXPECT_EQ(0, pIcon->AddToImageList(images.GetSafeHandle(), -1));
    EXPECT_EQ(1, pIcon->AddToImageList(images.GetSafeHandle(), -1));
    EXPECT_EQ(0, pIcon->AddToImageList(images.GetSafeHandle(), 0));
    EXPECT_EQ(2, images.GetImageCount());
    EXPECT_EQ(-1, pIcon->AddToImageList(images.GetSafeHandle(), 7));
    EXPECT_EQ(-1, pIcon->AddToImageList(nullptr, -1));
    ICONREQUEST none{0, 16, nullptr};
    EXPECT_FALSE(pIcon->GetIcon(&none));
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

} // namespace
