// Dragging atoms out of the views and dropping them on them, their menus, and what else they do alike.
#include "Toolkit/exchange/ClipboardFormat.h"
#include "Views/clipboard/clipboard.h"
#include "Views/tree/TreeDropTarget.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <filesystem>

namespace
{

// The list on the left shows the box and its members; the tree on the right shows the world, expanded: the bag below
// the box.
class DragTest : public TransferTest
{
protected:
    DragTest()
    {
        editor.readsOn = true;
        MakeViews();
    }
    void MakeViews(bool bPassive = false)
    {
        list = std::make_unique<ProbeList>(hooks, bPassive);
        tree = std::make_unique<ProbeTree>(bPassive);
        editor.pSelected = list.get();
        Place(*list, CRect(0, 0, 390, 380), "list").SetRootAtom(pBox);
        Place(*tree, CRect(400, 0, 800, 380), "tree").OnCreateAtom(world.Get(), nullptr);
        tree->Expand(tree->GetItem(world.Get()), TVE_EXPAND);
        desktop.Run();
        editor.TakeLedger();
    }
    CPoint RowPoint(int nRow) const { return PointOf(*list, nRow); }
    CPoint ItemPoint(FakeAtom* pAtom) const { return tree->PointOf(pAtom); }
    CPoint EmptyPoint() const // in no row
    {
        const CRect rect = ClientOf(list->m_hWnd);
        return {rect.right - 3, rect.bottom - 3};
    }
    // "b -> 2": the rows and items that are highlighted, and the effect that a drop would have now.
    std::string Hover() const
    {
        std::string strHover;
        for (int i = -1; (i = list->GetNextItem(i, LVNI_DROPHILITED)) >= 0;)
            strHover += NameOf(list->Pair(i)->pAtom) + " ";
        for (FakeAtom* p : std::initializer_list<FakeAtom*>{world.Get(), pBox, pBag}) {
            if (tree->GetItemState(tree->GetItem(p), TVIS_DROPHILITED))
                strHover += p->name + " ";
        }
        return strHover + "-> " + std::to_string(desktop.DragEffect());
    }
    // Moves there, and says what was asked of the host, followed by Hover.
    Ledger MoveOver(const CWnd& wnd, CPoint at)
    {
        editor.TakeLedger();
        desktop.MoveTo(wnd.m_hWnd, at);
        Ledger told = editor.TakeLedger();
        told.push_back(Hover());
        return told;
    }
    // Another program drags these atoms, over the frame's edge at first.
    void DragIn(const std::string& names, DROPEFFECT allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE)
    {
        m_folder.Write("atoms", names);
        desktop.DragIn({{toolkit::KindsOfFormat(editor.format).front(), m_folder.At("atoms") + std::string(1, 0)}},
                       allowed);
    }
    // What a drag from there does while the script plays.
    void Drag(const CWnd& wnd, CPoint at, std::function<void()> script)
    {
        const HWND hWnd = wnd.m_hWnd;
        desktop.Advance(1000); // no double click
        desktop.DuringDrag(std::move(script));
        desktop.Press(hWnd, at);
        desktop.MoveTo(hWnd, at + CPoint(3, 6));
    }

    TempFolder m_folder; // of the other program
    Ledger hooks;
    std::unique_ptr<ProbeList> list;
    std::unique_ptr<ProbeTree> tree;
};

TEST_F(DragTest, SelectedRowsAreDraggedTogetherIntoTheTree)
{
    desktop.Click(list->m_hWnd, RowPoint(0));
    desktop.Hold({.shift = true});
    desktop.Click(list->m_hWnd, RowPoint(1));
    desktop.Hold({});
    editor.TakeLedger();
    Drag(*list, RowPoint(1), [&] {
        EXPECT_EQ(Ledger({"writes 2", "drags a b"}), editor.TakeLedger());
        EXPECT_EQ(Ledger({"-> 0"}), MoveOver(*tree, ItemPoint(pBox))); // entering has no effect
        EXPECT_EQ(Ledger({"reads", "box permits a", "box finds a", "-> 0"}),
                  MoveOver(*tree, ItemPoint(pBox) + CPoint(1, 0))); // they are there already
        MoveOver(*tree, ItemPoint(pBag));
        EXPECT_EQ(Ledger({"reads", "bag permits a", "bag finds a", "bag permits b", "bag finds b", "bag -> 2"}),
                  MoveOver(*tree, ItemPoint(pBag) + CPoint(1, 0)));
        desktop.Release(tree->m_hWnd, ItemPoint(pBag) + CPoint(1, 0));
    });
    const Ledger told = editor.TakeLedger();
    const auto dragged = std::ranges::find(told, "dragged: 2");
    EXPECT_EQ(Ledger({"reads", "bag permits a", "bag finds a", "bag permits b", "bag finds b", "reads", "bag permits a",
                      "bag adds a as a", "nobody tells OnCreateAtom(a in bag)", "bag permits b", "bag adds b as b",
                      "nobody tells OnCreateAtom(b in bag)", "reads"}),
              Ledger(told.begin(), dragged));
    EXPECT_EQ(Ledger({"dragged: 2", "enumerates", "box permits a", "box removes a", "box permits b", "box removes b",
                      "nobody tells OnDeleteAtom(- in box)", "list tells OnAtomDeselected(- in box)"}),
              Ledger(dragged, told.end()));
    EXPECT_EQ("c / d a b", Members(pBox) + " / " + Members(pBag));
    EXPECT_EQ("[c]", list->State());
    EXPECT_EQ("world [bag [a b d] box [c]]", tree->State());
    EXPECT_EQ("-> 2", Hover());
}

TEST_F(DragTest, TheHighlightFollowsTheDragWhereItWouldBeTaken)
{
    list->SetRootAtom(world.Get()); // bag and box are rows now
    world->pLedger = &editor.ledger;
    world->permissions = APF_ACCEPTCOPY;
    desktop.Run();
    DragIn("x\n");
    EXPECT_EQ(Ledger({"-> 0"}), MoveOver(*list, RowPoint(1)));
    EXPECT_EQ(Ledger({"reads", "box permits x", "box finds x", "box -> 2"}),
              MoveOver(*list, RowPoint(1) + CPoint(1, 1)));
    pBag->permissions = APF_ACCEPTCOPY;
    EXPECT_EQ("bag -> 1", MoveOver(*list, RowPoint(0)).back());
    world->permissions = 0;
    EXPECT_EQ(Ledger({"reads", "world permits x", "bag -> 0"}), MoveOver(*list, EmptyPoint())); // kept: refused
    world->permissions = APF_ACCEPTCOPY;
    EXPECT_EQ("-> 2", MoveOver(*list, EmptyPoint() + CPoint(1, 1)).back());

    pBox->permissions = pBag->permissions = APF_ACCEPT;
    world->permissions = 0;
    MoveOver(*tree, ItemPoint(pBox));
    EXPECT_EQ("box -> 2", MoveOver(*tree, ItemPoint(pBox) + CPoint(1, 0)).back());
    EXPECT_EQ("-> 0", MoveOver(*tree, ItemPoint(world.Get())).back());
    EXPECT_EQ("bag -> 2", MoveOver(*tree, ItemPoint(pBag)).back());
    EXPECT_EQ(Ledger({"-> 0"}), MoveOver(*tree, {200, 300})); // off every item
    desktop.Hold({.control = true});
    EXPECT_EQ("bag -> 1", MoveOver(*tree, ItemPoint(pBag)).back());
    MoveOver(field, {1, 1});
    EXPECT_EQ("bag -> 0", Hover()); // leaving changes nothing
    tree->OnDeleteAtom(pBag, world.Get());
    EXPECT_EQ("box -> 1", (MoveOver(*tree, ItemPoint(pBox)), MoveOver(*tree, ItemPoint(pBox) + CPoint(1, 0)).back()));
    desktop.Release(tree->m_hWnd, ItemPoint(pBox) + CPoint(1, 0));
    EXPECT_EQ("-> 1", Hover());
    EXPECT_EQ("a b c x", Members(pBox));
}

TEST_F(DragTest, WhatHoldsNoAtomsIsNotTaken)
{
    COleDataObject none; // and a target without a view takes nothing
    EXPECT_FALSE(CTreeDropTarget().OnDrop(nullptr, &none, DROPEFFECT_MOVE, {}));
    EXPECT_FALSE(CListDropTarget().OnDrop(nullptr, &none, DROPEFFECT_MOVE, {}));

    const auto tryDrop = [&](const CWnd& wnd, CPoint at) {
        desktop.MoveTo(wnd.m_hWnd, at);
        EXPECT_EQ(Ledger({"-> 0"}), MoveOver(wnd, at + CPoint(1, 0)));
        desktop.Release(wnd.m_hWnd, at + CPoint(1, 0));
        EXPECT_EQ(Ledger(), editor.TakeLedger());
    };
    for (const bool bList : {true, false}) {
        const CWnd& wnd = bList ? static_cast<const CWnd&>(*list) : *tree;
        const CPoint at = bList ? EmptyPoint() : ItemPoint(pBox);
        desktop.DragIn({{"text/plain", "text"}});
        tryDrop(wnd, at);
        DragIn(""); // an empty file is no archive
        tryDrop(wnd, at);
    }
    EXPECT_EQ("a b c", Members(pBox));
    editor.Veto(&IAEStateHandler::OnAtomSelecting, "bag"); // nor is what may not be selected dragged
    editor.pSelected = tree.get();
    Drag(*tree, ItemPoint(pBag), [] {});
    EXPECT_EQ(0, std::ranges::count(editor.TakeLedger(), "drags bag"));
    desktop.Release(tree->m_hWnd, ItemPoint(pBag));

    // Views made without an editor take nothing ever.
    list.reset();
    tree.reset();
    editor.Uninstall();
    MakeViews();
    editor.Install();
    DragIn("x\n");
    tryDrop(*list, EmptyPoint());
    editor.Uninstall();
    list.reset();
    tree.reset();
}

TEST_F(DragTest, TheTransferFileIsReadOnceUnlessItChangesAndLetGoOfHoweverTheDragEnds)
{
    const auto over = [&](bool bList, int i) {
        desktop.MoveTo(bList ? list->m_hWnd : tree->m_hWnd, (bList ? EmptyPoint() : ItemPoint(pBox)) + CPoint(i, 0));
        return desktop.DragEffect();
    };
    for (const bool bList : {true, false}) {
        archives.nStreams = 0;
        DragIn("x\n");
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(i ? DROPEFFECT_MOVE : DROPEFFECT_NONE, over(bList, i));
        EXPECT_EQ(1, archives.nStreams);
        const auto written = std::filesystem::last_write_time(m_folder.At("atoms"));
        m_folder.Write("atoms", "a\n");                                  // which is there already
        std::filesystem::last_write_time(m_folder.At("atoms"), written); // which hides nothing
        EXPECT_EQ(DROPEFFECT_NONE, over(bList, 5));
        std::filesystem::remove(m_folder.At("atoms"));
        EXPECT_EQ(DROPEFFECT_NONE, over(bList, 6));
        EXPECT_EQ(0, FakeArchive::CountLive());

        DragIn("y\n");
        for (int i = 0; i < 3; ++i)
            over(bList, i);
        EXPECT_EQ(1, FakeArchive::CountLive()); // the stream: each movement's archive has gone with it
        desktop.DragOut();
        EXPECT_EQ(0, FakeArchive::CountLive());
    }
    DragIn("x\n");
    over(false, 0);
    over(false, 1);
    tree->DestroyWindow();
    EXPECT_EQ(0, FakeArchive::CountLive());
    desktop.DragOut();
}

TEST_F(DragTest, TheMenuIsTheEditorsAndStandsAtTheCursor)
{
    editor.hMain = field.m_hWnd;
    for (const CWnd* pWnd : std::initializer_list<const CWnd*>{list.get(), tree.get()}) {
        ::SetFocus(pWnd->m_hWnd);
        for (const char* pszMenu : {"", "&Open"}) { // the editor has none at first
            editor.menu = pszMenu;
            desktop.Choose("Open");
            desktop.Click(pWnd->m_hWnd, {200, 200}, toolkit::MouseButton::Right);
            desktop.Key(VK_APPS); // at the cursor, too
            EXPECT_EQ(*pszMenu ? Ledger({"[Open]", "[Open]"}) : Ledger(), desktop.TakeMenus());
        }
        EXPECT_EQ(desktop.CursorPos(), desktop.LastMenuPlace());
    }
}

TEST_F(DragTest, TheFieldOfANewNameMovesWithItsRowAndOnlyTheListNeedsAnEditor)
{
    desktop.Click(list->m_hWnd, RowPoint(1));
    ASSERT_TRUE(list->OnAtomRename(nullptr, nullptr));
    const AtomRef pRemoved = pBox->Remove(pBox->Named("a"));
    list->OnDeleteAtom(pRemoved.Get(), pBox);
    desktop.Type("x");
    desktop.Key(VK_RETURN);
    EXPECT_EQ("[(*c) x]", list->State());

    tree->SelectItem(tree->GetItem(pBag));
    list->SetRootAtom(pBox); // it has followed the tree
    desktop.Click(list->m_hWnd, RowPoint(1));
    world->permissions = APF_RENAME;
    editor.Uninstall();
    EXPECT_FALSE(list->OnAtomRename(nullptr, nullptr));
    EXPECT_TRUE(tree->OnAtomRename(nullptr, nullptr));
    desktop.Key(VK_ESCAPE);
    editor.Install();
    list.reset();
    tree.reset();
    MakeViews(true);
    tree->SelectItem(tree->GetItem(pBag));
    EXPECT_FALSE(tree->OnAtomRename(nullptr, nullptr));
}

// What list and tree promise alike: each by itself, with the box's members in it.
class EachViewTest : public DragTest, public testing::WithParamInterface<const char*>
{
protected:
    EachViewTest()
    {
        if (IsList())
            tree.reset();
        else
            list.reset();
        if (tree)
            tree->Expand(tree->GetItem(pBox), TVE_EXPAND);
        Click("a");
        editor.active = CStubRef<IAtom>::Share(pBox); // which would be saved
    }
    bool IsList() const { return GetParam() == std::string("list"); }
    CWnd& View() const { return IsList() ? static_cast<CWnd&>(*list) : *tree; }
    IAEStateHandler& Handler() const { return IsList() ? static_cast<IAEStateHandler&>(*list) : *tree; }
    CPoint PointOf(const char* pszName) const
    {
        FakeAtom* const pAtom = pBox->Named(pszName);
        const auto nRow = std::ranges::find(pBox->members, pAtom, &AtomRef::Get) - pBox->members.begin();
        return IsList() ? RowPoint(static_cast<int>(nRow)) : ItemPoint(pAtom);
    }
    void Click(const char* pszName)
    {
        desktop.Click(View().m_hWnd, PointOf(pszName));
        editor.TakeLedger();
    }
    void SelectElsewhere(const char* pszName) const // as the editor tells of it
    {
        const auto operation = IsList() ? &IAEStateHandler::OnAtomSelected : &IAEStateHandler::OnAtomEntered;
        (Handler().*operation)(pBox->Named(pszName), pBox);
    }
    std::string Selected() const // "-" for none
    {
        const int nRow = IsList() ? list->GetNextItem(-1, LVNI_SELECTED) : -1;
        CStubRef<IAtom> pAtom;
        if (tree)
            tree->GetSelectedAtom(pAtom.Receive(), IID_IAtom);
        return NameOf(nRow < 0 ? pAtom.Get() : list->Pair(nRow)->pAtom);
    }
    std::string Line(const char* pszSays) const { return GetParam() + std::string(" ") + pszSays; }
};

INSTANTIATE_TEST_SUITE_P(Views, EachViewTest, testing::Values("list", "tree"),
                         [](const auto& suite) { return std::string(suite.param); });

TEST_P(EachViewTest, TheSelectionIsAnnouncedWithTheFocusButNotInABlockAndNotWhenItCameFromElsewhere)
{
    const Ledger announced{"nobody asks PreSaveAtom(world in -)", Line("asks OnAtomSelecting(a in box)"),
                           Line("tells OnAtomSelected(a in box)")};
    field.SetFocus();
    View().SetFocus();
    EXPECT_EQ(announced, editor.TakeLedger());
    field.SetFocus();
    {
        const FocusBlock block;
        View().SetFocus();
        EXPECT_TRUE(HasFocus(View()));
        EXPECT_EQ(Ledger(), editor.TakeLedger());
    }
    field.SetFocus();
    editor.onNotify = [&](AEStateOperation, IAtom*) {
        editor.onNotify = nullptr;
        field.SetFocus();
    };
    View().SetFocus();
    EXPECT_TRUE(HasFocus(field)) << "where whoever was asked has moved it";
    editor.TakeLedger();
    SelectElsewhere("b");
    View().SetFocus();
    EXPECT_EQ(0, std::ranges::count(editor.TakeLedger(), announced[1]));
}

TEST_P(EachViewTest, AnAtomThatGoesWhileItsRenamingIsAskedForIsNotRenamed)
{
    Click("b");
    editor.onNotify = [&](AEStateOperation, IAtom*) {
        editor.onNotify = nullptr;
        const AtomRef pRemoved = pBox->Remove(pBox->Named("b"));
        Handler().OnDeleteAtom(pRemoved.Get(), pBox);
    };
    EXPECT_FALSE(Handler().OnAtomRename(nullptr, nullptr)); // nor is the one that stands in its place now
    EXPECT_EQ("c", Selected());
}

TEST_P(EachViewTest, ANewNameGoesToTheContainerAndComesBackAsANewAtom)
{
    Click("b");
    ASSERT_TRUE(Handler().OnAtomRename(nullptr, nullptr)); // the request of the editor, as its key makes it
    EXPECT_EQ(Ledger({"box permits b", Line("asks PreRenameAtom(b in box)")}), editor.TakeLedger());
    desktop.Type("x");
    desktop.Key(VK_RETURN);
    const Ledger told = editor.TakeLedger();
    for (const char* pszLine :
         {"box renames b to x", "nobody tells OnCreateAtom(x in box)", "nobody tells OnDeleteAtom(b in box)"})
        EXPECT_EQ(1, std::ranges::count(told, pszLine)) << pszLine;
    EXPECT_EQ("a c x", Members(pBox));

    const std::string selected = Selected();
    ASSERT_TRUE(Handler().OnAtomRename(nullptr, nullptr));
    pBox->Named(selected)->name += "!";
    desktop.Key(VK_RETURN); // the field left as it is undoes nothing
    EXPECT_NE(nullptr, pBox->Named(selected + "!"));
}

} // namespace
