#include "Editor/disk/FileNames.h"
#include "Editor/disk/TempEntry.h"
#include "Editor/disk/Underway.h"
#include "tests/editor/ArchiveFixture.h"

#include <fcntl.h>
#include <set>
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
    folder.Write("Ada/aux.bmp", "as they may be called here");
    folder.Write("Ada/Poses/back\\slash.bmp", "and separators");
    folder.Write("Ada/Poses/.views-new-ideas", "no file in the making");
    folder.MakeFolder("Bo");
    const timespec times[2] = {{1'000'000'000, 5}, {1'000'000'000, 5}};
    utimensat(AT_FDCWD, folder.At("Ada/a.bmp").c_str(), times, 0);
    chmod(folder.At("Ada/a.bmp").c_str(), 0462);
    chmod(folder.At("Ada/Poses").c_str(), 0550);
    Open();

    const auto pBo = Container("Bo");
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
    folder.Remove("Bo/a.bmp"); // nobody has heard of it
    EXPECT_EQ("", CopyTo("Ada", {"a.bmp", "aux.bmp"}, "Bo", true));
    EXPECT_EQ("[Poses/ a.bmp aux.bmp]", Members("Bo")) << "once";
}

TEST_F(DiskTest, CopiesAreCalledAsAPersonWould)
{
    std::string stem;
    while (stem.size() + 2 + 4 <= 255)
        stem += "\xC3\xAB";
    for (const std::string& name : {std::string("Walk.bmp"), std::string("Walk (7).bmp"), stem + ".bmp"})
        folder.WriteBmp(name);
    folder.WriteBmp("Walk (1000000).bmp");
    folder.WriteBmp("v1.2 (1)/x.bmp");
    folder.Write("readme", "not shown, yet there");
    Open();
    const auto pArchive = Copy("", {"Walk.bmp"});

    EXPECT_EQ("", Paste(pArchive, ""));
    EXPECT_EQ("", Paste(pArchive, ""));
    EXPECT_TRUE(Find("Walk (2).bmp"));
    EXPECT_EQ(folder.Read("Walk.bmp"), folder.Read("Walk (3).bmp"));
    const std::pair<std::string, std::string> names[] = {
        {"wALK.BMP", "wALK (4).BMP"}, // but for the case
        {"Walk (7).bmp", "Walk (8).bmp"},
        {"Walk (1000000).bmp", "Walk (1000000) (2).bmp"}, // no count
        {"v1.2 (1)", "v1.2 (1) (2)"},
        {"README", "README (2)"},
        {"free.bmp", "free.bmp"},
        {"a/b\\c", "a-b-c"},
        {"con.bmp", "_con.bmp"},
        {"..hidden", "hidden"},
        {"..", "?"},
        {stem + ".bmp", stem.substr(0, stem.size() - 4) + " (2).bmp"}, // between characters
    };
    for (const auto& [name, valid] : names)
        EXPECT_EQ(valid, ValidName(name));
    struct stat status;
    stat(folder.Path().c_str(), &status);
    const timespec clockStandsStill[2] = {status.st_atim, status.st_mtim};
    EXPECT_EQ("", Rename("", "Walk (7).bmp", "free.bmp"));
    EXPECT_EQ(0, utimensat(AT_FDCWD, folder.Path().c_str(), clockStandsStill, 0));
    EXPECT_EQ("free (2).bmp", ValidName("free.bmp"));
    EXPECT_EQ("Walk (7).bmp", ValidName("Walk (7).bmp"));
}

TEST(FileNamesTest, TheNextOfManyNamesakesIsFoundInAFewSteps)
{
    std::set<std::string, std::less<>> taken{"a.bmp"};
    int nAsked = 0, nKnown = 0;
    const auto isTaken = [&](std::string_view name) { return ++nAsked, taken.contains(name); };
    for (int i = 2; i <= 330; ++i) {
        const std::string name = i <= 300 ? editor::NameForCopy("a.bmp", ".bmp", isTaken, nKnown)
                                          : editor::AnyNameForCopy("a.bmp", ".bmp", isTaken);
        EXPECT_EQ("a (" + std::to_string(i) + ").bmp", *taken.insert(name).first);
    }
    EXPECT_GT(3 * 300 + 30 * 30, nAsked);
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

TEST_F(DiskTest, WhatACrashLeftOverGoesWhenTheFolderIsReadButNothingThatMayBeInTheMaking)
{
    folder.Make("Ada/ Bo/a.bmp");
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
    EXPECT_EQ("Ada/ Bo/ Bo/a.bmp", read());

    folder.Write("Ada/.views-new-0123456789abcdef-0123456789abcdef", "another machine's");
    crash("/Poses/b.bmp");
    EXPECT_EQ("Ada/ Ada/.views-new-0123456789abcdef-0123456789abcdef Bo/ Bo/a.bmp", read());
    EXPECT_EQ("", CopyTo("", {"Ada"}, "Bo"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.At("Bo/Ada"))) << "not carried";
    crash("");
    const std::string left = folder.Everything();
    const auto pArchive = Copy("Bo", {"a.bmp"});
    chmod(folder.At("Ada").c_str(), 0777);
    for (const char* const pszClosed : {"", "Bo"})
        chmod(folder.At(pszClosed).c_str(), 0755);
    if (geteuid() != 0 || seteuid(65534) != 0)
        return;
    EXPECT_EQ(left, read()) << "another user's";
    EXPECT_EQ("none", Permissions(pArchive, "Bo"));
    EXPECT_EQ("a.bmp: permission denied", Remove("Bo", "a.bmp"));
    EXPECT_EQ("[Ada/ a.bmp]", Members("Bo"));
    ASSERT_EQ(0, seteuid(0));
}

TEST_F(DiskTest, WhatWasUnderWayIsToldOnceItsProgramIsGone)
{
    const std::string marks = folder.At("state/marks");
    if (const pid_t child = fork(); child == 0) {
        const editor::UnderwayMark mark(marks, "paste in Ada");
        _exit(0);
    } else {
        waitpid(child, nullptr, 0);
    }
    {
        const editor::UnderwayMark own(marks, "cut in Bo");
        EXPECT_EQ(std::vector<std::string>{"paste in Ada"}, editor::TakeInterrupted(marks));
    }
    EXPECT_TRUE(editor::TakeInterrupted(marks).empty());
}

TEST_F(DiskTest, RenamingMakesAnotherAtomAndRefusesWhatWouldHideOrReplaceAFile)
{
    folder.Write("a.bmp", "a");
    folder.Write("walk.phase", "a.bmp\n");
    folder.Make("b.bmp Ada/x.bmp gone.bmp");
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
    const std::pair<std::string, std::string> refusals[] = {
        {"C.dib", "there is a \"C.dib\" already"},
        {"", "a name must not be empty"},
        {"../b.bmp", "a name must not hold \"/\""},
        {".b.bmp", "a name that begins with a dot would hide it"},
        {"b", "under the name \"b\" it would be no picture any more"},
        {std::string(300, 'b') + ".bmp", "the name is too long (304 of at most 255 bytes)"},
    };
    for (const auto& [name, reason] : refusals)
        EXPECT_EQ("b.bmp: " + reason, Rename("", "b.bmp", name));
    EXPECT_EQ("gone.bmp: no such file or directory", Rename("", "gone.bmp", "there.bmp"));
    EXPECT_EQ("a.bmp: a line of a phase bears the name of its picture", Rename("walk.phase", "a.bmp", "b.bmp"));
    EXPECT_EQ(before, folder.Everything());
    EXPECT_EQ("[Bo.png/ C.dib b.bmp gone.bmp walk.phase>]", Members(""));
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
    const auto pAda = Container("Ada"), pWalk = Container("Ada/walk.phase"), pRun = Container("Ada/run.phase");
    const auto pTop = Copy("", {"#b.bmp"});

    EXPECT_EQ("copy", Permissions(pTop, "Ada/walk.phase")) << "the picture stays where it is";
    EXPECT_EQ("none", Permissions(Copy("", {"Ada"}), "Ada/walk.phase"));
    EXPECT_EQ("none", Permissions(Copy("", {"end \n.bmp"}), "Ada/walk.phase"));
    EXPECT_EQ("#b.bmp: can only be copied there, not moved\n", Paste(pTop, "Ada/walk.phase", true));
    EXPECT_EQ("", Paste(pTop, "Ada/walk.phase"));
    EXPECT_EQ("", CopyTo("Ada", {"b.bmp"}, "Ada/walk.phase"));
    EXPECT_EQ("", Remove("Ada/walk.phase", "a.bmp"));
    EXPECT_EQ("# a walk\n\nlost.bmp\na.bmp\n./#b.bmp\nb.bmp\n", folder.Read("Ada/walk.phase"));
    EXPECT_EQ("[lost.bmp a.bmp #b.bmp b.bmp]", Members("Ada/walk.phase"));
    EXPECT_EQ("", Error(Find(pWalk.Get(), "#b.bmp").Get()));

    const auto pLinks = Copy("Ada/walk.phase", {"#b.bmp", "a.bmp"});
    EXPECT_EQ("accept copy", Permissions(pLinks, "Ada/run.phase"));
    EXPECT_EQ("none", Permissions(pLinks, "Ada"));
    EXPECT_EQ("", Paste(pLinks, "Ada/run.phase", true));
    EXPECT_EQ("[#b.bmp a.bmp]", Members("Ada/run.phase"));
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
    std::vector<CStubRef<IAtom>> held;
    for (int i = 0; i < 100; ++i)
        folder.WriteBmp("Ada/" + std::to_string(i) + ".bmp");
    Open();
    const auto pAda = Container("Ada");
    for (int i = 99; i >= 0; --i)
        held.push_back(Find(pAda.Get(), (std::to_string(i) + ".bmp").c_str()));
    for (const CStubRef<IAtom>& pAtom : held)
        EXPECT_TRUE(pAtom->GetID() % 2 == 0 || pAda->RemoveAtom(pAtom.Get()));
    EXPECT_EQ(50u, pAda->GetCount());
    for (const CStubRef<IAtom>& pAtom : held) {
        const bool bGone = pAtom->GetID() % 2;
        EXPECT_EQ(bGone ? nullptr : pAtom.Get(), Find(pAda.Get(), Name(pAtom.Get()).c_str()).Get());
        EXPECT_EQ(!bGone, pAda->FindAtomByID(pAtom->GetID(), nullptr, 0) != FALSE);
        EXPECT_EQ(!bGone, pAda->GetPermissions(pAtom.Get()) != 0);
        EXPECT_TRUE(!bGone || !pAda->RemoveAtom(pAtom.Get()));
    }
}

} // namespace
