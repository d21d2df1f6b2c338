// A phase that is opened can be played above its frames: with buttons, keys and in its own time.
#include "Editor/player/AnimationFrames.h"
#include "Editor/player/Playback.h"
#include "Toolkit/graphics/Scale.h"
#include "tests/editor/EditorFixture.h"
#include "tests/support/BmpFile.h"

#include <atomic>

namespace
{

std::string Played(editor::Playback& playback, int nFrames)
{
    std::string frames;
    playback.Play();
    for (int i = 0; i < nFrames && playback.IsPlaying(); ++i) {
        frames += std::to_string(playback.At());
        playback.Advance();
    }
    return frames + (playback.IsPlaying() ? "..." : ".");
}

TEST(PlaybackTest, PlaysRoundAndRoundToAndFroAndAsOftenAsIsSaid)
{
    editor::Playback playback;
    EXPECT_EQ(".", Played(playback, 3));
    playback.SetCount(3);
    playback.SetRepeats(2);
    EXPECT_EQ("0120120...", Played(playback, 7));
    playback.GoTo(0);
    playback.SetTurnsBack(true);
    EXPECT_EQ("01210121...", Played(playback, 8));
    playback.GoTo(0);
    playback.SetTurnsBack(true);
    playback.SetForEver(false);
    EXPECT_EQ("012101210.", Played(playback, 20));
    playback.SetTurnsBack(false);
    EXPECT_EQ("012012.", Played(playback, 20));
    EXPECT_EQ("012012.", Played(playback, 20)) << "from the beginning, where it has ended";
    playback.Step(1);
    EXPECT_EQ(0, playback.At());
    playback.SetCount(1);
    EXPECT_EQ(".", Played(playback, 3)) << "one frame does not move";
}

class PlayerTest : public EditorTest
{
protected:
    PlayerTest()
    {
        folder.WriteBmp("a.bmp", 8, 8, 0xFF200000);
        folder.WriteBmp("b.bmp", 8, 8, 0xFF400000);
        folder.WriteBmp("c.bmp", 8, 8, 0xFF600000);
        folder.Write("walk.phase", "#delay 200\na.bmp\nb.bmp\nc.bmp\n");
        Open();
    }

    editor::CPlayerView& Player() { return Frame().GetContent().GetPlayer(); }
    // What the user sees: the frame's number as its picture has it, and what is told beside it.
    std::string Seen()
    {
        desktop.Run();
        const toolkit::Surface& shown = Player().GetShown();
        const int nRed =
            shown.IsEmpty() ? 0 : GetRValue(toolkit::ToColor(shown.At(shown.Width() / 2, shown.Height() / 2)));
        return std::to_string(nRed / 0x20) + ": " + Player().GetSeekBar().GetText();
    }
    std::string After(int nMilliseconds)
    {
        desktop.Advance(nMilliseconds);
        return Seen();
    }
};

TEST_F(PlayerTest, APhasePlaysInItsTimeAboveItsFrames)
{
    EXPECT_FALSE(IsWindowVisible(Player().m_hWnd));
    DoubleClick("walk.phase");
    EXPECT_EQ("1: 1 of 3, 200 ms", Seen());
    EXPECT_EQ("[a.bmp b.bmp c.bmp]", Rows());
    desktop.Key(VK_SPACE);
    EXPECT_EQ("1: 1 of 3, 200 ms", After(190));
    EXPECT_EQ("2: 2 of 3, 200 ms", After(10));
    EXPECT_EQ("1: 1 of 3, 200 ms", (After(200), After(200)));
    Frame().GetViews().PlayFaster();
    EXPECT_EQ("2: 2 of 3, 200 ms at 200 %", After(100));
    desktop.Key(VK_SPACE);
    EXPECT_EQ("2: 2 of 3, 200 ms at 200 %", After(1000));

    desktop.Click(Player().m_hWnd, {20, 20});
    desktop.Key(VK_RIGHT);
    desktop.Key(VK_RIGHT);
    desktop.Key(VK_LEFT);
    EXPECT_EQ("3: 3 of 3, 200 ms at 200 %", Seen());
    ::SetFocus(List());
    Click("b.bmp");
    EXPECT_EQ("2: 2 of 3, 200 ms at 200 %", Seen()) << "it follows who goes through the frames";
    Press(VK_UP, kAlt);
    EXPECT_FALSE(IsWindowVisible(Player().m_hWnd));
}

TEST_F(PlayerTest, ItsButtonsDoWhatTheySay)
{
    DoubleClick("walk.phase");
    ClickTool(Player().GetTools(), editor::ID_PLAY);
    EXPECT_EQ("2: 2 of 3, 200 ms", After(200));
    ClickTool(Player().GetTools(), editor::ID_PLAY);
    ClickTool(Player().GetTools(), editor::ID_STEP_BACK);
    ClickTool(Player().GetTools(), editor::ID_SLOWER);
    EXPECT_EQ("1: 1 of 3, 200 ms at 50 %", After(1000));
}

TEST_F(PlayerTest, AFrameThatIsNotReadYetIsWaitedForAndTheLastOneStays)
{
    DoubleClick("walk.phase");
    Settle();
    Frame().GetContent().GetPlayer().MoveWindow({0, 0, 400, 200}); // all are to be read anew
    Settle();
    folder.WriteBmp("b.bmp", 900, 900, 0xFF400000);
    Press(VK_F5);
    reader.Hold();
    Player().MoveWindow({0, 0, 500, 300});
    desktop.Key(VK_SPACE);
    EXPECT_EQ("1: 1 of 3, 200 ms", After(1000));
    ReadAll();
    EXPECT_EQ("2: 2 of 3, 200 ms", Seen());
    EXPECT_EQ("3: 3 of 3, 200 ms", After(200));
}

TEST_F(PlayerTest, WhatIsChangedInThePhaseIsPlayed)
{
    DoubleClick("walk.phase");
    Click("a.bmp");
    Delete();
    EXPECT_EQ("2: 1 of 2, 200 ms", Seen());
    TakeBoxes();
    Frame().MoveWindow(CRect(0, 0, 700, 300));
    Settle();
    EXPECT_GT(ClientOf(List()).Height(), 60) << "a low window keeps the frames";
}

TEST_F(PlayerTest, OnlyTheThumbnailUnderTheMouseMoves)
{
    folder.Write("still.phase", "a.bmp\n");
    Frame().MoveWindow(CRect(0, 0, 960, 720));
    Control('2');
    Press(VK_F5);
    const auto red = [&](const char* pszName, int nMilliseconds) {
        desktop.Advance(static_cast<DWORD>(nMilliseconds));
        Settle();
        const CPoint at = PlaceOf(pszName);
        return static_cast<int>(GetRValue(toolkit::ToColor(desktop.Dump(List()).At(at.x, at.y)))) / 0x20;
    };
    const CPoint walk = PlaceOf("walk.phase"), still = PlaceOf("still.phase");
    EXPECT_EQ(1, red("walk.phase", 5000));
    desktop.MoveTo(List(), walk);
    EXPECT_EQ(1, red("walk.phase", 250)) << "whoever only passes sees nothing";
    EXPECT_EQ(2, red("walk.phase", 200));
    EXPECT_EQ(3, red("walk.phase", 200));
    desktop.MoveTo(List(), still);
    EXPECT_EQ(1, red("walk.phase", 5000));
    EXPECT_EQ(1, red("still.phase", 5000));
    desktop.MoveTo(List(), walk);
    EXPECT_EQ(2, (red("walk.phase", 250), red("walk.phase", 200)));
    desktop.MoveTo(Tree().m_hWnd, {5, 5});
    EXPECT_EQ(1, red("walk.phase", 5000));
}

TEST_F(PlayerTest, APictureIsZoomedWhileItMovesAndSoIsTheNextOne)
{
    toolkit::Surface film({500, 1000});
    for (int y = 0; y < 1000; ++y)
        for (int x = 0; x < 500; ++x)
            film.Row(y)[x] = 0xFF000000u | 0x200000u * (y < 500 ? 1 : 2) | static_cast<unsigned>(x / 2);
    folder.Write("film.bmp", EncodeBmp(film));
    folder.WriteBmp("film2.bmp", 500, 500, 0xFF405060);
    desktop.Key(VK_F5);
    DoubleClick("film.bmp");
    const auto comes = [&](std::function<bool()> what) { return desktop.RunUntil(std::move(what)); };
    ASSERT_TRUE(comes([&] { return !Player().GetShown().IsEmpty(); }));
    const CPoint middle = toolkit::Centred({}, desktop.Dump(Player().m_hWnd).Bounds()) - CPoint(0, 40);
    const auto under = [&](CPoint at) { return desktop.Dump(Player().m_hWnd).At(at.x, at.y); };
    const toolkit::Pixel before = under(middle);
    for (int i = 0; i < 3; ++i)
        desktop.Wheel(Player().m_hWnd, middle, 1);
    EXPECT_NEAR(static_cast<int>(before & 0xFF), static_cast<int>(under(middle) & 0xFF), 1) << "the same point";
    Press('1');
    EXPECT_EQ("100 %", Frame().GetStatus().text);
    EXPECT_TRUE(comes([&] { return Player().GetShown().Width() == 500; }));
    const toolkit::Pixel grip = under(middle);
    EXPECT_EQ(grip + 10, under(middle + CPoint(20, 0))) << "pixel by pixel";
    Press(VK_ADD);
    Press(VK_ADD);
    desktop.Advance(100);
    EXPECT_TRUE(comes([&] { return under(middle) == (grip ^ 0x600000u); })) << "it goes on moving";
    desktop.Press(Player().m_hWnd, middle);
    desktop.MoveTo(Player().m_hWnd, middle + CPoint(40, 0));
    desktop.Release(Player().m_hWnd, middle + CPoint(40, 0));
    EXPECT_EQ((grip ^ 0x600000u) - 10, under(middle));
    Press(VK_RIGHT);
    EXPECT_EQ("film2.bmp 200 %", Frame().Shown()->ShownName() + ' ' + Frame().GetStatus().text);
    Press('0');
    EXPECT_EQ("", Frame().GetStatus().text);
}

// A film of a thousand frames, each a pixel more red than the one before, and ten milliseconds longer.
class Film final : public editor::PictureReader
{
public:
    std::vector<std::string> Extensions() const override { return {}; }
    editor::DecodedPicture Read(const std::string&, CSize, int) const override { return {}; }
    std::unique_ptr<editor::PictureStream> Open(const std::string&, CSize maxSize) const override
    {
        struct Stream final : editor::PictureStream
        {
            std::optional<Frame> Next() override
            {
                if (nNext == 1000)
                    return std::nullopt;
                const Frame frame{toolkit::Surface(size, static_cast<toolkit::Pixel>(nNext)), 10 * (nNext + 1)};
                return ++nNext, frame;
            }
            CSize size;
            int nNext = 0;
        };
        auto pStream = std::make_unique<Stream>();
        pStream->size = maxSize;
        return ++nOpened, std::move(pStream);
    }
    mutable std::atomic<int> nOpened = 0;
};

TEST_F(PlayerTest, AnimationsAreReadAheadAndWhatHasGoneIsReadAnew)
{
    static Film film; // its reader may end after the test
    editor::AnimationFrames frames(film, "film", 1000, {}, {});
    const auto frameAt = [&](int nFrame, CSize size) {
        const bool bCame = desktop.RunUntil([&] { return frames.Find(nFrame, size).pPicture != nullptr; });
        const toolkit::Surface* const pPicture = bCame ? frames.Find(nFrame, size).pPicture : nullptr;
        return pPicture && pPicture->Bounds().Size() == size ? static_cast<int>(pPicture->At(0, 0)) : -1;
    };
    const CSize large(1000, 1000); // twelve of them are kept
    EXPECT_EQ(0, frameAt(0, large));
    EXPECT_EQ(20, frameAt(20, large));
    EXPECT_EQ(210, frames.DelayOf(20));
    EXPECT_EQ(18, frameAt(18, large));
    EXPECT_EQ(1, film.nOpened) << "what was shown last is still there";
    EXPECT_EQ(2, frameAt(2, large));
    EXPECT_EQ(2, film.nOpened);
    EXPECT_EQ(999, frameAt(999, {4, 4}));
    EXPECT_EQ(0, frameAt(0, {4, 4}));
    EXPECT_EQ(3, film.nOpened);
}

} // namespace
