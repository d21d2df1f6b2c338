// Pictures as thumbnails.
#include "Toolkit/graphics/Gdi.h"
#include "tests/editor/LibraryFixture.h"

namespace
{

class ThumbnailTest : public LibraryTest
{
protected:
    static auto Thumbnail(const CStubRef<IAtom>& pAtom) { return CStubRef<IAtomThumbnail>::From(pAtom.Get()); }
    auto Thumbnail(const char* pszName) { return Thumbnail(Find(pszName)); }

    // Drawn into 80 by 80 pixels of white: the picture's colour and place, or "none yet", "fails", "nothing".
    static std::string Drawn(IAtomThumbnail* pThumb, UINT nFrame = 0)
    {
        toolkit::Surface surface({100, 100}, 0xFFFFFFFF);
        const HDC hdc = toolkit::CreateSurfaceDC(surface, {}, toolkit::Region(surface.Bounds()));
        CRect rect(10, 10, 90, 90);
        const BOOL bDrawn = pThumb->Draw(hdc, rect, 0, 2, nFrame);
        DeleteDC(hdc);
        CRect place;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x)
                if (surface.At(x, y) != 0xFFFFFFFF)
                    place = place | CRect(x, y, x + 1, y + 1);
        if (!bDrawn)
            return place.IsRectEmpty() ? "fails" : "fails, but draws";
        const toolkit::Pixel pixel = surface.At(place.left, place.top);
        if (pixel != surface.At(50, 50))
            return "none yet";
        char text[80];
        std::snprintf(text, sizeof text, "%06X at %d,%d-%d,%d", pixel & 0xFFFFFF, place.left, place.top, place.right,
                      place.bottom);
        return text;
    }
};

TEST_F(ThumbnailTest, APictureIsDrawnInTheMiddleNeverEnlargedAndABrokenOneFails)
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
    EXPECT_EQ("fails", Drawn(pBad.Get()));

    const auto pPhase = Container("walk.phase");
    EXPECT_EQ("102030 at 10,30-90,70", Drawn(Thumbnail(At(pPhase.Get(), 0)).Get()));
    EXPECT_EQ("fails", Drawn(Thumbnail(At(pPhase.Get(), 1)).Get()));
    EXPECT_EQ(3u, reader.TakeReads().size());
}

TEST_F(ThumbnailTest, AnAnimatedPictureIsDrawnFrameByFrame)
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

TEST_F(ThumbnailTest, PicturesThatNobodySeesAnyMoreAreNotReadUntilSomeoneDoes)
{
    folder.Make("1.bmp 2.bmp 3.bmp");
    Open();
    const auto p3 = Find("3.bmp");
    reader.Hold();
    Drawn(Thumbnail("1.bmp").Get());
    reader.WaitForReads(1);
    Drawn(Thumbnail("2.bmp").Get());
    Icon(p3.Get()); // of another size
    pPictures->SendAwayUnseen({80, 80}, [](IAtom*) { return false; });
    desktop.Run();
    Ledger away = TakeArrivals();
    std::sort(away.begin(), away.end());
    EXPECT_EQ(Ledger({"1.bmp", "2.bmp"}), away);
    reader.AllowAll();
    Settle();
    EXPECT_EQ(Ledger({"1.bmp", "3.bmp"}), reader.TakeReads());
    EXPECT_EQ("3080C0 at 46,46-54,54", Drawn(Thumbnail("1.bmp").Get())) << "what had begun serves";
    EXPECT_EQ("none yet", Drawn(Thumbnail("2.bmp").Get()));
    Settle();
    EXPECT_EQ("3080C0 at 46,46-54,54", Drawn(Thumbnail("2.bmp").Get()));
}

} // namespace
