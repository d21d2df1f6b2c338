// The selection and the focus, exchanged with the editor as the user works.
#include "tests/views/ListTest.h"

using toolkit::MouseButton;

namespace
{

class ListSelectionTest : public ListTest
{
protected:
    FakeContainer* const box = MakeBox({"a", "b", "c"});
};

TEST_F(ListSelectionTest, AClickIsAskedForAndThenTold)
{
    ProbeList& list = ShowList(box);
    Click(list, 1);
    EXPECT_EQ("[a (*b) c]", list.State());
    EXPECT_TRUE(HasFocus(list));
    EXPECT_EQ(Ledger({"list asks OnAtomSelecting(b in box)", "list tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
    Click(list, 2);
    EXPECT_EQ(Ledger({"list asks OnAtomDeselecting(b in box)", "list tells OnAtomDeselected(b in box)",
                      "list asks OnAtomSelecting(c in box)", "list tells OnAtomSelected(c in box)"}),
              editor.TakeLedger());
    Click(list, 2);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    Click(list, 0, MouseButton::Right);
    EXPECT_EQ("[(*a) b c]", list.State());
}

TEST_F(ListSelectionTest, AVetoByAnyHandlerKeepsTheRowAsItWas)
{
    ProbeList& list = ShowList(box);
    ShowList(box, {.x = 400, .name = "other"});
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(list, 1);
    EXPECT_EQ(std::string::npos, list.State().find('*'));
    editor.Allow();
    Click(list, 1);
    editor.Veto(&IAEStateHandler::OnAtomDeselecting);
    Click(list, 2);
    EXPECT_NE(std::string::npos, list.State().find("*b"));
}

TEST_F(ListSelectionTest, AnotherListMirrorsAndAsksButDoesNotTell)
{
    for (const bool bSkipsSender : {false, true}) {
        editor.skipsSender = bSkipsSender;
        ProbeList& list = ShowList(box);
        ProbeList& other = ShowList(box, {.x = 400, .name = "other"});
        Click(list, 1);
        EXPECT_EQ("[a (*b) c]", list.State());
        EXPECT_EQ("[a *b c]", other.State());
        EXPECT_EQ(Ledger({"list asks OnAtomSelecting(b in box)", "list tells OnAtomSelected(b in box)",
                          "other asks OnAtomSelecting(b in box)"}),
                  editor.TakeLedger());
        list.DestroyWindow();
        other.DestroyWindow();
    }
}

TEST_F(ListSelectionTest, KeysSelectLikeTheMouseAndAllRowsAreToldAtOnce)
{
    ProbeList& list = ShowList(box);
    Click(list, 0);
    editor.TakeLedger();
    desktop.Key(VK_RIGHT);
    EXPECT_EQ("[a (*b) c]", list.State());
    EXPECT_EQ("list tells OnAtomSelected(b in box)", editor.TakeLedger().back());

    list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ("[*a (*b) *c]", list.State());
    EXPECT_EQ(Ledger({"list tells OnAtomSelected(- in box)"}), editor.TakeLedger());
    list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(Ledger({"list tells OnAtomDeselected(- in box)"}), editor.TakeLedger());
}

TEST_F(ListSelectionTest, AHiddenListNeitherAsksNorTells)
{
    ProbeList& list = ShowList(box);
    list.ShowWindow(SW_HIDE);
    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(ListSelectionTest, GainingTheFocusOffersASaveAndTellsTheSelectionAgain)
{
    ProbeList& list = ShowList(box);
    Click(list, 1);
    field.SetFocus();
    editor.active = CStubRef<IAtom>::Share(box->Named("a"));
    editor.TakeLedger();
    list.SetFocus();
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)", "list asks OnAtomSelecting(b in box)",
                      "list tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());

    editor.active = CStubRef<IAtom>::Share(world.Get()); // without a container and no library: nothing to save
    field.SetFocus();
    list.SetFocus();
    EXPECT_EQ(Ledger({"list asks OnAtomSelecting(b in box)", "list tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
}

TEST_F(ListSelectionTest, ASelectionChangedFromOutsideIsNotToldAgainAtTheNextFocus)
{
    ProbeList& list = ShowList(box);
    list.SetFocus();
    field.SetFocus();
    list.OnAtomSelected(box->Named("b"), box);
    editor.TakeLedger();
    list.SetFocus();
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    field.SetFocus();
    list.SetFocus(); // once only
    EXPECT_EQ(Ledger({"list asks OnAtomSelecting(b in box)", "list tells OnAtomSelected(b in box)"}),
              editor.TakeLedger());
}

TEST_F(ListSelectionTest, ARefusedSaveSendsTheFocusBackAndDropsTheClick)
{
    ProbeList& list = ShowList(box);
    list.OnAtomSelected(box->Named("b"), box);
    editor.active = CStubRef<IAtom>::Share(box->Named("a"));
    field.SetFocus();
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    editor.TakeLedger();
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
        Click(list, 2, button);
        EXPECT_TRUE(HasFocus(field));
        EXPECT_EQ("[a *b c]", list.State());
        EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)"}), editor.TakeLedger());
    }
    editor.Allow();
    list.SetFocus(); // the refused attempts have changed nothing: the selection still comes from outside
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)"}), editor.TakeLedger());
}

TEST_F(ListSelectionTest, InAFocusBlockTheFocusChangesWithoutAWord)
{
    ProbeList& list = ShowList(box);
    Click(list, 1);
    field.SetFocus();
    editor.active = CStubRef<IAtom>::Share(box->Named("a"));
    editor.TakeLedger();
    const FocusBlock block;
    list.SetFocus();
    EXPECT_TRUE(HasFocus(list));
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

// An icon list that writes down what it posts to itself.
class PostingList : public CIconList
{
public:
    ~PostingList() override { DestroyWindow(); }
    Ledger posted;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == LVM_SORTITEMS)
            posted.push_back("sort");
        if (message == WM_LBUTTONUP)
            posted.push_back("up " + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam)) +
                             " keys " + std::to_string(wParam));
        return CIconList::WindowProc(message, wParam, lParam);
    }
};

TEST_F(ListSelectionTest, LosingTheFocusOrGainingItInABlockReleasesTheButtonAtTheCursor)
{
    PostingList list;
    ASSERT_TRUE(list.Create(&frame));
    list.MoveWindow(CRect(100, 0, 390, 400));
    list.ShowWindow(SW_SHOW);
    desktop.Run();
    EXPECT_EQ(Ledger({"sort"}), list.posted);
    desktop.MoveTo(frame.m_hWnd, {90, 50}); // left of the list
    CPoint cursor = desktop.CursorPos();
    list.ScreenToClient(&cursor);
    EXPECT_GT(0, cursor.x);
    const std::string strUp = "up " + std::to_string(cursor.x) + "," + std::to_string(cursor.y) + " keys 0";

    list.posted.clear();
    list.SetFocus();
    desktop.Run();
    EXPECT_EQ(Ledger(), list.posted);
    field.SetFocus();
    desktop.Run();
    EXPECT_EQ(Ledger({strUp}), list.posted);
    const FocusBlock block;
    list.SetFocus();
    desktop.Run();
    EXPECT_EQ(Ledger({strUp, strUp}), list.posted);
}

TEST_F(ListSelectionTest, ARefusedSaveBetweenTwoListsAsksOnce)
{
    ProbeList& list = ShowList(box);
    ProbeList& other = ShowList(box, {.x = 400, .name = "other"});
    Click(list, 1);
    editor.active = CStubRef<IAtom>::Share(box->Named("a"));
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    editor.TakeLedger();
    Click(other, 2);
    EXPECT_TRUE(HasFocus(list)); // it got the focus back inside the other's handler, and said nothing
    EXPECT_EQ(Ledger({"nobody asks PreSaveAtom(world in -)"}), editor.TakeLedger());
}

} // namespace
