// Tree and list side by side, each following the other.
#include "Editor/widgets/CrumbLayout.h"
#include "tests/editor/EditorFixture.h"
#include "tests/editor/StateSpy.h"

#include <algorithm>

namespace
{

class FrameTest : public EditorTest
{
protected:
    ~FrameTest() override
    {
        if (m_dwCookie)
            Editor()->UnregisterHandler(m_dwCookie);
    }

    static CStubRef<IAtomEditor> Editor() { return CStubRef<IAtomEditor>::Adopt(GetAtomEditor()); }
    void Listen() { m_dwCookie = Editor()->RegisterHandler(nullptr, &spy); }

    void ClickItem(const std::string& name) { ClickTree(PlaceInTree(name)); }
    void ClickButton(const std::string& name)
    {
        CRect label;
        EXPECT_TRUE(Tree().GetItemRect(FindItem(name), &label, TRUE));
        ClickTree(CPoint(label.left - 16 - 2 * 2 - 10, label.CenterPoint().y)); // left of the picture
    }
    void ClickTree(CPoint at)
    {
        desktop.Advance(1000);
        desktop.Click(Tree().m_hWnd, at);
        Settle();
    }
    std::string Focus()
    {
        const HWND hFocus = GetFocus();
        return hFocus == Tree().m_hWnd ? "tree"
               : hFocus == List()      ? "list"
               : hFocus == Picture()   ? "picture"
                                       : "elsewhere";
    }
    int TreeWidth() { return PlaceOnScreen(Frame().GetSplitter().m_hWnd).left; }
    void DragSplitter(int to, bool bRelease = true)
    {
        const HWND hBar = Frame().GetSplitter().m_hWnd;
        desktop.Advance(1000);
        desktop.Press(hBar, {3, 200});
        desktop.MoveTo(App().GetMainWindow(), {to + 3, 240});
        if (bRelease)
            desktop.Release(App().GetMainWindow(), {to + 3, 240});
    }

    LedgerBook book;
    StateSpy spy{{}, book};

private:
    DWORD m_dwCookie = 0;
};

TEST_F(FrameTest, AFolderIsWalkedByDoubleClicksAndBackspaceAndTheTreeFollows)
{
    folder.Make("Ada/Poses/one.bmp Ada/a.bmp Bo/");
    folder.Write("walk.phase", "Ada/a.bmp\nAda/Poses/one.bmp\nAda/a.bmp\n");
    EXPECT_EQ("", Open());
    EXPECT_EQ("/ | [Ada Bo walk.phase] | 3 objects", Screen());
    EXPECT_EQ("(/)[Ada+ Bo walk.phase+]", Branches()) << "an empty folder has no button";

    DoubleClick("Ada");
    EXPECT_EQ("/[(Ada)+ Bo walk.phase+]", Branches());
    DoubleClick("Poses");
    EXPECT_EQ("list", Focus());
    DoubleClick("one.bmp");
    EXPECT_EQ("/[Ada[a.bmp Poses[(one.bmp)]] Bo walk.phase+]", Branches());
    EXPECT_EQ("picture", Focus());
    Press(VK_BACK);
    Press(VK_BACK);
    EXPECT_EQ("/[(Ada)[a.bmp Poses[one.bmp]] Bo walk.phase+]", Branches());
    EXPECT_EQ("/Ada/ | [a.bmp (*Poses)] | 2 objects, 1 selected | Poses", Screen());
    EXPECT_EQ("list", Focus());
    for (int i = 0; i < 2; ++i) { // nothing is above the library
        Press(VK_UP, kAlt);
        EXPECT_EQ("/ | [(*Ada) Bo walk.phase] | 3 objects, 1 selected | Ada", Screen());
    }
    ClickButton("walk.phase");
    EXPECT_EQ("(/)[Ada[a.bmp Poses[one.bmp]] Bo walk.phase[a.bmp one.bmp a.bmp]]", Branches())
        << "in the phase's order";
}

TEST_F(FrameTest, TheListShowsWhatIsSelectedInTheTreeAndTheFocusStays)
{
    folder.Make("Ada/Poses/one.bmp");
    folder.WriteBmp("Ada/a.bmp", 8, 8, 0xFF405060);
    folder.WriteBmp("b.bmp", 8, 8, 0xFF102030);
    Open();

    ClickItem("Ada");
    EXPECT_EQ("/[(Ada)+ b.bmp]", Branches()) << "selected, not expanded";
    EXPECT_EQ("/Ada/ | [a.bmp Poses] | 2 objects", Screen());
    Press(VK_RIGHT);
    Press(VK_DOWN);
    EXPECT_EQ("/Ada/a.bmp/ | picture |  | a.bmp: 8 x 8 pixels", Screen());
    EXPECT_EQ(0xFF405060, MiddleOf(Picture()));
    Press(VK_END);
    EXPECT_EQ(0xFF102030, MiddleOf(Picture())) << "from picture to picture by the arrows";
    Press(VK_UP, kAlt);
    EXPECT_EQ("/ | [Ada (*b.bmp)] | 2 objects, 1 selected | b.bmp: 8 x 8 pixels", Screen());
    EXPECT_EQ("tree", Focus()) << "whoever walks in the tree goes on in the tree";
    ClickItem("Ada");
    Press(VK_RETURN);
    EXPECT_EQ("list", Focus());
    EXPECT_EQ("/Ada/ | [a.bmp Poses] | 2 objects", Screen());
}

TEST_F(FrameTest, KeysChangeThePaneAndTheListKeepsItsSelection)
{
    folder.Make("a.bmp b.bmp c.bmp");
    Open();
    Select({"a.bmp", "c.bmp"});
    const std::string before = Screen();
    for (const UINT vkey : {VK_F6, VK_TAB}) {
        Press(vkey);
        EXPECT_EQ("tree", Focus());
        Press(vkey);
        EXPECT_EQ("list", Focus());
    }
    ClickTree({100, 300});
    EXPECT_EQ("tree", Focus());
    Press(VK_HOME);
    ClickTree({60, 8});
    EXPECT_EQ("(/)[a.bmp b.bmp c.bmp]", Branches());
    EXPECT_EQ(before, Screen());
}

TEST_F(FrameTest, WhatIsOpenedIsToldOnceAndASelectionInTheTreeInItsOrder)
{
    folder.Make("Ada/Poses/a.bmp Bo/b.bmp");
    Open();
    Listen();
    EXPECT_EQ(Ledger({"created /"}), book.TakeLedger()) << "who comes later hears of what is there";

    DoubleClick("Ada");
    Ledger told = book.TakeLedger();
    EXPECT_EQ(1, std::count(told.begin(), told.end(), "entered Ada"));
    EXPECT_EQ(0, std::count(told.begin(), told.end(), "entered /"));
    ClickItem("Ada");
    book.TakeLedger();
    ClickItem("Bo");
    EXPECT_EQ(Ledger({"selecting Bo", "deselected Ada", "entered Bo", "selected Bo"}), book.TakeLedger());
    spy.answer = FALSE;
    ClickItem("Ada");
    EXPECT_EQ(Ledger({"selecting Ada"}), book.TakeLedger());
    EXPECT_EQ("/[Ada+ (Bo)+]", Branches());
    EXPECT_EQ("/Bo/ | [b.bmp] | 1 object", Screen());

    spy.answer = TRUE;
    DoubleClick("b.bmp");
    book.TakeLedger();
    Open(folder.At("Ada")); // takes the place of the first
    EXPECT_EQ("(/)[Poses+]", Branches());
    EXPECT_EQ("/ | [Poses] | 1 object", Screen());
    EXPECT_STREQ("Ada - Views", GetWindowText(App().GetMainWindow()));
    told = book.TakeLedger();
    EXPECT_EQ(1, std::count(told.begin(), told.end(), "entered /")) << "none of the former on the way";
}

TEST_F(FrameTest, FoldersAreReadWhenTheyAreExpanded)
{
    folder.Make("Ada/a.bmp Bo/");
    folder.Link("Bo/ring", "../Bo");
    Open();
    folder.Make("Ada/b.bmp");
    ClickButton("Ada");
    EXPECT_EQ("(/)[Ada[a.bmp b.bmp] Bo+]", Branches()) << "not read before";
    EXPECT_EQ("/ | [Ada Bo] | 2 objects", Screen()) << "expanding selects nothing";
    folder.Remove("Bo/ring");
    ClickButton("Bo");
    EXPECT_EQ("(/)[Ada[a.bmp b.bmp] Bo]", Branches()) << "nothing is left to expand";

    folder.Make("Ada/c.bmp Bo/d.bmp");
    folder.Remove("Ada/a.bmp");
    for (const char* const pszFolder : {"Ada", "Bo"}) {
        ClickItem(pszFolder);
        Press(VK_F5);
    }
    EXPECT_EQ("/[Ada[b.bmp c.bmp] (Bo)+]", Branches());
}

TEST_F(FrameTest, ExpandingEverythingEndsAtARingOfLinksAndAtTooMuch)
{
    folder.Make("Ada/Poses/one.bmp Huge/ Zoe/a.bmp");
    folder.Link("Ada/Poses/ring", "../../Ada");
    Open();
    ClickButton("Ada");
    ClickButton("Poses");
    EXPECT_EQ("(/)[Ada[Poses[one.bmp ring]] Huge Zoe+]", Branches()) << "the ring ends before it is read";
    Press(VK_MULTIPLY);
    EXPECT_EQ("(/)[Ada[Poses[one.bmp ring]] Huge Zoe[a.bmp]]", Branches());

    folder.MakeEmptyFiles(10'000, "Huge/%05d.bmp");
    Open();
    Press(VK_F6);
    Press(VK_MULTIPLY);
    EXPECT_EQ(FindItem("Zoe"), Tree().GetNextSiblingItem(FindItem("Huge")));
    EXPECT_NE(std::string::npos, Branches().find("09999.bmp] Zoe+]"));
}

TEST_F(FrameTest, TheSplitterIsDraggedWithinBounds)
{
    folder.WriteBmp("a.bmp");
    Open();
    const HWND hBar = Frame().GetSplitter().m_hWnd;
    const int usual = TreeWidth();
    desktop.MoveTo(hBar, {3, 100});
    EXPECT_EQ(toolkit::Cursor::SizeWE, desktop.CurrentCursor());
    const std::pair<int, int> widths[] = {{250, 250}, {0, 120}, {2000, 640 - 240 - 7}, {200, 200}};
    for (const auto& [to, width] : widths) {
        DragSplitter(to);
        EXPECT_EQ(width, TreeWidth());
    }
    EXPECT_EQ(207, PlaceOnScreen(List()).left);
    EXPECT_EQ(640, PlaceOnScreen(List()).right);
    DragSplitter(300, false);
    EXPECT_EQ(300, TreeWidth());
    Press(VK_ESCAPE);
    desktop.MoveTo(App().GetMainWindow(), {400, 240});
    EXPECT_EQ(200, TreeWidth()) << "not dragged any more";
    desktop.Release(hBar, {3, 200});

    ResizeWindow({300, 400});
    EXPECT_EQ(0, PlaceOnScreen(List()).left) << "no room for two";
    Press(VK_F6);
    EXPECT_EQ("list", Focus());
    ResizeWindow({640, 480});
    EXPECT_EQ(200, TreeWidth());
    desktop.Advance(1000);
    desktop.DoubleClick(hBar, {3, 200});
    EXPECT_EQ(usual, TreeWidth());
}

using editor::CrumbLayout;

// Parts with their places: "0@0-50 ..@60-70 3@80-120".
std::string Lay(const std::vector<int>& widths, int room)
{
    const CrumbLayout layout(widths, 10, 10, CRect(0, 0, room, 20));
    std::string text;
    for (const CrumbLayout::Crumb& crumb : layout.Crumbs())
        text += (text.empty() ? "" : " ") + (crumb.nPart == CrumbLayout::kDots ? ".." : std::to_string(crumb.nPart)) +
                '@' + std::to_string(crumb.rect.left) + '-' + std::to_string(crumb.rect.right);
    return text;
}

TEST(CrumbLayoutTest, PartsInTheMiddleMakeWayAndTheLastIsAlwaysShown)
{
    EXPECT_EQ("0@0-30 1@40-70 2@80-110 3@120-150", Lay({30, 30, 30, 30}, 150));
    EXPECT_EQ("0@0-30 ..@40-50 2@60-90 3@100-130", Lay({30, 30, 30, 30}, 149));
    EXPECT_EQ("0@0-30 ..@40-50 3@60-90", Lay({30, 30, 30, 30}, 129));
    EXPECT_EQ("0@0-30 ..@40-50 3@60-70", Lay({30, 30, 30, 30}, 70)) << "cut, when nothing is left to leave out";
    const CrumbLayout layout({30, 30, 30}, 10, 10, CRect(0, 0, 90, 20));
    EXPECT_EQ(0, layout.PartAt({29, 10}));
    EXPECT_EQ(CrumbLayout::kDots, layout.PartAt({45, 10}));
    EXPECT_EQ(2, layout.PartAt({60, 10}));
}

} // namespace
