#include "HostKit/base/Counted.h"
#include "tests/editor/LibraryFixture.h"

#include <sys/stat.h>

namespace
{

TEST_F(LibraryTest, AFolderShowsWhatIsInItButForHiddenFilesAndPipes)
{
    folder.Make("ball.bmp Star.DIB readme.txt bmp .hidden.bmp .git/ Ada/");
    folder.Write("walk.phase", "ball.bmp\n");
    mkfifo(folder.At("pipe.bmp").c_str(), 0600);
    folder.WriteBmp("Zo\xEB\n.bmp");

    EXPECT_EQ("[Ada/ Star.DIB Zo\xEB\n.bmp ball.bmp bmp readme.txt walk.phase>]", Open());
    EXPECT_EQ("[]", Members("Ada"));
    EXPECT_EQ("file", Icon(Find("readme.txt").Get()));
    EXPECT_FALSE(Find("BALL.BMP"));
    EXPECT_EQ("Zo\xEF\xBF\xBD\xEF\xBF\xBD.bmp", editor::CMember::Of(Find("Zo\xEB\n.bmp").Get())->ShownName())
        << "replaced for the eye only";
}

TEST_F(LibraryTest, GetAtomsFillsEverySlotAndAPictureKeepsItsFolders)
{
    folder.Make("a.bmp Ada/Poses/one.bmp Ada/Poses/two.bmp");
    Open();
    const int nAlone = hostkit::Counted::CountAlive();
    void* slots[3] = {this, this, this};
    Library()->GetAtoms(1, 3, slots, IID_IAtom);
    auto pAtom = CStubRef<IAtom>::Adopt(static_cast<IAtom*>(slots[0]));
    EXPECT_EQ("a.bmp", Name(pAtom.Get()));
    EXPECT_EQ(nullptr, slots[1]);
    EXPECT_EQ(nullptr, slots[2]);
    Library()->GetAtoms(0xFFFFFFFF, 1, slots, IID_IAtom);
    EXPECT_EQ(nullptr, slots[0]);
    Library()->GetAtoms(1, 1, slots, IID_IPhase);
    EXPECT_EQ(nullptr, slots[0]) << "a picture is no phase";

    CStubRef<IAtom> pHolder;
    EXPECT_EQ("[one.bmp two.bmp]", Members("Ada/Poses"));
    pAtom = Find(Container("Ada/Poses").Get(), "one.bmp");
    EXPECT_EQ(nAlone + 3, hostkit::Counted::CountAlive()) << "a picture keeps its folders, they nobody";
    EXPECT_TRUE(pAtom->GetContainer(pHolder.Receive(), IID_IAtom));
    EXPECT_EQ("Poses", Name(pHolder.Get()));
    EXPECT_FALSE(Library()->GetContainer(pHolder.Receive(), IID_IAtom));
    EXPECT_TRUE(CStubRef<ICharacterLibrary>::From(Library()));
    EXPECT_FALSE(CStubRef<ICharacterLibrary>::From(Container("Ada").Get()));
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
    const auto pOrder = CStubRef<IPhase>::From(pPhase.Get());
    std::string state;
    for (UINT i = 0; i < pPhase->GetCount(); ++i) {
        const auto pAtom = At(pPhase.Get(), i);
        Icon(pAtom.Get());
        Settle();
        const int nPlace = pOrder->GetPosition(CStubRef<IImageLink>::From(pAtom.Get()).Get());
        state += std::to_string(nPlace) + ' ' + Name(pAtom.Get()) + ' ' + Icon(pAtom.Get()) + ' ' + Error(pAtom.Get()) +
                 '\n';
    }
    EXPECT_EQ("0 walk-1.bmp 405060 \n"
              "1 ball.bmp 102030 \n"
              "2 walk-1.bmp 405060 \n"
              "3 lost.bmp broken lost.bmp: there is no \"Ada/lost.bmp\" in the library\n"
              "4 x.bmp broken x.bmp: lies outside the library\n"
              "5 x.bmp broken x.bmp: lies outside the library\n",
              state);
    EXPECT_EQ(-1, pOrder->GetPosition(nullptr));
    EXPECT_EQ("405060", Icon(pPhase.Get())) << "its first frame";
}

TEST_F(LibraryTest, APhaseThatCannotBeReadSaysWhyAndIsEmpty)
{
    folder.Write("binary.phase", std::string("a\0b", 3));
    folder.Write("huge.phase", std::string(5 << 20, 'x'));
    folder.MakeFolder("folder.phase");
    folder.Link("gone.phase", "nowhere");
    EXPECT_EQ("[binary.phase> folder.phase/ gone.phase> huge.phase>]", Open());
    for (const char* const pszError :
         {"binary.phase: not a text", "gone.phase: no such file or directory", "huge.phase: too large for a phase"}) {
        const auto pPhase = Container(std::string(pszError).substr(0, std::string(pszError).find(':')));
        EXPECT_EQ(0u, pPhase->GetCount());
        EXPECT_EQ(pszError, Error(pPhase.Get()));
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
    EXPECT_TRUE(Library()->FindAtomByID(idC, nullptr, 0));
    EXPECT_FALSE(Library()->FindAtomByID(idB, nullptr, 0)) << "gone";
    EXPECT_FALSE(Library()->FindAtomByID(0, nullptr, 0));
    EXPECT_EQ("b.bmp", Name(pB.Get())) << "who holds it still knows what it was";
    EXPECT_EQ(idB, pB->GetID());
    EXPECT_EQ("[new.bmp a.bmp]", Members(pPhase.Get()));
    EXPECT_EQ(pSecondA.Get(), At(pPhase.Get(), 1).Get());

    folder.WriteBmp("b.bmp");
    Library()->ReadAgain();
    EXPECT_NE(idB, Find("b.bmp")->GetID()) << "another file";
}

} // namespace
