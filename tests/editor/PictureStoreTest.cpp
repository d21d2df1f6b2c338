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
    const auto isThere = [&](int extent) {
        return pPictures->Find(folder.At("large.bmp"), {extent, extent}, pAtom.Get()).pPicture != nullptr;
    };
    reader.Hold();
    EXPECT_FALSE(isThere(500));
    reader.WaitForReads(1);
    for (const int extent : {510, 520, 530, 600, 600})
        EXPECT_FALSE(isThere(extent));
    reader.AllowAll();
    Settle();
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
    reader.AllowAll();
    Settle();
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

} // namespace
