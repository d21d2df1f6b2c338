// What was done is taken back and done again, in the window and on the disk.
#include "Toolkit/menu/MessageBox.h"
#include "tests/editor/EditorFixture.h"

#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <sstream>

namespace
{

namespace fs = std::filesystem;

// All there is on the disk by its path: kind, content and time; of a folder the kind alone.
using State = std::map<std::string, std::string>;

class HistoryTest : public EditorTest
{
protected:
    HistoryTest()
    {
        folder.Make("Ada/a.bmp Ada/b.bmp Ada/Poses/one.bmp Bo/ c.bmp");
        folder.Write("walk.phase", "#delay 80\nc.bmp\nAda/a.bmp\n");
    }
    void Redo() { Press('Z', kBoth); }
    void GoTo(const char* pszName)
    {
        editor::Navigation& navigation = Frame().GetNavigation();
        navigation.GoTo(navigation.Library()->Find(folder.At(pszName)).Get());
        Settle();
    }
    void Rename(const char* pszName, const char* pszNew)
    {
        Click(pszName);
        Press(VK_F2);
        Control('A');
        Enter(pszNew);
    }
    State Disk() const
    {
        State state;
        for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
            const std::string path = entry.path().string().substr(folder.Path().size() + 1);
            if (entry.is_symlink())
                state[path] = "-> " + fs::read_symlink(entry.path()).string();
            else if (entry.is_directory())
                state[path] = "/";
            else
                state[path] = ShortOf(TempFolder::ReadFile(entry.path().string())) + " @" +
                              std::to_string(entry.last_write_time().time_since_epoch().count());
        }
        return state;
    }
    static std::string ShortOf(std::string bytes)
    {
        if (bytes.starts_with("BM"))
            return "picture " + std::to_string(std::hash<std::string>()(bytes));
        std::replace(bytes.begin(), bytes.end(), '\n', '|');
        return bytes;
    }
};

TEST_F(HistoryTest, EveryStepComesBackSelectedAndGoesAgain)
{
    Open();
    DoubleClick("Ada");
    const std::string start = folder.Everything();
    Select({"a.bmp", "b.bmp"});
    Delete();
    EXPECT_EQ("deletion of 2 objects", NextUndo());
    Control('Z');
    EXPECT_EQ("[(*a.bmp) (b.bmp) Poses]", Rows());
    Redo();
    EXPECT_EQ("[*Poses]", Rows());
    Control('Z');

    Rename("Poses", "Moves");
    DoubleClick("Moves");
    EXPECT_EQ("rename of \"Poses\"", NextUndo());
    Control('Z');
    EXPECT_EQ("/Ada/Poses/ | [one.bmp] | 1 object", Screen()) << "what is shown is shown under its former name";
    Control('Y');
    EXPECT_EQ("/Ada/Moves/ | [one.bmp] | 1 object", Screen());
    Control('Z');
    Press(VK_BACK);

    Drag(List(), PlaceOf("b.bmp"), [&] { DropOnTree("Bo"); });
    EXPECT_EQ("move of \"b.bmp\"", NextUndo());
    desktop.Click(List(), PlaceOf("a.bmp"), toolkit::MouseButton::Right);
    EXPECT_NE(std::string::npos, desktop.TakeMenus().at(0).find("| Undo move of \"b.bmp\" | (Redo) |"));
    Control('Z');
    Control('Y');
    Click("a.bmp");
    desktop.Answer(IDYES);
    Control('X');
    Control('Y'); // nothing: what can be done again is over
    Control('Z');
    Control('Z');
    EXPECT_EQ(start, folder.Everything());
    Control('Z');
    EXPECT_EQ(Ledger({"Views: Move 2 objects to the trash? 1 phase will miss pictures.",
                      "Views: Cut \"a.bmp\"? 1 phase will miss pictures, until they are pasted."}),
              TakeBoxes())
        << "without a step nothing happens";
}

TEST_F(HistoryTest, APhasesFramesAndTimingAreStepsToo)
{
    const std::string text = folder.Read("walk.phase");
    const auto written = fs::last_write_time(folder.At("walk.phase"));
    Open();
    DoubleClick("walk.phase");
    const auto delay = [&] {
        desktop.Run();
        return std::string(Frame().GetProperties().GetDelay().GetWindowText()) + ' ' +
               Frame().GetProperties().GetText();
    };
    SetDelay("65");
    Control('S');
    Click("a.bmp");
    Control('X');
    EXPECT_EQ("#delay 65\nc.bmp\n", folder.Read("walk.phase"));
    EXPECT_EQ("cut in \"walk.phase\"", NextUndo());
    Control('Z');
    EXPECT_EQ("/walk.phase/ | [*c.bmp a.bmp] | 2 objects", Screen());
    Control('Z');
    EXPECT_EQ("65 walk.phase: not saved yet (Ctrl+S)", delay());
    EXPECT_EQ(text, folder.Read("walk.phase"));
    EXPECT_EQ(written, fs::last_write_time(folder.At("walk.phase")));
    Control('Z');
    EXPECT_EQ("80 walk.phase", delay());
    Control('Y');
    Control('Y');
    EXPECT_EQ("65 walk.phase", delay());
    EXPECT_EQ("#delay 65\nc.bmp\nAda/a.bmp\n", folder.Read("walk.phase"));
}

TEST_F(HistoryTest, WhatOthersHaveChangedStaysAsTheyLeftItAndTheStepWaits)
{
    Open();
    DoubleClick("Ada");
    Click("a.bmp");
    desktop.Answer(IDYES);
    Control('X');
    TakeBoxes();
    folder.Write("Ada/a.bmp", "another's");
    Control('Z');
    EXPECT_EQ(Ledger({"Views: there is a \"a.bmp\" already.\n\nNothing was changed. Forget this step?"}), TakeBoxes());
    folder.Remove("Ada/a.bmp");
    Control('Z');
    Control('C');
    Press(VK_BACK);
    DoubleClick("Bo");
    Control('V');
    folder.Write("Bo/a.bmp", "painted over");
    Control('Z');
    EXPECT_EQ("paste of \"a.bmp\"", NextUndo());
    desktop.Answer(IDYES);
    Control('Z');
    EXPECT_EQ(2u, TakeBoxes().size());
    EXPECT_EQ("", NextUndo()) << "forgotten: what stands before it is free";
    EXPECT_EQ("painted over", folder.Read("Bo/a.bmp"));
}

TEST_F(HistoryTest, NewFoldersAndPhasesAreNamedWhereTheyComeAndAreSteps)
{
    Open();
    DoubleClick("Ada");
    const auto start = Disk();
    Select({"b.bmp", "a.bmp", "Poses"});
    Press('P', kBoth);
    Enter("walk");
    EXPECT_EQ("new phase \"walk.phase\"", NextUndo()) << "the first name belongs to it";
    EXPECT_EQ("a.bmp\nb.bmp\n", folder.Read("Ada/walk.phase")) << "the frames in the order shown";
    EXPECT_EQ("[a.bmp b.bmp Poses (*walk.phase)]", Rows());
    Press('N', kBoth);
    Press(VK_RETURN); // it may be called so
    EXPECT_EQ("new folder \"New folder\"", NextUndo());
    Press('N', kBoth);
    Enter("a.bmp");
    Press(VK_ESCAPE);
    EXPECT_EQ("[a.bmp b.bmp New folder (*New folder (2)) Poses walk.phase]", Rows());
    Select({"Poses"});
    Press('P', kBoth); // nothing to be shown
    DoubleClick("walk.phase");
    Press('N', kBoth); // not there
    EXPECT_EQ(Ledger(), TakeBoxes());
    const auto end = Disk();
    for (int i = 0; i < 3; ++i)
        Control('Z');
    EXPECT_EQ(start, Disk());
    for (int i = 0; i < 3; ++i)
        Redo();
    EXPECT_EQ(end, Disk());
}

TEST_F(HistoryTest, WhatWasRemovedBeforeOtherStepsIsRestoredByItself)
{
    Open();
    DoubleClick("Ada");
    for (const char* const pszName : {"a.bmp", "b.bmp"}) {
        Click(pszName);
        Delete();
    }
    Press('N', kBoth);
    Press(VK_RETURN);
    GoTo("Bo");
    Control('Z');
    EXPECT_EQ("/Ada/ | [Poses] | 1 object", Screen()) << "where it is seen";
    Redo();
    for (const char* const pszCommand : {"Restore \"b.bmp\"", "Restore \"a.bmp\""})
        ChooseAt(PlaceOf("Poses"), pszCommand);
    EXPECT_EQ("[(*a.bmp) b.bmp New folder Poses]", Rows());
    EXPECT_EQ("restoring of \"a.bmp\"", NextUndo());
    EXPECT_EQ("", History().NameToRestore());
}

TEST_F(HistoryTest, PhasesFollowWhatIsRenamedAndMoved)
{
    folder.Write("Ada/run.phase", "# b\r\na.bmp\r\n ./b.bmp\r\nc.bmp\nPoses/one.bmp\n");
    folder.Write("Ada/Poses/other.phase", "Ada/b.bmp\none.bmp\nnowhere.bmp\n");
    Open();
    const auto phases = [&] { return folder.Read("walk.phase") + '|' + folder.Read("Ada/run.phase"); };
    DoubleClick("Ada");
    Click("run.phase");
    SetDelay("65");
    const std::string unsaved = Frame().GetProperties().GetText();
    Rename("a.bmp", "c.bmp");
    EXPECT_EQ("#delay 80\nc.bmp\nAda/c.bmp\n|# b\r\nc.bmp\r\n ./b.bmp\r\n../c.bmp\nPoses/one.bmp\n", phases())
        << "also where another picture takes the place that a line leads to first";
    EXPECT_EQ("[b.bmp (*c.bmp) Poses run.phase]", Rows());
    GoTo("walk.phase");
    desktop.Click(List(), PlaceOf("c.bmp") + CPoint(100, 0)); // Ada's
    const auto rename = [&](const char* pszFrom, const char* pszTo) {
        const auto pMember = Frame().GetNavigation().Library()->Find(folder.At(pszFrom));
        Frame().GetCommands().GetPlain().Rename(pMember.Get(), pszTo);
        Settle();
    };
    rename("Ada/c.bmp", "zoe.bmp");
    EXPECT_EQ("/walk.phase/ | [c.bmp (*zoe.bmp)] | 2 objects, 1 selected | zoe.bmp: 8 x 8 pixels", Screen());
    rename("Ada/zoe.bmp", "c.bmp");
    GoTo("Ada");
    Click("run.phase");
    desktop.Run();
    EXPECT_EQ(unsaved, Frame().GetProperties().GetText()) << "what is not saved of a phase is kept";
    Rename("Poses", "Moves");
    EXPECT_EQ("Ada/b.bmp\none.bmp\nnowhere.bmp\n", folder.Read("Ada/Moves/other.phase"));
    Press(VK_BACK);
    Rename("Ada", "Eve");
    EXPECT_EQ("#delay 80\nc.bmp\nEve/c.bmp\n|?", phases());
    EXPECT_EQ("Eve/b.bmp\none.bmp\nnowhere.bmp\n", folder.Read("Eve/Moves/other.phase"));
    Tree().Expand(FindItem("Eve"), TVE_EXPAND);
    DoubleClick("Eve");
    Click("run.phase");
    desktop.Run();
    EXPECT_EQ(unsaved, Frame().GetProperties().GetText()) << "also where its folder is renamed";
    Select({"b.bmp", "Moves"});
    Drag(List(), PlaceOf("b.bmp"), [&] { DropOnTree("Bo"); });
    EXPECT_EQ("# b\r\nc.bmp\r\n Bo/b.bmp\r\n../c.bmp\nBo/Moves/one.bmp\n", folder.Read("Eve/run.phase"));
    EXPECT_EQ("Bo/b.bmp\none.bmp\nnowhere.bmp\n", folder.Read("Bo/Moves/other.phase"));
    Click("c.bmp");
    desktop.Answer(IDYES);
    Control('X');
    GoTo("Bo");
    Control('V');
    EXPECT_EQ("#delay 80\nc.bmp\nBo/c.bmp\n", folder.Read("walk.phase")) << "cut and pasted: moved";
    Click("Moves");
    Control('C');
    Press(VK_BACK);
    Control('V');
    EXPECT_EQ("Bo/b.bmp\none.bmp\nnowhere.bmp\n", folder.Read("Bo/Moves/other.phase")) << "copied: not moved";
}

class HistoryWalk : public HistoryTest, public testing::WithParamInterface<unsigned>
{
protected:
    HistoryWalk() : m_random(GetParam())
    {
        folder.Make("Ada/Poses/two.bmp Bo/a.bmp Bo/d.bmp");
        folder.Write("Ada/run.phase", "a.bmp\nb.bmp\n../c.bmp\na.bmp\n");
        folder.Write("Bo/up.phase", "Bo/a.bmp\nAda/b.bmp\nc.bmp\n");
        unsigned color = 0xFF000000;
        for (const auto& [path, what] : Disk())
            if (path.ends_with(".bmp"))
                folder.WriteBmp(path, 8, 8, ++color); // no two alike
        folder.Link("Bo/link.bmp", "../c.bmp");
        folder.Link("Bo/dead.bmp", "nowhere.bmp");
    }

    // What the phases show that show a picture with each line, in no order.
    std::multiset<std::string> Shown() const
    {
        std::multiset<std::string> shown;
        for (const auto& [path, what] : Disk()) {
            std::istringstream lines(path.ends_with(".phase") ? folder.Read(path) : "");
            std::string all, line;
            while (std::getline(lines, line)) {
                if (line.starts_with('#'))
                    continue;
                const std::string beside = (fs::path(path).parent_path() / line).lexically_normal().string();
                all += ShortOf(folder.Read(fs::exists(folder.At(beside)) ? beside : line)) + ' ';
            }
            if (!all.empty() && all.find('?') == all.npos)
                shown.insert(all);
        }
        return shown;
    }

    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    editor::CEditorList& Objects() { return Frame().GetList(); }
    void SelectAny()
    {
        Objects().SetItemState(-1, 0, LVIS_SELECTED);
        for (int i = 0, most = 1 + Below(3); i < most && Objects().GetItemCount() > 0; ++i)
            Objects().SetItemState(Below(Objects().GetItemCount()), LVIS_SELECTED, LVIS_SELECTED);
    }
    CStubRef<IAtom> Any() // none where there is none
    {
        return Objects().GetItemCount() > 0 ? Objects().GetAtom(Below(Objects().GetItemCount())) : nullptr;
    }
    void RenameAny()
    {
        const CStubRef<IAtom> pAtom = Any();
        if (!pAtom)
            return;
        editor::CMember* const pMember = editor::CMember::Of(pAtom.Get());
        const std::string extension = fs::path(pMember->ShownName()).extension();
        Frame().GetCommands().GetPlain().Rename(pMember, "n" + std::to_string(Below(6)) + extension);
        Settle();
    }
    void GoAnywhere()
    {
        const CStubRef<IAtom> pAtom = Any();
        if (Below(3) > 0 && CStubRef<IAtomContainer>::From(pAtom.Get()))
            Frame().GetNavigation().GoTo(editor::CMember::Of(pAtom.Get()));
        else
            Frame().GetNavigation().GoUp();
        Settle();
    }
    void DragAny()
    {
        SelectAny();
        const int nRow = Objects().GetNextItem(-1, LVNI_SELECTED);
        CRect icon;
        if (nRow < 0 || !Objects().GetItemRect(nRow, &icon, LVIR_ICON))
            return;
        const HTREEITEM hRoot = Tree().GetRootItem();
        const HTREEITEM hTarget = Below(2) ? hRoot : Tree().GetChildItem(hRoot);
        desktop.Hold({.control = Below(3) == 0});
        Drag(List(), icon.CenterPoint(), [&] { DropOnTree(Tree().GetItemText(hTarget).GetString()); });
        desktop.Hold({});
    }
    void TimeAny()
    {
        desktop.Run();
        if (!Frame().GetProperties().GetDelay().IsWindowVisible())
            return;
        SetDelay(std::to_string(20 + Below(5)));
    }
    void Act()
    {
        editor::FrameCommands& commands = Frame().GetCommands();
        switch (Below(11)) {
        case 0:
            return SelectAny(), void(commands.Cut());
        case 1:
            return SelectAny(), void(commands.Copy());
        case 2:
        case 3:
            return void(commands.Paste());
        case 4:
            return SelectAny(), void(commands.Remove());
        case 5:
            return RenameAny();
        case 6:
            return DragAny();
        case 7:
            return SelectAny(), TimeAny();
        case 8:
            return Control('S');
        case 9:
            return void(commands.Restore());
        default:
            return GoAnywhere();
        }
    }

    // Another program is at work while a step is to be taken back; what it has done is then taken back, too.
    void UndoBesideAnother()
    {
        std::vector<std::string> files;
        for (const auto& [path, what] : Disk())
            if (what != "/" && !what.starts_with("->"))
                files.push_back(path);
        if (files.empty())
            return;
        const std::string victim = files[static_cast<std::size_t>(Below(static_cast<int>(files.size())))];
        const std::string bytes = folder.Read(victim);
        const auto time = fs::last_write_time(folder.At(victim));
        folder.Write(victim, "another's\n");
        const State before = Disk();
        const std::size_t nDone = History().CountDone();
        Frame().GetCommands().Undo();
        EXPECT_TRUE(nDone > History().CountDone() || before == Disk()) << "nothing of the step was taken back";
        int nFound = 0;
        for (const auto& [path, what] : Disk()) {
            if (!what.starts_with("another's| @"))
                continue;
            ++nFound;
            folder.Write(path, bytes);
            fs::last_write_time(folder.At(path), time);
        }
        EXPECT_EQ(1, nFound) << victim << ": what another wrote is kept, and in sight";
    }

private:
    std::minstd_rand m_random;
};

TEST_P(HistoryWalk, ThroughAnythingAndBackTheDiskIsAsItWas)
{
    Open();
    std::vector<State> states = {Disk()}; // before the first step, and after each
    std::multiset<std::string> shown;
    const auto check = [&] {
        ASSERT_LT(History().CountDone(), states.size());
        ASSERT_EQ(states[History().CountDone()], Disk()) << History().NameToUndo();
    };
    for (int i = 0; i < 100 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const std::size_t nDone = History().CountDone();
        const int what = Below(12);
        shown = Shown();
        if (what == 0)
            Frame().GetCommands().Redo();
        else if (what == 1)
            Frame().GetCommands().Undo();
        else if (what == 2)
            UndoBesideAnother();
        else
            Act();
        if (what > 2 && History().CountDone() != nDone) {
            states.resize(nDone + 1);
            states.push_back(Disk());
            const bool bMoved = NextUndo().starts_with("rename") || NextUndo().starts_with("move of");
            EXPECT_TRUE(!bMoved || std::ranges::includes(Shown(), shown)) << NextUndo() << ": a phase shows another";
        }
        check();
    }
    const State end = states[History().CountDone()];
    const std::size_t nDone = History().CountDone();
    while (History().CountDone() > 0 && !HasFailure()) {
        ASSERT_EQ("", Frame().GetCommands().Undo());
        check();
    }
    while (History().CountDone() < nDone && !HasFailure()) {
        ASSERT_EQ("", Frame().GetCommands().Redo());
        check();
    }
    EXPECT_EQ(end, Disk());
    TakeBoxes();
}

INSTANTIATE_TEST_SUITE_P(Seeds, HistoryWalk, testing::Range(1u, 21u));

} // namespace
