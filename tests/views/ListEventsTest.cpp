// What the list and the editor tell each other.
#include "tests/views/ListTest.h"

namespace
{

class ListEventsTest : public ListTest
{
protected:
    void Create(const std::string& strName) { list.OnCreateAtom(box->Add(strName), box); }
    void Delete(const std::string& strName)
    {
        const AtomRef pRemoved = box->Remove(box->Named(strName));
        list.OnDeleteAtom(pRemoved.Get(), box);
    }
    int RowOf(const std::string& strName) // where the editor's selection of that atom goes
    {
        list.SetItemState(-1, 0, LVIS_SELECTED);
        list.OnAtomSelected(box->Named(strName), box);
        return list.GetNextItem(-1, LVNI_SELECTED);
    }
    // "b in box, - in -": the pairs as the list gives them to so many slots, of which the first holds something.
    std::string ActivePairs(DWORD nSlots)
    {
        std::vector<OBJPAIR> pairs(nSlots);
        auto held = views::HeldPair::Share(box->Named("b"), box); // which is given back
        held.MoveTo(pairs[0]);
        const bool bGiven = list.OnGetActivePairs(pairs.data(), &nSlots) != FALSE;
        std::string strPairs = bGiven ? "" : "needs " + std::to_string(nSlots);
        for (const OBJPAIR& pair : pairs) {
            const auto pAtom = CStubRef<IAtom>::Adopt(pair.pAtom);
            const auto pContainer = CStubRef<IAtomContainer>::Adopt(pair.pContainer);
            if (!bGiven)
                continue;
            strPairs += (strPairs.empty() ? "" : ", ") + NameOf(pair.pAtom) + " in " + NameOf(pair.pContainer);
        }
        return strPairs;
    }

    FakeContainer* const box = MakeBox({"a", "b", "c", "d"});
    ProbeList& list = ShowList(box);
};

TEST_F(ListEventsTest, WhereTheHostWishesItNewAtomsComeToTheirPlaces)
{
    list.PlaceNewAtoms();
    box->permissions = APF_RENAME;
    const HWND hField = list.EditLabel(2);
    Create("bee");
    EXPECT_EQ("[a b (*bee) c d]", list.State());
    Create("Cat");
    Create("e");
    Create("0");
    desktop.Run();
    EXPECT_EQ("[(*0) a b bee c Cat d e]", list.State());
    EXPECT_EQ("0 0, a 0, b 0, bee 0, c 0, Cat 0, d 0, e 0", Shown(list, 0, 7)) << "and shows as what it is";
    SetWindowText(hField, "f");
    desktop.Key(VK_RETURN);
    EXPECT_EQ("[0 a b bee (*Cat) d e f]", list.State()) << "it was its atom's label that was being edited";
    Delete("bee");
    EXPECT_EQ(4, RowOf("d"));
}

TEST_F(ListEventsTest, WhereverItsNameHasLedItAnAtomIsFoundAndSeen)
{
    for (int i = 10; i < 90; ++i)
        Create("New " + std::to_string(i)); // row 4 is New 10
    Create("NEW 50");
    EXPECT_EQ(73, RowOf("New 79"));
    CRect rect;
    list.GetItemRect(73, &rect, LVIR_BOUNDS);
    EXPECT_EQ(rect, rect & ClientOf(list.m_hWnd));
    EXPECT_EQ(44, RowOf("NEW 50")); // the first of the name
    Delete("New 60");
    EXPECT_EQ(72, RowOf("New 79"));
    FakeAtom* const pRenamed = box->Named("New 50");
    pRenamed->name = "New 79";
    list.OnChangeAtom(pRenamed, box);
    EXPECT_EQ(83, RowOf("NEW 50"));
    EXPECT_EQ(44, RowOf("New 79"));
    box->Named("New 70")->name = "unheard of"; // and nobody is told
    EXPECT_EQ(63, RowOf("unheard of"));
    box->Named("c")->name = "0";
    EXPECT_EQ(2, RowOf("0"));
    Create("link");
    box->Named("link")->isLink = true;
    EXPECT_EQ(84, RowOf("link"));
    EXPECT_EQ(82, RowOf("New 89"));
}

TEST_F(ListEventsTest, TheActivePairsAreTheSelectedRowsInOrder)
{
    EXPECT_FALSE(list.OnGetActivePairs(nullptr, nullptr));
    for (const int nRow : {2, 0})
        list.SetItemState(nRow, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ("needs 2", ActivePairs(1));
    list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED); // counted, but not active
    EXPECT_EQ("needs 3", ActivePairs(2));
    EXPECT_EQ("a in box, c in box, - in -, - in -", ActivePairs(4));
}

TEST_F(ListEventsTest, WhatAListIsToldWhileItIsTellingItIgnoresButForNames)
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
        box->Named("a")->name = "D";
        list.OnChangeAtom(box->Named("D"), box);
        strSeen = list.State() + (list.OnAtomRename(nullptr, nullptr) ? " renames" : "") + " " + ActivePairs(1);
    };
    Click(list, 1);
    EXPECT_EQ("[D (*b) c d] b in box", strSeen);
    EXPECT_EQ("[D (*b) c d]", list.State());
    EXPECT_EQ(0, RowOf("d")); // the first of the name
}

// An icon list that writes down where the button goes up.
class PostingList : public CIconList
{
public:
    ~PostingList() override { DestroyWindow(); }
    std::vector<LPARAM> ups;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_LBUTTONUP)
            ups.push_back(lParam);
        return CIconList::WindowProc(message, wParam, lParam);
    }
};

TEST_F(ListEventsTest, LosingTheFocusOrGainingItInABlockReleasesTheButtonAtTheCursor)
{
    PostingList posting;
    Place(posting, CRect(100, 0, 390, 400), "posting");
    desktop.MoveTo(frame.m_hWnd, {90, 50}); // left of the list
    CPoint cursor = desktop.CursorPos();
    posting.ScreenToClient(&cursor);
    const std::vector<LPARAM> up{MAKELPARAM(cursor.x, cursor.y)};

    const auto upsAtFocus = [&](CWnd& wnd) {
        wnd.SetFocus();
        desktop.Run();
        return std::exchange(posting.ups, {});
    };
    EXPECT_TRUE(upsAtFocus(posting).empty());
    EXPECT_EQ(up, upsAtFocus(field));
    editor.active = CStubRef<IAtom>::Share(box); // which would be saved
    editor.TakeLedger();
    const FocusBlock block;
    EXPECT_EQ(up, upsAtFocus(posting));
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

} // namespace
