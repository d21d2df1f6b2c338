// Objects dragged with the mouse, between list and tree; what lies on the disk afterwards. And their menu.
#include "Toolkit/menu/MessageBox.h"
#include "Toolkit/message/Input.h"
#include "tests/editor/EditorFixture.h"

namespace
{

class DragTest : public EditorTest
{
protected:
    DragTest() { folder.Make("Ada/a.bmp Ada/b.bmp Ada/c.bmp Bo/"); }

    void DropOnList(CPoint at) { DropOn(List(), at); }
    CPoint BelowTheRows()
    {
        const CRect client = ClientOf(List());
        return {client.right / 2, client.bottom - 5};
    }
};

TEST_F(DragTest, WhatIsDraggedFromTheListIntoTheTreeMovesOnTheDisk)
{
    Open();
    DoubleClick("Ada");
    Click("b.bmp");
    Drag(List(), PlaceOf("b.bmp"), [&] {
        desktop.Hold({.control = true});
        DropOnList(BelowTheRows());
        desktop.Hold({});
    });
    EXPECT_EQ("/Ada/ | [a.bmp (*b (2).bmp) b.bmp c.bmp] | 4 objects, 1 selected | b (2).bmp: 8 x 8 pixels", Screen());
    Select({"a.bmp", "c.bmp", "b (2).bmp"});
    const std::string picture = folder.Read("Ada/a.bmp");
    Drag(List(), PlaceOf("c.bmp"), [&] { DropOnTree("Bo"); });

    EXPECT_EQ(DROPEFFECT_MOVE, desktop.DragEffect());
    EXPECT_EQ("Ada/ Ada/b.bmp Bo/ Bo/a.bmp Bo/b (2).bmp Bo/c.bmp", folder.Everything());
    EXPECT_EQ(picture, folder.Read("Bo/a.bmp"));
    EXPECT_EQ("/Ada/ | [*b.bmp] | 1 object", Screen());
    Drag(Tree().m_hWnd, PlaceInTree("Ada"), [&] { DropOnTree("Bo"); });
    EXPECT_EQ("Bo/ Bo/Ada/ Bo/Ada/b.bmp Bo/a.bmp Bo/b (2).bmp Bo/c.bmp", folder.Everything());
    EXPECT_EQ("/Bo/ | [a.bmp Ada b (2).bmp c.bmp] | 4 objects", Screen());
    EXPECT_EQ(Ledger(), TakeBoxes());
}

TEST_F(DragTest, WhatIsGivenUpOrCannotGoThereStaysWhereItIs)
{
    folder.Make("Ada/Poses/p.bmp Bo/a.bmp");
    Open();
    DoubleClick("Ada");
    const std::string before = folder.Everything();
    const auto drag = [&](HWND hFrom, CPoint at, std::function<void()> script) {
        Drag(hFrom, at, std::move(script));
        EXPECT_EQ(DROPEFFECT_NONE, desktop.DragEffect());
        EXPECT_EQ(before, folder.Everything());
    };
    drag(List(), PlaceOf("b.bmp"), [&] {
        desktop.MoveTo(Tree().m_hWnd, PlaceInTree("Bo"));
        desktop.Key(VK_ESCAPE);
    });
    drag(List(), PlaceOf("b.bmp"), [&] { DropOnList(BelowTheRows()); }); // where it is already
    drag(List(), PlaceOf("a.bmp"), [&] {
        DropOnTree("Bo"); // where there is one of that name, which is told of while the drag is there
        EXPECT_EQ("Bo: there is a \"a.bmp\" already. With Ctrl a copy comes beside it", News());
    });
    drag(Tree().m_hWnd, PlaceInTree("Ada"), [&] { DropOnTree("Ada"); });
    drag(Tree().m_hWnd, PlaceInTree("Ada"), [&] { DropOnList(PlaceOf("Poses")); });
    drag(Tree().m_hWnd, PlaceInTree("Ada"), [&] { DropOnList(BelowTheRows()); });

    EXPECT_EQ(Ledger(), TakeBoxes());
    Drag(List(), PlaceOf("b.bmp"), [&] {
        desktop.MoveTo(Tree().m_hWnd, PlaceInTree("Bo") - CPoint(1, 0));
        desktop.MoveTo(Tree().m_hWnd, PlaceInTree("Bo")); // now it has been asked
        folder.Write("Bo/b.bmp", "came under way");       // nobody has read the folder anew
        desktop.Release(Tree().m_hWnd, PlaceInTree("Bo"));
    });
    EXPECT_EQ(DROPEFFECT_NONE, desktop.DragEffect());
    EXPECT_EQ("came under way", folder.Read("Bo/b.bmp"));
    EXPECT_EQ(before + " Bo/b.bmp", folder.Everything());
    EXPECT_EQ(Ledger({"Views: Not everything was taken: b.bmp: file exists"}), TakeBoxes());
}

TEST_F(DragTest, TheDraggedObjectsGoWhateverIsSelectedWhenTheyAreDropped)
{
    Open();
    DoubleClick("Ada");
    Click("a.bmp");
    Drag(List(), PlaceOf("a.bmp"), [&] {
        std::vector<CStubRef<IAtom>> other;
        other.push_back(Frame().GetList().GetAtom(1)); // as a drop selects what it has pasted
        Frame().GetCommands().GetPlain().Select(other, Frame().ShownContainer());
        DropOnTree("Bo");
    });
    EXPECT_EQ("[(*b.bmp) c.bmp]", Rows());
    EXPECT_EQ("Ada/ Ada/b.bmp Ada/c.bmp Bo/ Bo/a.bmp", folder.Everything());
    Delete();
    EXPECT_EQ("Ada/ Ada/c.bmp Bo/ Bo/a.bmp", folder.Everything()) << "the selection counts again";
}

TEST_F(DragTest, WhatIsDraggedTogetherWithTheFolderThatItIsDroppedOnStaysWhereItIs)
{
    Open();
    Select({"Ada", "Bo"});
    Drag(List(), PlaceOf("Bo"), [&] { DropOnTree("Ada"); });
    EXPECT_EQ(DROPEFFECT_NONE, desktop.DragEffect());
    EXPECT_EQ("Ada/ Ada/Bo/ Ada/a.bmp Ada/b.bmp Ada/c.bmp Bo/", folder.Everything());
    EXPECT_EQ(Ledger({"Views: Not everything was taken: Ada: can only be copied there, not moved"}), TakeBoxes());
}

TEST_F(DragTest, TheMenuKnowsWhatCanBeDoneAndDoesIt)
{
    Open();
    DoubleClick("Ada");
    ChooseAt(BelowTheRows(), "Select all");
    desktop.Click(List(), PlaceOf("b.bmp"), toolkit::MouseButton::Right);
    EXPECT_EQ(
        Ledger({"[(Open) | - | (Undo) | (Redo) | - | (Cut) | (Copy) | Paste | - | New folder | (New phase) | - "
                "| (Rename) | (Delete) | (Restore) | - | Select all | Refresh]",
                "[(Open) | - | (Undo) | (Redo) | - | Cut | Copy | Paste | - | New folder | New phase | - | (Rename) "
                "| Delete | (Restore) | - | (Select all) | Refresh]"}),
        desktop.TakeMenus());
    Click("b.bmp");
    ChooseAt(PlaceOf("b.bmp"), "Copy");
    ChooseAt(PlaceOf("b.bmp"), "Paste");
    desktop.Answer(IDYES);
    ChooseAt(PlaceOf("c.bmp"), "Delete");
    EXPECT_EQ("Ada/ Ada/a.bmp Ada/b (2).bmp Ada/b.bmp Bo/", folder.Everything());
    ChooseAt(PlaceOf("a.bmp"), "Open");
    EXPECT_EQ("/Ada/a.bmp/ | picture |  | a.bmp: 8 x 8 pixels", Screen());
}

TEST_F(DragTest, FilesOfAFileManagerComeAsCopies)
{
    const TempFolder outside;
    outside.WriteBmp("new one.bmp");
    outside.Write("notes.txt", "no picture");
    outside.WriteBmp("a.bmp", 4, 4);
    const auto uri = [&](const char* pszName) { return "file://" + outside.At(pszName) + "\r\n"; };
    Open();
    DoubleClick("Ada");
    desktop.DragIn({{"text/uri-list", uri("a.bmp") + "http://example.org/far.bmp\r\n" + uri("new%20one.bmp")}});
    DropOnList(BelowTheRows());
    Settle();
    EXPECT_EQ("[a (2).bmp a.bmp b.bmp c.bmp (*new one.bmp)]", Rows());
    desktop.DragIn({{"text/uri-list", uri("notes.txt/") + uri("a.bmp")}});
    DropOnTree("Bo");
    Settle();
    desktop.TakeClipboard({{"text/uri-list", uri("a.bmp")}});
    Control('V');
    EXPECT_EQ(outside.Read("a.bmp"), folder.Read("Ada/a (3).bmp"));
    EXPECT_EQ(
        "Ada/ Ada/a (2).bmp Ada/a (3).bmp Ada/a.bmp Ada/b.bmp Ada/c.bmp Ada/new one.bmp Bo/ Bo/a.bmp Bo/notes.txt",
        folder.Everything());
    EXPECT_EQ("a.bmp new one.bmp notes.txt", outside.Everything());
    desktop.TakeClipboard(
        {{"text/uri-list", uri("new%20one.bmp")}, {"x-special/gnome-copied-files", "cut\n" + uri("new%20one.bmp")}});
    Control('V');
    EXPECT_EQ("a.bmp notes.txt", outside.Everything()) << "what was cut is moved";
    EXPECT_EQ("move of \"new one (2).bmp\"", NextUndo());
    Control('Z');
    EXPECT_EQ("a.bmp new one.bmp notes.txt", outside.Everything());
    desktop.TakeClipboard({{"image/bmp", outside.Read("a.bmp")}});
    Control('V');
    EXPECT_EQ(outside.Read("a.bmp"), folder.Read("Ada/Picture.bmp")) << "as a program that draws has it";
    Control('Z');

    Click("new one.bmp");
    std::string dragged;
    Drag(List(), PlaceOf("new one.bmp"), [&] {
        dragged = desktop.ReadDragged("text/uri-list").value_or("none");
        desktop.DragOut();
        desktop.DropOutside(DROPEFFECT_COPY);
    });
    EXPECT_EQ("file://" + folder.At("Ada/new%20one.bmp") + "\r\n", dragged);
    Drag(List(), PlaceOf("new one.bmp"), [&] {
        desktop.DragOut();
        desktop.DropOutside(DROPEFFECT_MOVE);
    });
    EXPECT_EQ(std::string::npos, folder.Everything().find("new one.bmp")) << "who takes it has it";
}

TEST_F(DragTest, AFolderOfAFileManagerIsOpenedByADropOnTheBars)
{
    TempFolder outside;
    outside.Make("Kit/k.bmp");
    Open();
    const HWND hPath = Frame().GetBars().GetPathBar().GetSafeHwnd();
    const auto drop = [&](const std::string& path, HWND hWnd) {
        desktop.DragIn({{"text/uri-list", "file://" + path + "\r\n"}});
        DropOn(hWnd, {40, 12});
        Settle();
        return Rows();
    };
    EXPECT_EQ("[Ada Bo]", drop(outside.At("Kit/k.bmp"), hPath)) << "no folder";
    EXPECT_EQ("[Ada Bo]", drop(outside.At("Kit"), Frame().GetSplitter().GetSafeHwnd())) << "below the bars";
    Drag(List(), PlaceOf("Bo"), [&] { DropOn(hPath, {40, 12}); });
    EXPECT_EQ("[Ada (*Bo)]", Rows()) << "of its own";
    EXPECT_EQ("[k.bmp]", drop(outside.At("Kit"), hPath));
    EXPECT_EQ(outside.At("Kit"), Frame().GetNavigation().Library()->Path());
    EXPECT_EQ("[Ada Bo]", drop(folder.Path(), Frame().GetBars().GetMenuBar().GetSafeHwnd()));
    EXPECT_EQ("", App().OpenPath(outside.At("Kit/k.bmp")));
    Settle();
    EXPECT_TRUE(IsWindowVisible(Picture())) << "a file is shown in its folder";
    EXPECT_EQ(outside.At("Kit/k.bmp"), Frame().Shown()->Path());
}

TEST_F(DragTest, WhatIsNotSavedOfAPhaseTravelsWithItAndTheDiskStaysAsItIs)
{
    folder.Write("Bo/Poses/walk.phase", "#delay 80\n");
    Open();
    DoubleClick("Bo");
    DoubleClick("Poses");
    const auto setDelay = [&](const char* pszDelay) {
        Click("walk.phase");
        SetDelay(pszDelay);
        ::SetFocus(List());
    };
    setDelay("7");
    desktop.Hold({.control = true});
    Drag(List(), PlaceOf("walk.phase"), [&] { DropOnTree("Bo"); });
    desktop.Hold({});
    EXPECT_EQ("#delay 7\n", folder.Read("Bo/walk.phase"));
    EXPECT_EQ("#delay 80\n", folder.Read("Bo/Poses/walk.phase"));
    Press(VK_UP, kAlt);
    Drag(List(), PlaceOf("Poses"), [&] { DropOnTree("Ada"); });
    EXPECT_EQ("#delay 7\n", folder.Read("Ada/Poses/walk.phase"));

    setDelay("9"); // in Bo
    Control('X');
    EXPECT_EQ("Ada/ Ada/Poses/ Ada/Poses/walk.phase Ada/a.bmp Ada/b.bmp Ada/c.bmp Bo/", folder.Everything());
    Control('V');
    EXPECT_EQ("#delay 9\n", folder.Read("Bo/walk.phase"));
    CloseWindow();
    EXPECT_EQ(1, nClosed) << "what has gone is not to be saved";
}

} // namespace
