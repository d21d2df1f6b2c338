#include "Editor/objects/LiveObjects.h"
#include "tests/editor/LibraryFixture.h"
#include "tests/support/AllocationFailures.h"

#include <sys/stat.h>

namespace
{

TEST_F(LibraryTest, AFolderShowsItsFoldersPicturesAndPhasesAndNothingElse)
{
    folder.Make("ball.bmp Star.DIB readme.txt bmp .hidden.bmp .git/ Ada/");
    folder.Write("walk.phase", "ball.bmp\n");
    mkfifo(folder.At("pipe.bmp").c_str(), 0600);

    EXPECT_EQ("[Ada/ Star.DIB ball.bmp walk.phase>]", Open());
    EXPECT_EQ("[]", Members("Ada"));
    EXPECT_FALSE(Find("readme.txt"));
    EXPECT_FALSE(Find("BALL.BMP"));
}

TEST_F(LibraryTest, OneObjectIsTheSameAtomWhicheverWayItIsReached)
{
    folder.Make("Ada/walk-1.bmp");
    folder.Write("Ada/walk.phase", "walk-1.bmp");
    Open();
    const auto pAda = Container("Ada");
    const auto pPhase = Container("Ada/walk.phase");

    for (IAtomContainer* pContainer : {static_cast<IAtomContainer*>(Library()), pAda.Get(), pPhase.Get()}) {
        IAtom* const pConverted = pContainer;
        EXPECT_EQ(pConverted, CStubRef<IAtom>::From(pContainer).Get());
        EXPECT_EQ(pConverted, CStubRef<IAtom>::From(CStubRef<IAtomIcon>::From(pContainer).Get()).Get());
        CStubRef<IAtom> pAgain, pHolder;
        const auto pMember = At(pContainer, 0);
        EXPECT_EQ(pMember.Get(), Find(pContainer, Name(pMember.Get()).c_str()).Get());
        EXPECT_TRUE(pContainer->FindAtomByID(pMember->GetID(), pAgain.Receive(), IID_IAtom));
        EXPECT_EQ(pMember.Get(), pAgain.Get());
        EXPECT_TRUE(pMember->GetContainer(pHolder.Receive(), IID_IAtom));
        EXPECT_EQ(pConverted, pHolder.Get());
    }
    CStubRef<IAtom> pAbove;
    EXPECT_FALSE(Library()->GetContainer(pAbove.Receive(), IID_IAtom));
    EXPECT_TRUE(CStubRef<ICharacterLibrary>::From(Library()));
    EXPECT_FALSE(CStubRef<ICharacterLibrary>::From(pAda.Get()));
}

TEST_F(LibraryTest, AChildKeepsItsFoldersAliveAndAFolderOnlyThoseWhoAreHeld)
{
    folder.Make("Ada/Poses/one.bmp Ada/Poses/two.bmp");
    Open();
    const int nAlone = editor::g_nLiveObjects;
    CStubRef<IAtom> pOne;
    {
        const auto pPoses = Container("Ada/Poses");
        EXPECT_EQ("[one.bmp two.bmp]", Members(pPoses.Get()));
        pOne = Find(pPoses.Get(), "one.bmp");
    }
    EXPECT_EQ(nAlone + 3, editor::g_nLiveObjects) << "the picture and its two folders";
    EXPECT_EQ("one.bmp", Name(pOne.Get()));
    pOne.Release();
    EXPECT_EQ(nAlone, editor::g_nLiveObjects);
}

TEST_F(LibraryTest, GetAtomsFillsEverySlotAndABufferThatIsTooSmallForANameIsNotWrittenTo)
{
    folder.Make("a.bmp b.bmp");
    Open();
    void* slots[4] = {this, this, this, this};

    Library()->GetAtoms(1, 4, slots, IID_IAtom);
    EXPECT_EQ("b.bmp", Name(CStubRef<IAtom>::Adopt(static_cast<IAtom*>(slots[0])).Get()));
    EXPECT_EQ(nullptr, slots[1]);
    EXPECT_EQ(nullptr, slots[3]);
    Library()->GetAtoms(0xFFFFFFFF, 1, slots, IID_IAtom);
    EXPECT_EQ(nullptr, slots[0]);
    Library()->GetAtoms(0, 1, slots, IID_IPhase);
    EXPECT_EQ(nullptr, slots[0]) << "a picture is no phase";

    const auto pAtom = At(Library(), 0);
    char buffer[6] = "?????";
    DWORD length = 5;
    EXPECT_FALSE(pAtom->GetName(buffer, &length));
    EXPECT_EQ(6u, length);
    EXPECT_STREQ("?????", buffer);
    EXPECT_TRUE(pAtom->GetName(buffer, &length));
    EXPECT_STREQ("a.bmp", buffer);
}

TEST_F(LibraryTest, NamesThatCannotBeShownAreReplacedForTheEyeOnly)
{
    const std::pair<const char*, const char*> names[] = {{"Zo\xC3\xAB.bmp", "Zo\xC3\xAB.bmp"},
                                                         {"Zo\xEB.bmp", "Zo\xEF\xBF\xBD.bmp"},
                                                         {"two\nlines.bmp", "two\xEF\xBF\xBDlines.bmp"}};
    for (const auto& [pszName, pszShown] : names)
        folder.WriteBmp(pszName);
    Open();
    for (const auto& [pszName, pszShown] : names) {
        const auto pAtom = Find(pszName);
        EXPECT_EQ(pszName, Name(pAtom.Get()));
        EXPECT_EQ(pszShown, ShownName(pAtom.Get()));
        const auto pDisp = CStubRef<IDispAtom>::From(pAtom.Get());
        EXPECT_TRUE(!pDisp || CStubRef<IAtom>::From(pDisp.Get()).Get() == pAtom.Get());
    }
}

TEST_F(LibraryTest, APhaseHoldsItsLinesInOrderAlsoThoseWithoutAPicture)
{
    folder.WriteBmp("Props/ball.bmp", 8, 8, 0xFF102030);
    folder.WriteBmp("Ada/walk-1.bmp", 8, 8, 0xFF405060);
    folder.Write("secret.bmp", "");
    folder.Write("Ada/walk.phase",
                 "# a walk\r\nwalk-1.bmp\r\n\n  Props/ball.bmp  \nwalk-1.bmp\nlost.bmp\n../../x.bmp\n/etc/x.bmp");
    Open();
    const auto pPhase = Container("Ada/walk.phase");

    EXPECT_EQ("[walk-1.bmp ball.bmp walk-1.bmp lost.bmp x.bmp x.bmp]", Members(pPhase.Get()));
    std::string state;
    const auto pOrder = CStubRef<IPhase>::From(pPhase.Get());
    for (UINT i = 0; i < pPhase->GetCount(); ++i) {
        const auto pAtom = At(pPhase.Get(), i);
        Icon(pAtom.Get());
        Settle();
        const int nPlace = pOrder->GetPosition(CStubRef<IImageLink>::From(pAtom.Get()).Get());
        state += std::to_string(nPlace) + ' ' + Icon(pAtom.Get()) + ' ' + Error(pAtom.Get()) + '\n';
    }
    EXPECT_EQ("0 405060 \n"
              "1 102030 \n"
              "2 405060 \n"
              "3 broken lost.bmp: no such file or directory\n"
              "4 broken x.bmp: lies outside the library\n"
              "5 broken x.bmp: lies outside the library\n",
              state);
    EXPECT_EQ(-1, pOrder->GetPosition(nullptr));
    EXPECT_EQ("phase", Icon(pPhase.Get()));
}

TEST_F(LibraryTest, APhaseThatCannotBeReadSaysWhyAndIsEmpty)
{
    folder.Write("binary.phase", std::string("a\0b", 3));
    folder.Write("huge.phase", std::string(5 << 20, 'x'));
    folder.MakeFolder("folder.phase");
    folder.Link("gone.phase", "nowhere");
    EXPECT_EQ("[binary.phase> folder.phase/ gone.phase> huge.phase>]", Open());

    const std::pair<const char*, const char*> errors[] = {{"binary.phase", "not a text"},
                                                          {"gone.phase", "no such file or directory"},
                                                          {"huge.phase", "too large for a phase"}};
    for (const auto& [pszName, pszReason] : errors) {
        const auto pPhase = Container(pszName);
        EXPECT_EQ(0u, pPhase->GetCount());
        EXPECT_EQ(std::string(pszName) + ": " + pszReason, Error(pPhase.Get()));
    }
}

TEST_F(LibraryTest, ALinkToAFolderThatHoldsItIsShownAndNotOpened)
{
    folder.Make("Ada/a.bmp");
    folder.Link("Ada/up", "..");
    folder.Link("Ada/self", ".");
    folder.Link("friend", "Ada");
    folder.Link("gone.bmp", "nowhere.bmp");
    EXPECT_EQ("[Ada/ friend/ gone.bmp]", Open());
    const auto pAda = Container("Ada");
    const auto pUp = Container("Ada/up");

    EXPECT_EQ("[a.bmp self/ up/]", Members("Ada"));
    EXPECT_EQ("[a.bmp self/ up/]", Members("friend")) << "not a ring by itself";
    EXPECT_EQ("[]", Members(pUp.Get()));
    EXPECT_EQ("up: a link to a folder that holds it, not opened", Error(pUp.Get()));
    EXPECT_EQ("[]", Members(Container("Ada/self").Get()));
    EXPECT_EQ("", Error(pAda.Get()));
}

TEST_F(LibraryTest, ReadAgainKeepsTheAtomsOfWhatIsStillThere)
{
    folder.Make("a.bmp b.bmp c.bmp");
    folder.Write("walk.phase", "a.bmp\nb.bmp\na.bmp\n");
    Open();
    const auto pA = Find("a.bmp"), pB = Find("b.bmp"), pC = Find("c.bmp");
    const DWORD idB = pB->GetID(), idC = pC->GetID();
    const auto pPhase = Container("walk.phase");
    const auto pSecondA = At(pPhase.Get(), 2);

    folder.Remove("b.bmp");
    folder.WriteBmp("aa.bmp");
    folder.Write("walk.phase", "new.bmp\na.bmp\n");
    Library()->ReadAgain();
    dynamic_cast<editor::CContainer*>(pPhase.Get())->ReadAgain();

    EXPECT_EQ("[a.bmp aa.bmp c.bmp walk.phase>]", Members(Library()));
    EXPECT_EQ(pA.Get(), Find("a.bmp").Get());
    EXPECT_EQ(pC.Get(), Find("c.bmp").Get());
    EXPECT_EQ(idC, pC->GetID());
    EXPECT_TRUE(Library()->FindAtomByID(idC, nullptr, 0));
    EXPECT_FALSE(Library()->FindAtomByID(idB, nullptr, 0)) << "gone";
    EXPECT_FALSE(Library()->FindAtomByID(0, nullptr, 0));
    EXPECT_EQ("b.bmp", Name(pB.Get())) << "who holds it still knows what it was";
    EXPECT_EQ(idB, pB->GetID());
    EXPECT_EQ("none yet", Icon(pB.Get()));
    Settle();
    EXPECT_EQ("b.bmp: no such file or directory", Error(pB.Get()));
    EXPECT_EQ("[new.bmp a.bmp]", Members(pPhase.Get()));
    EXPECT_EQ(pSecondA.Get(), At(pPhase.Get(), 1).Get());

    folder.WriteBmp("b.bmp");
    Library()->ReadAgain();
    EXPECT_NE(pB.Get(), Find("b.bmp").Get()) << "another file";
    EXPECT_NE(idB, Find("b.bmp")->GetID());
}

TEST_F(LibraryTest, AHundredThousandFilesCostLittleUntilTheyAreShown)
{
    constexpr int kFiles = 100'000;
    folder.MakeEmptyFiles(kFiles, "frame %06d.bmp");
    std::string error;
    const auto pLibrary = editor::CLibrary::Open(folder.Path(), reader.Extensions(), pPictures, error);
    ASSERT_EQ(static_cast<UINT>(kFiles), pLibrary->GetCount());
    const int nAlone = editor::g_nLiveObjects;

    std::vector<void*> atoms(kFiles);
    const int nAllocations = CountAllocations([&] { pLibrary->GetAtoms(0, kFiles, atoms.data(), IID_IAtom); });
    EXPECT_EQ(kFiles, nAllocations) << "one for each atom and nothing more";
    EXPECT_EQ(nAlone + kFiles, editor::g_nLiveObjects);
    EXPECT_EQ("frame 099999.bmp", Name(static_cast<IAtom*>(atoms.back())));
    EXPECT_EQ(0, CountAllocations([&] {
                  char name[32];
                  DWORD length = sizeof name;
                  CStubRef<IAtom> pAgain;
                  pLibrary->FindAtom("frame 070000.bmp", pAgain.Receive(), IID_IAtom);
                  pAgain->GetName(name, &length);
              }));
    for (void* const p : atoms)
        CStubRef<IAtom>::Adopt(static_cast<IAtom*>(p)).Release();
    EXPECT_EQ(nAlone, editor::g_nLiveObjects);
}

} // namespace
