// What the list does with the editor's news of atoms.
#include "tests/views/ListTest.h"

namespace
{

class ListEventsTest : public ListTest
{
protected:
    void Select(int nRow) { list.SetItemState(nRow, LVIS_SELECTED, LVIS_SELECTED); }

    // The host adds and removes, and tells everyone.
    void Create(FakeContainer* pIn, const std::string& strName)
    {
        editor.NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pIn->Add(strName), pIn, 0);
    }
    void Delete(const std::string& strName)
    {
        const AtomRef pRemoved = box->Remove(box->Named(strName));
        editor.NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, pRemoved.Get(), box, 0);
    }
    void Rename(const char* pszFrom, const char* pszTo)
    {
        FakeAtom* const pAtom = box->Named(pszFrom);
        pAtom->name = pszTo;
        list.OnChangeAtom(pAtom, box);
    }
    // The list while the editor has selected that atom.
    std::string WithSelected(const char* pszName)
    {
        list.OnAtomSelected(box->Named(pszName), box);
        const std::string strState = list.State();
        list.OnAtomDeselected(box->Named(pszName), box);
        return strState;
    }
    // "b in box, - in -": the pairs as the list gives them to so many slots.
    std::string ActivePairs(DWORD nSlots)
    {
        std::vector<OBJPAIR> pairs(nSlots);
        if (!list.OnGetActivePairs(pairs.data(), &nSlots))
            return "needs " + std::to_string(nSlots);
        std::string strPairs;
        for (const OBJPAIR& pair : pairs) {
            const auto pAtom = CStubRef<IAtom>::Adopt(pair.pAtom);
            const auto pContainer = CStubRef<IAtomContainer>::Adopt(pair.pContainer);
            strPairs += (strPairs.empty() ? "" : ", ") + NameOf(pair.pAtom) + " in " + NameOf(pair.pContainer);
        }
        return strPairs;
    }

    FakeContainer* const box = MakeBox({"a", "b", "c", "d"});
    ProbeList& list = ShowList(box);
};

TEST_F(ListEventsTest, ANewAtomComesLastAloneSelectedAndFocused)
{
    Click(list, 0);
    Select(2);
    Create(box, "0");
    EXPECT_EQ("[a b c d (*0)]", list.State());
    Create(world.Get(), "elsewhere");
    list.OnCreateAtom(nullptr, box);
    EXPECT_EQ("[a b c d (*0)]", list.State());
    list.SetRootAtom(box);
    EXPECT_EQ("[0 a b c d]", list.State());

    Select(0);
    Select(1);
    editor.Veto(&IAEStateHandler::OnAtomDeselecting, "0"); // which stays beside the new one
    Create(box, "e");
    EXPECT_EQ("[*0 a b c d (*e)]", list.State());
}

TEST_F(ListEventsTest, ADeletedAtomsPlaceIsSelected)
{
    Click(list, 0);
    Delete("b");
    EXPECT_EQ("[a (*c) d]", list.State());
    Delete("d");
    EXPECT_EQ("[a (*c)]", list.State());
    list.OnDeleteAtom(box->Named("a"), world.Get());
    const auto pStranger = AtomRef::Adopt(new FakeAtom("stranger"));
    list.OnDeleteAtom(pStranger.Get(), box);
    EXPECT_EQ("[a (*c)]", list.State());
    Delete("a");
    Delete("c");
    EXPECT_EQ("[]", list.State());
    EXPECT_FALSE(list.OnAtomRename(nullptr, nullptr)); // no row has the focus
}

TEST_F(ListEventsTest, AnAtomIsFoundWhereverItsNameHasLedIt)
{
    for (const char* pszName : {"e", "f", "g"})
        box->Add(pszName);
    list.SetRootAtom(box);
    Rename("b", "y");
    EXPECT_EQ("[a *y c d e f g]", WithSelected("y"));
    EXPECT_EQ("[a y c d e f *g]", WithSelected("g"));
    Rename("a", "G");
    EXPECT_EQ("[*G y c d e f g]", WithSelected("g")); // the first of the name
    Create(box, "b2");
    EXPECT_EQ("[G y c d e f g (*b2)]", WithSelected("b2"));
    list.SetRootAtom(box);
    box->Named("g")->name = "0"; // and nobody is told
    EXPECT_EQ("[b2 c d e f G *0 y]", WithSelected("0"));
}

TEST_F(ListEventsTest, AmongManyNewAtomsTheRightOneIsFoundThoughTheyMoveAndChange)
{
    for (int i = 10; i < 90; ++i)
        Create(box, "New " + std::to_string(i)); // row 4 is New 10
    Create(box, "NEW 50");
    const auto rowOf = [&](const char* pszName) {
        list.SetItemState(-1, 0, LVIS_SELECTED);
        list.OnAtomSelected(box->Named(pszName), box);
        return list.GetNextItem(-1, LVNI_SELECTED);
    };
    EXPECT_EQ(73, rowOf("New 79"));
    EXPECT_EQ(44, rowOf("NEW 50")); // the first of the name
    Delete("New 60");
    EXPECT_EQ(72, rowOf("New 79"));
    Rename("New 50", "New 79");
    EXPECT_EQ(83, rowOf("NEW 50"));
    EXPECT_EQ(44, rowOf("New 79"));
    box->Named("New 70")->name = "unheard of"; // and nobody is told
    EXPECT_EQ(63, rowOf("unheard of"));
    Create(box, "link");
    box->Named("link")->isLink = true;
    EXPECT_EQ(84, rowOf("link"));
    EXPECT_EQ(82, rowOf("New 89"));
}

TEST_F(ListEventsTest, ANameChangedWhileTheListWasTellingIsMinded)
{
    editor.onNotify = [&](AEStateOperation, IAtom*) {
        editor.onNotify = nullptr;
        Rename("a", "D");
    };
    Select(2);
    EXPECT_EQ("[*D b *c d]", WithSelected("d")); // the first of the name
}

TEST_F(ListEventsTest, ARenameIsANewAtomAndTheOldOnesEnd)
{
    for (const char* pszFrom : {"a", "x"}) {
        const AtomRef pOld = box->Remove(box->Named(pszFrom));
        list.OnCreateAtom(box->Add(*pszFrom == 'a' ? "x" : "y"), box);
        list.OnDeleteAtom(pOld.Get(), box);
        EXPECT_EQ(*pszFrom == 'a' ? "[(*b) c d x]" : "[b c d (*y)]", list.State());
    }
}

TEST_F(ListEventsTest, WhatIsRememberedOfRowsMovesWithThemUntilTheirAtomsChange)
{
    list.ShowWindow(SW_HIDE);
    Hint(list, 0, 3);
    TakeHooks();
    Delete("b");
    EXPECT_EQ(Ledger({"uncache 1 b in box \"b\""}), TakeHooks());
    EXPECT_EQ("a 0, c 0, d 0, ", Shown(list, 0, 3));
    Hint(list, 0, 2);
    EXPECT_EQ(Ledger(), TakeHooks());

    box->Named("c")->name = "c, changed";
    const auto pTwin = AtomRef::Adopt(new FakeAtom("a"));
    list.OnChangeAtom(pTwin.Get(), box); // not the row's own atom
    list.OnChangeAtom(nullptr, box);
    EXPECT_EQ(Ledger(), TakeHooks());
    list.ShowWindow(SW_SHOW);
    desktop.Dump(list.m_hWnd);
    list.OnChangeAtom(box->Named("c, changed"), nullptr);
    desktop.Dump(list.m_hWnd); // it is read when it is drawn
    EXPECT_EQ(Ledger({"uncache 1 c, changed in box \"c\"", "cache 1 c, changed in box \"c, changed\""}), TakeHooks());
}

TEST_F(ListEventsTest, AContainerThatChangedAsAWholeIsLoadedAgainAndItsSelectionTakenBack)
{
    Select(1);
    editor.TakeLedger();
    box->Add("a2");
    list.OnDeleteAtom(nullptr, world.Get());
    EXPECT_EQ("[a *b c d]", list.State());
    list.OnDeleteAtom(nullptr, box);
    EXPECT_EQ("[a a2 b c d]", list.State());
    EXPECT_EQ(Ledger({"list tells OnAtomDeselected(- in box)"}), editor.TakeLedger());

    world->Remove(box); // the view's references alone keep the box now
    list.OnDeleteAtom(nullptr, box);
    EXPECT_EQ("[a a2 b c d]", list.State());
}

TEST_F(ListEventsTest, ASelectionMadeElsewhereIsMirroredButTheFocusStays)
{
    Click(list, 0);
    list.OnAtomSelected(box->Named("c"), box);
    EXPECT_EQ("[(*a) b *c d]", list.State());
    list.OnAtomDeselected(box->Named("a"), box);
    list.OnAtomSelected(box->Named("a"), world.Get());
    list.OnAtomSelected(nullptr, nullptr);
    EXPECT_EQ("[a b *c d]", list.State());
    list.OnAtomSelected(nullptr, world.Get()); // all members, of whatever container
    EXPECT_EQ("[*a *b *c *d]", list.State());
    list.OnAtomDeselected(nullptr, box);
    EXPECT_EQ("[a b c d]", list.State());

    for (int i = 0; i < 300; ++i)
        box->Add(std::to_string(i));
    list.SetRootAtom(box);
    list.OnAtomSelected(box->Named("d"), box); // the last one is scrolled into view
    CRect client, rect;
    list.GetClientRect(&client);
    list.GetItemRect(303, &rect, LVIR_BOUNDS);
    EXPECT_EQ(rect, rect & client);
}

TEST_F(ListEventsTest, TheActivePairsAreTheSelectedRowsInOrder)
{
    EXPECT_FALSE(list.OnGetActivePairs(nullptr, nullptr));
    Select(2);
    Select(0);
    DWORD nCount = 0;
    EXPECT_FALSE(list.OnGetActivePairs(nullptr, &nCount));
    EXPECT_EQ(2u, nCount);
    EXPECT_EQ("needs 2", ActivePairs(1));
    EXPECT_EQ("a in box, c in box", ActivePairs(2));
    list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED); // counted, but not active
    EXPECT_EQ("needs 3", ActivePairs(2));
    EXPECT_EQ("a in box, c in box, - in -, - in -", ActivePairs(4));

    FakeAtom* const pFormer = box->Named("b"); // what the slot holds, and gives back
    OBJPAIR slots[3]{{CStubRef<IAtom>::Share(pFormer).Detach(), CStubRef<IAtomContainer>::Share(box).Detach()}};
    nCount = 3;
    EXPECT_TRUE(list.OnGetActivePairs(slots, &nCount));
    EXPECT_EQ(2, pFormer->CountReferences());
    EXPECT_EQ(3u, nCount);
    for (const OBJPAIR& pair : slots) {
        CStubRef<IAtom>::Adopt(pair.pAtom).Release();
        CStubRef<IAtomContainer>::Adopt(pair.pContainer).Release();
    }
}

TEST_F(ListEventsTest, WhatAListIsToldWhileItIsTellingItIgnores)
{
    std::string strSeen;
    editor.onNotify = [&](AEStateOperation operation, IAtom* pAtom) {
        if (operation != &IAEStateHandler::OnAtomSelected)
            return;
        editor.onNotify = nullptr;
        list.OnCreateAtom(pAtom, box);
        list.OnDeleteAtom(pAtom, box);
        list.OnAtomDeselected(pAtom, box);
        list.OnAtomEntered(world.Get(), nullptr);
        strSeen = list.State() + (list.OnAtomRename(nullptr, nullptr) ? " renames" : "") + " " + ActivePairs(1);
    };
    Click(list, 1);
    EXPECT_EQ("[a (*b) c d] b in box", strSeen);
    EXPECT_EQ("[a (*b) c d]", list.State());
}

} // namespace
