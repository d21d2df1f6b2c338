// What the list does with the editor's news of atoms.
#include "tests/views/ListTest.h"

namespace
{

class ListEventsTest : public ListTest
{
protected:
    void Select(ProbeList& list, int nRow) { list.SetItemState(nRow, LVIS_SELECTED, LVIS_SELECTED); }

    // The host adds and removes, and tells everyone.
    FakeAtom* Create(FakeContainer* pBox, const std::string& strName)
    {
        FakeAtom* const pNew = pBox->Add(strName);
        editor.NotifyHandlers(nullptr, &IAEStateHandler::OnCreateAtom, pNew, pBox, 0);
        return pNew;
    }
    void Delete(FakeContainer* pBox, const std::string& strName)
    {
        const AtomRef pRemoved = pBox->Remove(pBox->Named(strName));
        editor.NotifyHandlers(nullptr, &IAEStateHandler::OnDeleteAtom, pRemoved.Get(), pBox, 0);
    }
    // "b in box, - in -": the pairs as the list gives them to so many slots.
    static std::string ActivePairs(ProbeList& list, DWORD nSlots);
};

std::string ListEventsTest::ActivePairs(ProbeList& list, DWORD nSlots)
{
    std::vector<OBJPAIR> pairs(nSlots);
    DWORD nCount = nSlots;
    if (!list.OnGetActivePairs(pairs.data(), &nCount))
        return "needs " + std::to_string(nCount);
    std::string strPairs;
    for (const OBJPAIR& pair : pairs) {
        strPairs += (strPairs.empty() ? "" : ", ") + NameOf(pair.pAtom) + " in " + NameOf(pair.pContainer);
        CStubRef<IAtom>::Adopt(pair.pAtom).Release();
        CStubRef<IAtomContainer>::Adopt(pair.pContainer).Release();
    }
    return strPairs;
}

TEST_F(ListEventsTest, ANewAtomComesLastAloneSelectedAndFocused)
{
    FakeContainer* const pBox = MakeBox({"a", "c", "d"});
    ProbeList& list = ShowList(pBox);
    Click(list, 0);
    Select(list, 2);
    Create(pBox, "b");
    EXPECT_EQ("[a c d (*b)]", list.State());
    Create(world.Get(), "elsewhere");
    list.OnCreateAtom(nullptr, pBox);
    EXPECT_EQ("[a c d (*b)]", list.State());
    list.SetRootAtom(pBox);
    EXPECT_EQ("[a b c d]", list.State());
}

TEST_F(ListEventsTest, ARowThatRefusesToBeDeselectedStaysSelectedBesideTheNewOne)
{
    FakeContainer* const pBox = MakeBox({"a", "b"});
    ProbeList& list = ShowList(pBox);
    Select(list, 0);
    Select(list, 1);
    editor.Veto(&IAEStateHandler::OnAtomDeselecting, "a");
    Create(pBox, "c");
    EXPECT_EQ("[*a b (*c)]", list.State());
}

TEST_F(ListEventsTest, ADeletedAtomsPlaceIsSelected)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c", "d"});
    ProbeList& list = ShowList(pBox);
    Click(list, 0);
    Delete(pBox, "b");
    EXPECT_EQ("[a (*c) d]", list.State());
    Delete(pBox, "d");
    EXPECT_EQ("[a (*c)]", list.State());
    list.OnDeleteAtom(pBox->Named("a"), world.Get());
    const auto pStranger = AtomRef::Adopt(new FakeAtom("stranger"));
    list.OnDeleteAtom(pStranger.Get(), pBox);
    EXPECT_EQ("[a (*c)]", list.State());
    Delete(pBox, "a");
    Delete(pBox, "c");
    EXPECT_EQ("[]", list.State());
    EXPECT_FALSE(list.OnAtomRename(nullptr, nullptr)); // no row has the focus
}

TEST_F(ListEventsTest, OfAtomsWithTheSameNameTheFirstRowIsMeant)
{
    FakeContainer* const pBox = MakeBox({"twin", "a", "TWIN", "z"});
    ProbeList& list = ShowList(pBox);
    list.OnAtomSelected(pBox->Named("TWIN"), pBox);
    EXPECT_EQ("[a *twin TWIN z]", list.State());
    Delete(pBox, "TWIN");
    EXPECT_EQ("[a (*TWIN) z]", list.State()); // the row of twin went
    EXPECT_EQ(1, pBox->Named("twin")->CountReferences());
}

TEST_F(ListEventsTest, AnAtomIsFoundWhereverItsNameHasLedIt)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c", "d", "e", "f", "g"});
    ProbeList& list = ShowList(pBox);
    const auto rename = [&](const char* pszFrom, const char* pszTo, bool bTold) {
        FakeAtom* const pAtom = pBox->Named(pszFrom);
        pAtom->name = pszTo;
        if (bTold)
            list.OnChangeAtom(pAtom, pBox);
    };
    const auto selected = [&](const char* pszName) {
        list.OnAtomSelected(pBox->Named(pszName), pBox);
        const std::string strState = list.State();
        list.OnAtomDeselected(pBox->Named(pszName), pBox);
        return strState;
    };
    rename("b", "y", true);
    EXPECT_EQ("[a *y c d e f g]", selected("y"));
    EXPECT_EQ("[a y c d e f *g]", selected("g"));
    rename("a", "G", true);
    EXPECT_EQ("[*G y c d e f g]", selected("g")); // the first of the name
    Create(pBox, "b2");
    EXPECT_EQ("[G y c d e f g (*b2)]", selected("b2"));
    list.SetRootAtom(pBox);
    rename("g", "0", false);
    EXPECT_EQ("[b2 c d e f G *0 y]", selected("0"));
}

TEST_F(ListEventsTest, ANameChangedWhileTheListWasTellingIsMinded)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c", "d", "e"});
    ProbeList& list = ShowList(pBox);
    editor.onNotify = [&](AEStateOperation, IAtom*) {
        FakeAtom* const pAtom = std::exchange(editor.onNotify, nullptr) ? pBox->Named("a") : nullptr;
        pAtom->name = "D";
        list.OnChangeAtom(pAtom, pBox);
    };
    Select(list, 2);
    list.OnAtomSelected(pBox->Named("d"), pBox);
    EXPECT_EQ("[*D b *c d e]", list.State()); // the first of the name
}

TEST_F(ListEventsTest, ARenameIsANewAtomAndTheOldOnesEnd)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c"});
    ProbeList& list = ShowList(pBox);
    const AtomRef pOld = pBox->Remove(pBox->Named("a"));
    FakeAtom* const pNew = pBox->Add("x");
    list.OnCreateAtom(pNew, pBox);
    list.OnDeleteAtom(pOld.Get(), pBox);
    EXPECT_EQ("[(*b) c x]", list.State());

    const AtomRef pLast = pBox->Remove(pNew);
    list.OnCreateAtom(pBox->Add("y"), pBox);
    list.OnDeleteAtom(pLast.Get(), pBox);
    EXPECT_EQ("[b c (*y)]", list.State());
}

TEST_F(ListEventsTest, RowsAfterADeletedOneKeepWhatIsRememberedOfThem)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c", "d"});
    ProbeList& list = ShowList(pBox);
    list.ShowWindow(SW_HIDE);
    Hint(list, 0, 3);
    TakeHooks();
    Delete(pBox, "b");
    EXPECT_EQ(Ledger({"uncache 1 b in box \"b\""}), TakeHooks());
    EXPECT_EQ("a 0, c 0, d 0, ",
              Shown(list, 0) + ", " + Shown(list, 1) + ", " + Shown(list, 2) + ", " + Shown(list, 3));
    Hint(list, 0, 2);
    EXPECT_EQ(Ledger(), TakeHooks());
}

TEST_F(ListEventsTest, AChangedAtomIsReadAgainWhenItIsDrawn)
{
    FakeContainer* const pBox = MakeBox({"a", "b"});
    ProbeList& list = ShowList(pBox);
    desktop.Dump(list.m_hWnd);
    TakeHooks();
    pBox->Named("b")->name = "b, changed";
    const auto pTwin = AtomRef::Adopt(new FakeAtom("a"));
    list.OnChangeAtom(pTwin.Get(), pBox); // not the row's own atom
    list.OnChangeAtom(nullptr, pBox);
    EXPECT_EQ(Ledger(), TakeHooks());
    list.OnChangeAtom(pBox->Named("b, changed"), nullptr);
    desktop.Dump(list.m_hWnd);
    EXPECT_EQ(Ledger({"uncache 1 b, changed in box \"b\"", "cache 1 b, changed in box \"b, changed\""}), TakeHooks());
}

TEST_F(ListEventsTest, AContainerThatChangedAsAWholeIsLoadedAgainAndItsSelectionTakenBack)
{
    FakeContainer* const pBox = MakeBox({"a", "c"});
    ProbeList& list = ShowList(pBox);
    Select(list, 1);
    editor.TakeLedger();
    pBox->Add("b");
    list.OnDeleteAtom(nullptr, world.Get());
    EXPECT_EQ("[a *c]", list.State());
    list.OnDeleteAtom(nullptr, pBox);
    EXPECT_EQ("[a b c]", list.State());
    EXPECT_EQ(Ledger({"list tells OnAtomDeselected(- in box)"}), editor.TakeLedger());

    world->Remove(pBox); // the view's references alone keep the box now
    list.OnDeleteAtom(nullptr, pBox);
    EXPECT_EQ("[a b c]", list.State());
}

TEST_F(ListEventsTest, ASelectionMadeElsewhereIsMirroredButTheFocusStays)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c"});
    ProbeList& list = ShowList(pBox);
    Click(list, 0);
    list.OnAtomSelected(pBox->Named("c"), pBox);
    EXPECT_EQ("[(*a) b *c]", list.State());
    list.OnAtomDeselected(pBox->Named("a"), pBox);
    EXPECT_EQ("[a b *c]", list.State());
    list.OnAtomSelected(pBox->Named("a"), world.Get());
    list.OnAtomSelected(nullptr, nullptr);
    EXPECT_EQ("[a b *c]", list.State());
    list.OnAtomSelected(nullptr, world.Get()); // all members, of whatever container
    EXPECT_EQ("[*a *b *c]", list.State());
    list.OnAtomDeselected(nullptr, pBox);
    EXPECT_EQ("[a b c]", list.State());
}

TEST_F(ListEventsTest, AMirroredRowIsScrolledIntoView)
{
    FakeContainer* const pBox = MakeBox({});
    for (int i = 0; i < 300; ++i)
        pBox->Add(std::to_string(100 + i));
    ProbeList& list = ShowList(pBox);
    list.OnAtomSelected(pBox->Named("399"), pBox);
    CRect client, rect;
    list.GetClientRect(&client);
    list.GetItemRect(299, &rect, LVIR_BOUNDS);
    EXPECT_EQ(rect, rect & client);
}

TEST_F(ListEventsTest, TheActivePairsAreTheSelectedRowsInOrder)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c"});
    ProbeList& list = ShowList(pBox);
    EXPECT_FALSE(list.OnGetActivePairs(nullptr, nullptr));
    Select(list, 2);
    Select(list, 0);
    DWORD nCount = 0;
    EXPECT_FALSE(list.OnGetActivePairs(nullptr, &nCount));
    EXPECT_EQ(2u, nCount);
    EXPECT_EQ("needs 2", ActivePairs(list, 1));
    EXPECT_EQ("a in box, c in box", ActivePairs(list, 2));
    list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED); // counted, but not active
    EXPECT_EQ("needs 3", ActivePairs(list, 2));
    EXPECT_EQ("a in box, c in box, - in -, - in -", ActivePairs(list, 4));

    FakeAtom* const pFormer = pBox->Named("b");
    OBJPAIR slots[3]{
        {CStubRef<IAtom>::Share(pFormer).Detach(), CStubRef<IAtomContainer>::Share(pBox).Detach()}, {}, {}};
    nCount = 3;
    EXPECT_TRUE(list.OnGetActivePairs(slots, &nCount)); // what the slot held is given back
    EXPECT_EQ(2, pFormer->CountReferences());
    EXPECT_EQ(3u, nCount);
    for (const OBJPAIR& pair : slots) {
        CStubRef<IAtom>::Adopt(pair.pAtom).Release();
        CStubRef<IAtomContainer>::Adopt(pair.pContainer).Release();
    }
}

TEST_F(ListEventsTest, WhatAListIsToldWhileItIsTellingItIgnores)
{
    FakeContainer* const pBox = MakeBox({"a", "b"});
    ProbeList& list = ShowList(pBox);
    std::string strSeen;
    editor.onNotify = [&](AEStateOperation operation, IAtom* pAtom) {
        if (operation != &IAEStateHandler::OnAtomSelected)
            return;
        editor.onNotify = nullptr;
        list.OnCreateAtom(pAtom, pBox);
        list.OnDeleteAtom(pAtom, pBox);
        list.OnAtomDeselected(pAtom, pBox);
        list.OnAtomEntered(world.Get(), nullptr);
        strSeen = list.State() + (list.OnAtomRename(nullptr, nullptr) ? " renames" : "") + " " + ActivePairs(list, 1);
    };
    Click(list, 1);
    EXPECT_EQ("[a (*b)] b in box", strSeen);
    EXPECT_EQ("[a (*b)]", list.State());
}

} // namespace
