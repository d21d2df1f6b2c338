#include "Editor/disk/FileNames.h"
#include "Editor/disk/TempEntry.h"
#include "tests/editor/ArchiveFixture.h"
#include "tests/editor/AsNobody.h"
#include "tests/support/AllocationFailures.h"

#include <csignal>
#include <fcntl.h>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace
{

class DiskTest : public ArchiveTest
{
protected:
    // A copy of what is in one container, pasted into another.
    std::string CopyTo(const char* pszFrom, const std::vector<const char*>& names, const char* pszInto,
                       bool bMove = false)
    {
        return Paste(Copy(pszFrom, names), pszInto, bMove);
    }
};

TEST_F(DiskTest, CopiesAreTheOriginalsByteForByteWithAllThatIsInThem)
{
    const std::string odd = "Zo\xC3\xAB \xEB\n #.bmp";
    std::string bytes(300'000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * i >> 3);
    folder.Write("Ada/Poses/" + odd, bytes);
    folder.Write("Ada/Poses/empty.bmp", "");
    folder.Write("Ada/Poses/.notes", "hidden");
    folder.Write("Ada/Poses/walk.phase", "# a walk\r\nlost.bmp\r\n/etc/x.bmp\r\n");
    folder.MakeFolder("Ada/Poses/Nothing");
    folder.Write("Ada/a.bmp", "target");
    folder.Link("Ada/Poses/link.bmp", "../a.bmp");
    folder.Link("Ada/Poses/nowhere.bmp", "../there/was one.bmp");
    folder.Write("Ada/Poses/aux.h", "what other systems call devices");
    folder.Write("Ada/Poses/back\\slash.bmp", "and separators");
    folder.Write("Ada/Poses/.views-new-ideas", "no file in the making");
    folder.MakeFolder("Bo");
    const timespec times[2] = {{1'000'000'000, 5}, {1'000'000'000, 5}};
    utimensat(AT_FDCWD, folder.At("Ada/a.bmp").c_str(), times, 0);
    chmod(folder.At("Ada/a.bmp").c_str(), 0462);
    chmod(folder.At("Ada/Poses").c_str(), 0550);
    Open();

    const mode_t former = umask(022);
    EXPECT_EQ("", CopyTo("Ada", {"Poses", "a.bmp"}, "Bo"));
    umask(former);
    EXPECT_EQ("[Poses/ a.bmp]", Members("Bo"));
    EXPECT_EQ(bytes, folder.Read("Bo/Poses/" + odd));
    for (const char* const pszFile :
         {"empty.bmp", ".notes", "walk.phase", "aux.h", "back\\slash.bmp", ".views-new-ideas"})
        EXPECT_EQ(folder.Read(std::string("Ada/Poses/") + pszFile), folder.Read(std::string("Bo/Poses/") + pszFile));
    EXPECT_EQ("target", folder.Read("Bo/Poses/link.bmp"));
    EXPECT_FALSE(std::filesystem::is_symlink(folder.At("Bo/Poses/link.bmp"))) << "what it leads to is carried";
    EXPECT_EQ("../there/was one.bmp", std::filesystem::read_symlink(folder.At("Bo/Poses/nowhere.bmp")));
    EXPECT_TRUE(std::filesystem::is_empty(folder.At("Bo/Poses/Nothing")));
    struct stat status;
    stat(folder.At("Bo/a.bmp").c_str(), &status);
    EXPECT_EQ(1'000'000'000, status.st_mtim.tv_sec);
    EXPECT_EQ(0440u, status.st_mode & 07777) << "a private picture stays private";
    stat(folder.At("Bo/Poses").c_str(), &status);
    EXPECT_EQ(0750u, status.st_mode & 07777);
}

TEST_F(DiskTest, CopiesAreCalledAsAPersonWould)
{
    folder.WriteBmp("Walk.bmp");
    folder.WriteBmp("Walk (7).bmp");
    folder.WriteBmp("Walk (1000000).bmp");
    folder.WriteBmp("v1.2 (1)/x.bmp");
    folder.Write("readme", "not shown, yet there");
    Open();
    const auto pArchive = Copy("", {"Walk.bmp"});

    EXPECT_EQ("", Paste(pArchive, ""));
    EXPECT_EQ("", Paste(pArchive, ""));
    EXPECT_TRUE(Find("Walk (2).bmp"));
    EXPECT_EQ(folder.Read("Walk.bmp"), folder.Read("Walk (3).bmp"));
    EXPECT_EQ("wALK (4).BMP", ValidName("wALK.BMP")) << "but for the case";
    EXPECT_EQ("Walk (8).bmp", ValidName("Walk (7).bmp"));
    EXPECT_EQ("Walk (1000000) (2).bmp", ValidName("Walk (1000000).bmp")) << "no count";
    EXPECT_EQ("v1.2 (1) (2)", ValidName("v1.2 (1)"));
    EXPECT_EQ("README (2)", ValidName("README"));
    EXPECT_EQ("free.bmp", ValidName("free.bmp"));
    EXPECT_EQ("a-b-c", ValidName("a/b\\c"));
    struct stat status;
    stat(folder.Path().c_str(), &status);
    const timespec clockStandsStill[2] = {status.st_atim, status.st_mtim};
    EXPECT_EQ("", Rename("", "Walk (7).bmp", "free.bmp"));
    EXPECT_EQ(0, utimensat(AT_FDCWD, folder.Path().c_str(), clockStandsStill, 0));
    EXPECT_EQ("free (2).bmp", ValidName("free.bmp"));
    EXPECT_EQ("Walk (7).bmp", ValidName("Walk (7).bmp"));
    EXPECT_EQ("_con.bmp", ValidName("con.bmp"));
    EXPECT_EQ("hidden", ValidName("..hidden"));
    EXPECT_EQ("?", ValidName(".."));
}

TEST(FileNamesTest, TheNextOfManyNamesakesIsFoundInAFewSteps)
{
    std::set<std::string, std::less<>> taken{"a.bmp"};
    int nAsked = 0, nKnown = 0;
    const auto isTaken = [&](std::string_view name) { return ++nAsked, taken.contains(name); };
    for (int i = 2; i <= 300; ++i)
        EXPECT_EQ("a (" + std::to_string(i) + ").bmp",
                  *taken.insert(editor::NameForCopy("a.bmp", ".bmp", isTaken, nKnown)).first);
    EXPECT_GT(3 * 300, nAsked);
    nAsked = 0;
    for (int i = 301; i <= 330; ++i)
        EXPECT_EQ("a (" + std::to_string(i) + ").bmp",
                  *taken.insert(editor::AnyNameForCopy("a.bmp", ".bmp", isTaken)).first);
    EXPECT_GT(30 * 30, nAsked);
}

TEST_F(DiskTest, ALongNameIsShortenedBetweenCharacters)
{
    std::string stem;
    while (stem.size() + 2 + 4 <= 255)
        stem += "\xC3\xAB";
    folder.WriteBmp(stem + ".bmp");
    Open();
    EXPECT_EQ("", Paste(Copy("", {(stem + ".bmp").c_str()}), ""));
    EXPECT_EQ('[' + stem + ".bmp " + stem.substr(0, stem.size() - 4) + " (2).bmp]", Members(""));
}

TEST_F(DiskTest, AMoveKeepsTheNameAndNeverReplacesWhatIsThere)
{
    folder.Make("Ada/a.bmp Ada/b.bmp");
    folder.Write("Bo/a.bmp", "Bo's own");
    Open();
    const auto pBo = Container("Bo");
    EXPECT_EQ("[a.bmp]", Members("Bo"));
    folder.Write("Bo/b.bmp", "came while nobody looked");

    EXPECT_EQ("a.bmp: file exists\nb.bmp: file exists\n", CopyTo("Ada", {"a.bmp", "b.bmp"}, "Bo", true));
    EXPECT_EQ("a.bmp: file exists", editor.GetArchiveError()) << "the first";
    EXPECT_EQ("Bo's own", folder.Read("Bo/a.bmp"));
    EXPECT_EQ("came while nobody looked", folder.Read("Bo/b.bmp"));
    folder.Remove("Bo/a.bmp");
    EXPECT_EQ("", CopyTo("Ada", {"a.bmp"}, "Bo", true));
    EXPECT_EQ("", Error(pBo.Get())) << "the last change succeeded";
    EXPECT_EQ("Ada/ Ada/a.bmp Ada/b.bmp Bo/ Bo/a.bmp Bo/b.bmp", folder.Everything());
    EXPECT_EQ("[a.bmp]", Members("Bo")) << "once, and what it has not heard of is not in it";
}

TEST_F(DiskTest, ANameThatIsTakenBetweenChoosingAndAddingIsChosenAnew)
{
    folder.Make("Ada/a.bmp Bo/");
    Open();
    const auto pBo = Container("Bo");
    EXPECT_TRUE(ReadEach(Copy("Ada", {"a.bmp"}), [&](IAtom* pAtom) -> BOOL {
        CString name("a.bmp");
        EXPECT_TRUE(pBo->ValidateName(name, 0));
        folder.Write("Bo/a.bmp", "somebody else's");
        CStubRef<IAtom> pAdded;
        EXPECT_TRUE(pBo->AddAtom(pAtom, 0, name, pAdded.Receive(), IID_IAtom));
        EXPECT_EQ("a (2).bmp", pAdded ? Name(pAdded.Get()) : "none");
        return TRUE;
    }));
    EXPECT_EQ(folder.Read("Ada/a.bmp"), folder.Read("Bo/a (2).bmp"));
    EXPECT_EQ("somebody else's", folder.Read("Bo/a.bmp"));
}

TEST_F(DiskTest, AFullDiskLeavesTheFolderAsItWas)
{
    folder.Write("Ada/small.bmp", "small");
    folder.Write("Ada/large.bmp", std::string(200'000, 'x'));
    folder.Write("Ada/Poses/deep/large.bmp", std::string(200'000, 'x'));
    folder.MakeFolder("Bo");
    Open();
    const auto pArchive = Copy("Ada", {"Poses", "large.bmp", "small.bmp"});
    rlimit former;
    getrlimit(RLIMIT_FSIZE, &former);
    const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100'000, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);

    const std::string failures = Paste(pArchive, "Bo");
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, formerHandler);
    EXPECT_EQ("Poses/deep/large.bmp: file too large\nlarge.bmp: file too large\n", failures);
    EXPECT_EQ("[small.bmp]", Members("Bo"));
    EXPECT_EQ("Ada/ Ada/Poses/ Ada/Poses/deep/ Ada/Poses/deep/large.bmp Ada/large.bmp Ada/small.bmp Bo/ Bo/small.bmp",
              folder.Everything());
}

// Runs in a process of its own, which ends with a signal in the middle of the first write beyond so many bytes.
template <class Work>
void CrashWhileWriting(rlim_t bytes, Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit limit{bytes, bytes}, noCore{0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_DFL);
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << "it came through";
}

TEST_F(DiskTest, ACrashHalfWayLeavesTheOldStateAndNothingThatIsSeenOrCarried)
{
    std::string lines = "# many\n";
    for (int i = 0; i < 3000; ++i)
        lines += "Poses/b.bmp\n";
    folder.Write("Ada/a.bmp", std::string(200'000, 'x'));
    folder.Write("Ada/Poses/b.bmp", std::string(200'000, 'y'));
    folder.Write("Ada/walk.phase", lines);
    folder.MakeFolder("Bo");
    Open();
    const auto pAda = Container("Ada"), pBo = Container("Bo");
    const auto pArchive = Copy("Ada", {"Poses", "a.bmp"});

    CrashWhileWriting(100'000, [&] { Paste(pArchive, "Bo"); });
    CrashWhileWriting(10'000, [&] { Remove("Ada/walk.phase", "b.bmp"); });
    EXPECT_EQ(lines, folder.Read("Ada/walk.phase"));
    const std::string left = folder.Everything();
    EXPECT_NE(std::string::npos, left.find(" Bo/.views-new-")) << left;
    EXPECT_EQ("[Ada/ Bo/]", Open());
    EXPECT_EQ("", Paste(Copy("", {"Ada"}), "Bo"));
    EXPECT_EQ(3, std::distance(std::filesystem::directory_iterator(folder.At("Bo/Ada")), {}));
    EXPECT_EQ("[Poses/ a.bmp walk.phase>]", Members("Bo/Ada"));
}

TEST_F(DiskTest, WhatACrashLeftOverGoesWhenTheFolderIsReadButNothingThatMayBeInTheMaking)
{
    folder.MakeFolder("Ada");
    const auto crash = [&](const std::string& inside) {
        if (const pid_t child = fork(); child != 0)
            return void(waitpid(child, nullptr, 0));
        const editor::TempEntry temp(folder.At("Ada"));
        folder.Write("Ada/" + temp.Name() + inside, "half");
        _exit(0);
    };
    const auto read = [&] {
        Open();
        EXPECT_EQ("[]", Members("Ada"));
        return folder.Everything();
    };
    crash("/Poses/b.bmp");
    {
        const editor::TempEntry another(folder.At("Ada"));
        folder.Write("Ada/" + another.Name(), "half");
        EXPECT_NE(std::string::npos, read().find("/Poses/b.bmp")) << "somebody is at work";
    }
    EXPECT_EQ("Ada/", read());

    folder.Write("Ada/.views-new-0123456789abcdef-0123456789abcdef", "another machine's");
    crash("/Poses/b.bmp");
    EXPECT_EQ("Ada/ Ada/.views-new-0123456789abcdef-0123456789abcdef", read());
    crash("");
    const std::string left = folder.Everything();
    chmod(folder.Path().c_str(), 0777);
    chmod(folder.At("Ada").c_str(), 0777);
    const AsNobody nobody;
    if (geteuid() != getuid()) {
        EXPECT_EQ(left, read()) << "another user's";
    }
}

TEST_F(DiskTest, WhatTheDiskForbidsIsNamedWithTheReasonAndChangesNothing)
{
    folder.Make("Ada/a.bmp Ada/secret.bmp Bo/");
    folder.Write("Ada/walk.phase", "a.bmp\n");
    Open();
    const auto pAda = Container("Ada");
    const auto pPhase = Container("Ada/walk.phase");
    const auto pArchive = Copy("Ada", {"a.bmp"});
    chmod(folder.Path().c_str(), 0755);
    chmod(folder.At("Ada/secret.bmp").c_str(), 0);
    const std::string before = folder.Everything();
    const AsNobody nobody;
    if (eaccess(folder.At("Ada").c_str(), W_OK) == 0)
        GTEST_SKIP() << "this user may change everything";

    EXPECT_EQ("secret.bmp: permission denied", CopyError("Ada", {"secret.bmp"}));
    EXPECT_EQ("none", Permissions(pArchive, "Bo"));
    EXPECT_EQ("a.bmp: permission denied", Remove("Ada", "a.bmp"));
    EXPECT_EQ("a.bmp: permission denied", Rename("Ada", "a.bmp", "b.bmp"));
    EXPECT_EQ("walk.phase: permission denied", Remove("Ada/walk.phase", "a.bmp"));
    EXPECT_EQ("[a.bmp secret.bmp walk.phase>]", Members("Ada"));
    EXPECT_EQ("[a.bmp]", Members("Ada/walk.phase"));
    EXPECT_EQ(before, folder.Everything());
}

TEST_F(DiskTest, RenamingMakesAnotherAtomAndRefusesWhatWouldHideOrReplaceAFile)
{
    folder.Write("a.bmp", "a");
    folder.Write("b.bmp", "b");
    folder.Write("walk.phase", "a.bmp\n");
    folder.Write("Ada/x.bmp", "x");
    folder.WriteBmp("gone.bmp");
    Open();
    const DWORD id = Find("a.bmp")->GetID();

    EXPECT_EQ("", Rename("", "a.bmp", "c.dib"));
    EXPECT_EQ("a", folder.Read("c.dib"));
    EXPECT_NE(id, Find("c.dib")->GetID());
    EXPECT_EQ("", Rename("", "Ada", "Bo.png"));
    EXPECT_EQ("[x.bmp]", Members("Bo.png"));
    EXPECT_EQ("", Rename("", "c.dib", "C.dib")) << "another spelling";

    folder.Remove("gone.bmp");
    const std::string before = folder.Everything();
    EXPECT_EQ("b.bmp: there is a \"C.dib\" already", Rename("", "b.bmp", "C.dib"));
    EXPECT_EQ("b.bmp: a name must not be empty", Rename("", "b.bmp", ""));
    EXPECT_EQ("b.bmp: a name must not hold \"/\"", Rename("", "b.bmp", "../b.bmp"));
    EXPECT_EQ("b.bmp: a name that begins with a dot would hide it", Rename("", "b.bmp", ".b.bmp"));
    EXPECT_EQ("b.bmp: under the name \"b\" it would be no picture any more", Rename("", "b.bmp", "b"));
    EXPECT_EQ("b.bmp: the name is too long (304 of at most 255 bytes)",
              Rename("", "b.bmp", std::string(300, 'b') + ".bmp"));
    EXPECT_EQ("gone.bmp: no such file or directory", Rename("", "gone.bmp", "there.bmp"));
    EXPECT_EQ("a.bmp: a line of a phase bears the name of its picture", Rename("walk.phase", "a.bmp", "b.bmp"));
    EXPECT_EQ(before, folder.Everything());
    EXPECT_EQ("[Bo.png/ C.dib b.bmp gone.bmp walk.phase>]", Members(""));
}

TEST_F(DiskTest, WhatIsRemovedIsInTheTrashAndItsAtomGoes)
{
    folder.Make("a.bmp gone.bmp");
    folder.Write("Ada/x.bmp", "x");
    Open();
    const auto pA = Find("a.bmp");
    const DWORD id = pA->GetID();

    EXPECT_EQ("", Remove("", "a.bmp"));
    EXPECT_EQ("", Remove("", "Ada"));
    folder.Remove("gone.bmp");
    EXPECT_EQ("", Remove("", "gone.bmp")) << "what has vanished may go";
    EXPECT_EQ("[]", Members(""));
    EXPECT_FALSE(Library()->FindAtomByID(id, nullptr, 0));
    EXPECT_FALSE(Library()->RemoveAtom(pA.Get()));
    EXPECT_EQ(0u, Library()->GetPermissions(pA.Get()));
    EXPECT_EQ("a.bmp", Name(pA.Get()));
    EXPECT_EQ("x", trash.folder.Read("Trash/files/Ada/x.bmp"));
}

TEST_F(DiskTest, WithoutMemoryACopyIsWholeOrNotThereAndNothingIsLeftBehind)
{
    folder.Make("Ada/Poses/b.bmp Bo/");
    folder.Write("Ada/walk.phase", "Poses/b.bmp\n");
    Open();
    const auto pAda = Container("Ada"), pBo = Container("Bo");
    const std::string original = folder.Everything();
    const auto pPoses = Find(pAda.Get(), "Poses"), pWalk = Find(pAda.Get(), "walk.phase");
    const auto pArchive = Copy({pPoses.Get(), pWalk.Get()});
    EXPECT_LT(0, FailEveryAllocation([&] {
                  const BOOL bWritten = editor.WriteActiveObjects(pArchive.Get());
                  EXPECT_EQ(bWritten != FALSE, pArchive->GetLength() > 0);
              }));
    const ARCHIVEATOMPROC add = [](IAtom* pAtom, void* pInto) -> BOOL {
        char name[32];
        DWORD length = sizeof name;
        pAtom->GetName(name, &length);
        CStubRef<IAtom> pNew;
        static_cast<IAtomContainer*>(pInto)->AddAtom(pAtom, 0, name, pNew.Receive(), IID_IAtom);
        return TRUE;
    };
    for (int nth = 1; nth == 1 || FailAllocation::HasFailed(); ++nth) {
        folder.Remove("Bo/Poses");
        folder.Remove("Bo/walk.phase");
        {
            const FailAllocation fail(nth);
            editor.ReadArchive(add, pArchive.Get(), pBo.Get());
        }
        const std::string pasted = folder.Read("Bo/Poses/b.bmp");
        EXPECT_TRUE(!std::filesystem::exists(folder.At("Bo/Poses")) || pasted == folder.Read("Ada/Poses/b.bmp")) << nth;
    }
    EXPECT_EQ(original + " Bo/Poses/ Bo/Poses/b.bmp Bo/walk.phase", folder.Everything());
    EXPECT_EQ("[Poses/ walk.phase>]", Members("Bo"));
}

TEST_F(DiskTest, AFolderMayBeCopiedIntoItselfButNotMoved)
{
    folder.Make("Ada/Poses/one.bmp Bo/");
    folder.Link("friend", "Ada");
    folder.Link("Bo/deep", "../Ada/Poses");
    Open();
    const auto pArchive = Copy("", {"Ada"});

    EXPECT_EQ("accept copy", Permissions(pArchive, "Bo"));
    for (const char* pszInside : {"Ada", "Ada/Poses", "friend/Poses", "Bo/deep"})
        EXPECT_EQ("copy", Permissions(pArchive, pszInside));
    const std::string refusal = "Ada: can only be copied there, not moved\n";
    EXPECT_EQ(refusal, Paste(pArchive, "Ada/Poses", true)) << "the original would go, and the new one with it";
    EXPECT_EQ("", Paste(pArchive, "Ada/Poses"));
    EXPECT_EQ(refusal, Paste(pArchive, "Ada/Poses", true)) << "as little after a copy";
    EXPECT_EQ("Ada/ Ada/Poses/ Ada/Poses/Ada/ Ada/Poses/Ada/Poses/ Ada/Poses/Ada/Poses/one.bmp Ada/Poses/one.bmp Bo/ "
              "Bo/deep friend",
              folder.Everything());
}

TEST_F(DiskTest, APhaseThatIsCopiedStillLeadsToItsPictures)
{
    folder.Make("Props/ball.bmp Bo/own.bmp Bo/twin.bmp Ada/twin.bmp");
    folder.WriteBmp("Ada/walk 1.bmp");
    folder.Write("Ada/walk.phase", "# a walk\r\n  walk 1.bmp \r\nProps/ball.bmp\r\ntwin.bmp\r\nlost.bmp");
    Open();

    EXPECT_EQ("", CopyTo("Ada", {"walk.phase"}, "Bo"));
    EXPECT_EQ("# a walk\r\n  Ada/walk 1.bmp \r\nProps/ball.bmp\r\ntwin.bmp\r\nlost.bmp", folder.Read("Bo/walk.phase"));
    EXPECT_EQ("", CopyTo("Ada", {"walk.phase"}, "Ada"));
    EXPECT_EQ(folder.Read("Ada/walk.phase"), folder.Read("Ada/walk (2).phase"));
}

TEST_F(DiskTest, PicturesPutIntoAPhaseBecomeLinesAndLinesThatAreRemovedGo)
{
    folder.Make("Ada/a.bmp Ada/b.bmp #b.bmp");
    folder.WriteBmp("end \n.bmp");
    folder.Write("Ada/walk.phase", "# a walk\na.bmp\n\nlost.bmp\na.bmp");
    folder.Write("Ada/run.phase", "");
    Open();
    const auto pAda = Container("Ada");
    const auto pWalk = Container("Ada/walk.phase"), pRun = Container("Ada/run.phase");
    const auto pTop = Copy("", {"#b.bmp"});

    EXPECT_EQ("copy", Permissions(pTop, "Ada/walk.phase")) << "the picture stays where it is";
    EXPECT_EQ("none", Permissions(Copy("", {"Ada"}), "Ada/walk.phase"));
    EXPECT_EQ("none", Permissions(Copy("", {"end \n.bmp"}), "Ada/walk.phase"));
    EXPECT_EQ("#b.bmp: can only be copied there, not moved\n", Paste(pTop, "Ada/walk.phase", true));
    EXPECT_EQ("", Paste(pTop, "Ada/walk.phase"));
    EXPECT_EQ("", Paste(Copy("Ada", {"b.bmp"}), "Ada/walk.phase"));
    EXPECT_EQ("", Remove("Ada/walk.phase", "a.bmp"));
    EXPECT_EQ("# a walk\n\nlost.bmp\na.bmp\n./#b.bmp\nb.bmp\n", folder.Read("Ada/walk.phase"));
    EXPECT_EQ("[lost.bmp a.bmp #b.bmp b.bmp]", Members("Ada/walk.phase"));
    EXPECT_EQ("", Error(Find(Container("Ada/walk.phase").Get(), "#b.bmp").Get()));

    const auto pLinks = Copy("Ada/walk.phase", {"#b.bmp", "a.bmp"});
    EXPECT_EQ("accept copy", Permissions(pLinks, "Ada/run.phase"));
    EXPECT_EQ("none", Permissions(pLinks, "Ada"));
    EXPECT_EQ("", Paste(pLinks, "Ada/run.phase", true));
    EXPECT_EQ("[#b.bmp a.bmp]", Members("Ada/run.phase"));
    EXPECT_EQ("lost.bmp: no such file or directory", CopyError("Ada/walk.phase", {"lost.bmp"}));
    folder.Link("Ada/lost.bmp", "nowhere");
    EXPECT_EQ("lost.bmp: no such file or directory", CopyError("Ada/walk.phase", {"lost.bmp"}));
    folder.Write("Ada/run.phase", "b.bmp\n");
    EXPECT_EQ("run.phase: was changed by another program; read it again first", Remove("Ada/run.phase", "a.bmp"));
    EXPECT_EQ("b.bmp\n", folder.Read("Ada/run.phase"));
}

TEST_F(DiskTest, ThroughALinkAPhaseIsChangedAndNothingElseThatIsTheUsers)
{
    folder.Write("library/$(ls).bmp", "");
    folder.Write("profile", "ls\n");
    folder.Write("far.phase", "");
    folder.Link("library/evil.phase", "../profile");
    folder.Link("library/walk.phase", "../far.phase");
    Open(folder.At("library"));
    const auto pArchive = Copy("", {"$(ls).bmp"});

    EXPECT_EQ("evil.phase: a link to a file that is no phase\n", Paste(pArchive, "evil.phase"));
    EXPECT_EQ("ls\n", folder.Read("profile"));
    EXPECT_EQ("", Paste(pArchive, "walk.phase"));
    EXPECT_EQ("$(ls).bmp\n", folder.Read("far.phase"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.At("library/walk.phase")));
}

TEST_F(DiskTest, ManyMembersComeAndGoAndAllAreFoundUnderTheirNames)
{
    for (int i = 0; i < 100; ++i)
        folder.WriteBmp("Ada/" + std::to_string(i) + ".bmp");
    folder.MakeFolder("Bo");
    Open();
    const auto pAda = Container("Ada"), pBo = Container("Bo");
    std::vector<CStubRef<IAtom>> held;
    std::vector<IAtom*> atoms;
    for (int i = 99; i >= 0; --i)
        atoms.push_back(held.emplace_back(Find(pAda.Get(), (std::to_string(i) + ".bmp").c_str())).Get());

    EXPECT_EQ("", Paste(Copy(atoms), "Bo", true));
    for (const CStubRef<IAtom>& pAtom : held)
        EXPECT_TRUE(pAtom->GetID() % 2 == 0 || pAda->RemoveAtom(pAtom.Get()));
    EXPECT_EQ(50u, pAda->GetCount());
    EXPECT_EQ(100u, pBo->GetCount());
    for (const CStubRef<IAtom>& pAtom : held) {
        const std::string name = Name(pAtom.Get());
        const bool bGone = pAtom->GetID() % 2;
        EXPECT_EQ(bGone ? nullptr : pAtom.Get(), Find(pAda.Get(), name.c_str()).Get()) << name;
        EXPECT_EQ(!bGone, pAda->FindAtomByID(pAtom->GetID(), nullptr, 0) != FALSE);
        EXPECT_EQ(name, Name(Find(pBo.Get(), name.c_str()).Get()));
    }
}

} // namespace
