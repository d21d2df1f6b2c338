// The selection and the focus, exchanged with the editor as the user works.
#include "tests/views/ListTest.h"

using toolkit::MouseButton;

namespace
{

const Ledger kTold{"list asks OnAtomSelecting(b in box)", "list tells OnAtomSelected(b in box)"};
const Ledger kSave{"nobody asks PreSaveAtom(world in -)"};

class ListSelectionTest : public ListTest
{
protected:
    // What is said when the focus comes to it from the field.
    Ledger TakeFocus(const CWnd& wnd)
    {
        field.SetFocus();
        editor.TakeLedger();
        ::SetFocus(wnd.m_hWnd);
        return editor.TakeLedger();
    }
    // So that a change of the focus asks for a save.
    void Activate(FakeAtom* pAtom) { editor.active = CStubRef<IAtom>::Share(pAtom); }

    FakeContainer* const box = MakeBox({"a", "b", "c"});
    ProbeList& list = ShowList(box);
};

TEST_F(ListSelectionTest, AClickIsAskedForAndThenTold)
{
    Click(list, 1);
    EXPECT_EQ("[a (*b) c]", list.State());
    EXPECT_TRUE(HasFocus(list));
    EXPECT_EQ(kTold, editor.TakeLedger());
    Click(list, 2);
    EXPECT_EQ(Ledger({"list asks OnAtomDeselecting(b in box)", "list tells OnAtomDeselected(b in box)",
                      "list asks OnAtomSelecting(c in box)", "list tells OnAtomSelected(c in box)"}),
              editor.TakeLedger());
    Click(list, 2);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    Click(list, 0, MouseButton::Right);
    EXPECT_EQ("[(*a) b c]", list.State());

    editor.Veto(&IAEStateHandler::OnAtomDeselecting);
    Click(list, 1);
    EXPECT_NE(std::string::npos, list.State().find("*a"));
    editor.Allow();
    editor.Veto(&IAEStateHandler::OnAtomSelecting);
    Click(list, 2);
    EXPECT_EQ(std::string::npos, list.State().find('*'));
}

TEST_F(ListSelectionTest, AnotherListMirrorsAndAsksButDoesNotTell)
{
    for (const bool bSkipsSender : {false, true}) {
        editor.skipsSender = bSkipsSender;
        ProbeList& other = ShowList(box, {.x = 400, .name = "other"});
        list.SetRootAtom(box);
        Click(list, 1);
        EXPECT_EQ("[a (*b) c]", list.State());
        EXPECT_EQ("[a *b c]", other.State());
        EXPECT_EQ(Ledger({kTold[0], kTold[1], "other asks OnAtomSelecting(b in box)"}), editor.TakeLedger());
        other.DestroyWindow();
    }
}

TEST_F(ListSelectionTest, KeysSelectLikeTheMouseAndAllRowsAreToldAtOnce)
{
    Click(list, 0);
    desktop.Key(VK_RIGHT);
    EXPECT_EQ("[a (*b) c]", list.State());
    EXPECT_EQ(kTold[1], editor.TakeLedger().back());

    list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ("[*a (*b) *c]", list.State());
    EXPECT_EQ(Ledger({"list tells OnAtomSelected(- in box)"}), editor.TakeLedger());
    list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(Ledger({"list tells OnAtomDeselected(- in box)"}), editor.TakeLedger());

    list.ShowWindow(SW_HIDE); // a hidden list neither asks nor tells
    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(ListSelectionTest, GainingTheFocusOffersASaveAndTellsTheSelectionAgain)
{
    Click(list, 1);
    Activate(box->Named("a"));
    EXPECT_EQ(Ledger({kSave[0], kTold[0], kTold[1]}), TakeFocus(list));
    Activate(world.Get()); // without a container and no library: nothing to save
    EXPECT_EQ(kTold, TakeFocus(list));

    Activate(box->Named("a"));
    const FocusBlock block; // in which the focus changes without a word
    EXPECT_EQ(Ledger(), TakeFocus(list));
    EXPECT_TRUE(HasFocus(list));
}

TEST_F(ListSelectionTest, ASelectionChangedFromOutsideIsNotToldAgainAtTheNextFocus)
{
    list.SetFocus();
    field.SetFocus();
    list.OnAtomSelected(box->Named("b"), box);
    EXPECT_EQ(Ledger(), TakeFocus(list));
    EXPECT_EQ(kTold, TakeFocus(list)); // once only
}

TEST_F(ListSelectionTest, ARefusedSaveSendsTheFocusBackAndDropsTheClick)
{
    list.OnAtomSelected(box->Named("b"), box);
    Activate(box->Named("a"));
    field.SetFocus();
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    editor.TakeLedger();
    for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
        Click(list, 2, button);
        EXPECT_TRUE(HasFocus(field));
        EXPECT_EQ("[a *b c]", list.State());
        EXPECT_EQ(kSave, editor.TakeLedger());
        desktop.Press(list.m_hWnd, PointOf(list, 2), button); // a double click
        desktop.Release(list.m_hWnd, PointOf(list, 2), button);
        EXPECT_EQ("[a *b c]", list.State());
        EXPECT_EQ(Ledger(), editor.TakeLedger());
    }
    editor.Allow();
    EXPECT_EQ(Ledger({kSave[0], kTold[0], kTold[1]}), TakeFocus(list)); // an ordinary one again
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
    PostingList posting;
    Place(posting, CRect(100, 0, 390, 400), "posting");
    EXPECT_EQ(Ledger({"sort"}), std::exchange(posting.posted, {}));
    desktop.MoveTo(frame.m_hWnd, {90, 50}); // left of the list
    CPoint cursor = desktop.CursorPos();
    posting.ScreenToClient(&cursor);
    EXPECT_GT(0, cursor.x);
    const Ledger up{"up " + std::to_string(cursor.x) + "," + std::to_string(cursor.y) + " keys 0"};

    const auto postedAtFocus = [&](CWnd& wnd) {
        wnd.SetFocus();
        desktop.Run();
        return std::exchange(posting.posted, {});
    };
    EXPECT_EQ(Ledger(), postedAtFocus(posting));
    EXPECT_EQ(up, postedAtFocus(field));
    const FocusBlock block;
    EXPECT_EQ(up, postedAtFocus(posting));
}

TEST_F(ListSelectionTest, ARefusedSaveBetweenTwoListsAsksOnce)
{
    ProbeList& other = ShowList(box, {.x = 400, .name = "other"});
    Click(list, 1);
    Activate(box->Named("a"));
    editor.Veto(&IAEStateHandler::PreSaveAtom);
    editor.TakeLedger();
    Click(other, 2);
    EXPECT_TRUE(HasFocus(list)); // it got the focus back inside the other's handler, and said nothing
    EXPECT_EQ(kSave, editor.TakeLedger());
}

} // namespace
