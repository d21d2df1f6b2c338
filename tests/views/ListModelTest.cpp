// The list as a window, its rows and what it remembers of them.
#include "tests/support/AllocationFailures.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

#include <algorithm>

namespace
{

using ListModelTest = ListTest;

TEST_F(ListModelTest, ACreatedListIsARegisteredHiddenChildThatIsAnEmptyComponent)
{
    ProbeList list(hooks, FALSE);
    editor.handlerNames[&list] = "list";
    EXPECT_TRUE(list.SetRootAtom(world.Get())); // no window: nothing happens
    ASSERT_TRUE(list.Create(&frame));
    EXPECT_EQ(0x46001208u, list.GetStyle());
    EXPECT_EQ(0x200u, GetWindowExStyle(list.m_hWnd));
    EXPECT_EQ(0xE900u, list.GetDlgCtrlID());
    EXPECT_EQ(Ledger({"list registers"}), editor.TakeLedger());
    EXPECT_FALSE(list.SetRootAtom(nullptr));

    void* p = &list;
    IAEStateHandler* const pHandler = &list;
    pHandler->GetInterface(IID_IAEStateHandler, &p);
    EXPECT_EQ(pHandler, p);
    pHandler->GetInterface(STUB_BASE_INTERFACE_ID, &p);
    EXPECT_EQ(static_cast<CStubBaseInterface*>(pHandler), p);
    pHandler->GetInterface(IID_IAtom, &p);
    EXPECT_EQ(nullptr, p);
    for (int i = 0; i < 5; ++i)
        pHandler->Release(); // a view is not counted

    list.DestroyWindow();
    EXPECT_EQ(Ledger({"list unregisters"}), editor.TakeLedger());
    EXPECT_EQ(Ledger({"clear"}), TakeHooks());
}

TEST_F(ListModelTest, APassiveListShowsRowsAndTellsNobody)
{
    ProbeList& list = ShowList(MakeBox({"a", "b"}), true);
    EXPECT_EQ(0, editor.CountHandlers());
    editor.active = CStubRef<IAtom>::Share(world->members[0].Get());
    Hint(list, 0, 1);
    EXPECT_EQ("a 0", Shown(list, 0));
    editor.Veto(&IAEStateHandler::OnAtomSelecting); // is not asked
    Click(list, 1);
    EXPECT_EQ("[a (*b)]", list.State());
    list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    desktop.DoubleClick(list.m_hWnd, PointOf(list, 1));
    list.OnDeleteAtom(nullptr, static_cast<FakeContainer*>(world->members[0].Get()));
    EXPECT_EQ("[a b]", list.State());
    list.OnAtomEntered(nullptr, nullptr);
    EXPECT_EQ(Ledger(), editor.TakeLedger());
}

TEST_F(ListModelTest, WithoutAnEditorAListWorksAndItsPaneComesWithTheNextContainer)
{
    FakeContainer* const pBox = MakeBox({"a"});
    editor.Uninstall();
    ProbeList& list = MakeList();
    list.SetRootAtom(pBox);
    EXPECT_EQ("[a]", list.State());
    Click(list, 0);
    desktop.DoubleClick(list.m_hWnd, PointOf(list, 0)); // would open it
    EXPECT_EQ("[(*a)]", list.State());
    EXPECT_EQ(Ledger(), editor.TakeLedger());
    editor.Install();
    list.SetRootAtom(pBox);
    EXPECT_EQ(Ledger({"pane 1 \"Icons\" with icon"}), editor.TakeLedger());
    editor.Uninstall(); // it never registered
    list.DestroyWindow();
}

TEST_F(ListModelTest, RowsAreReadWhenTheyAreAboutToBeDrawnAndOnlyThen)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c"});
    pBox->nMissing = 2; // which are rows without anything
    pBox->Named("b")->displayName = "B shown";
    ProbeList& list = HideList(pBox);
    EXPECT_EQ("[a b c - -]", list.State());
    EXPECT_EQ("", Shown(list, 1));

    Hint(list, 1, 4);
    EXPECT_EQ(", B shown 0, c 0, , ", Shown(list, 0, 4));
    for (const int nRow : {-1, 4, 5})
        EXPECT_EQ(nullptr, list.Pair(nRow));
    EXPECT_EQ(Ledger({"cache 1 b in box \"B shown\"", "cache 2 c in box \"c\""}), TakeHooks());
    const int nReads = pBox->Named("c")->nNameReads;
    Hint(list, 2, 1);
    Hint(list, 1, 2);
    EXPECT_EQ(Ledger(), TakeHooks());
    EXPECT_EQ(nReads, pBox->Named("c")->nNameReads);

    list.ShowWindow(SW_SHOW);
    desktop.Dump(list.m_hWnd); // the control hints what it draws
    EXPECT_EQ(Ledger({"cache 0 a in box \"a\""}), TakeHooks());
    list.OnAtomSelected(pBox->Named("b"), pBox); // finding its row passes the empty ones by
    EXPECT_EQ("[a *b c - -]", list.State());
    list.OnAtomEntered(nullptr, nullptr);
    EXPECT_EQ(
        Ledger({"uncache 0 a in box \"a\"", "uncache 2 c in box \"c\"", "uncache 1 b in box \"B shown\"", "clear"}),
        TakeHooks());
}

TEST_F(ListModelTest, PastAThousandRowsEachNewOneTakesThePlaceOfTheOneHintedLongestAgo)
{
    FakeContainer* const pBox = MakeBox({});
    for (int i = 0; i < 1100; ++i)
        pBox->Add(std::to_string(10000 + i));
    ProbeList& list = HideList(pBox);
    desktop.SetTicks(0xFFFFFFF0);
    Hint(list, 0, 499);
    desktop.SetTicks(0xFFFFFFF5);
    Hint(list, 500, 1023);
    Hint(list, 0, 99);
    desktop.SetTicks(10); // the counter has wrapped
    EXPECT_EQ(1024u, TakeHooks().size());
    Hint(list, 1024, 1024);
    EXPECT_EQ(Ledger({"cache 1024 11024 in box \"11024\""}), TakeHooks());

    // Rows 100 to 499 are the oldest; the map's first bucket with one of them is that of rows 272 to 287.
    Hint(list, 1025, 1026);
    EXPECT_EQ(Ledger({"cache 1025 11025 in box \"11025\"", "uncache 287 10287 in box \"10287\"",
                      "cache 1026 11026 in box \"11026\"", "uncache 286 10286 in box \"10286\""}),
              TakeHooks());
    EXPECT_EQ("", Shown(list, 287));
    EXPECT_EQ("11026 0", Shown(list, 1026));

    // A row that goes has the others move up in the order of the walk, each put before the last one.
    const AtomRef pRemoved = pBox->Remove(pBox->members.front().Get());
    list.OnDeleteAtom(pRemoved.Get(), pBox);
    TakeHooks();
    Hint(list, 1026, 1028);
    EXPECT_EQ(Ledger({"cache 1026 11027 in box \"11027\"", "cache 1027 11028 in box \"11028\"",
                      "uncache 287 10288 in box \"10288\"", "cache 1028 11029 in box \"11029\"",
                      "uncache 272 10273 in box \"10273\""}),
              TakeHooks());
}

TEST_F(ListModelTest, ANameThatCannotBeReadIsReportedAndTriedAgainAndWithoutMemoryForItThereIsNoText)
{
    FakeContainer* const pBox = MakeBox({"a", "b"});
    ProbeList& list = HideList(pBox);
    pBox->Named("b")->nameFails = true;
    for (int i = 0; i < 2; ++i) {
        Hint(list, 0, 1);
        EXPECT_EQ(Ledger({"error \"Unreadable\" of b"}), editor.TakeLedger());
    }
    EXPECT_EQ("a 0, ", Shown(list, 0, 1));
    pBox->Named("b")->displayName = "B";
    pBox->Named("b")->displayNameFails = true;
    Hint(list, 0, 1);
    EXPECT_EQ(Ledger({"error \"Unreadable\" of b"}), editor.TakeLedger());

    pBox->Named("a")->name = "a name that is long enough to need memory of its own";
    list.OnChangeAtom(pBox->members[0].Get(), nullptr);
    hooks.reserve(8);
    {
        const FailAllocation failure(1);
        Hint(list, 0, 0);
    }
    EXPECT_EQ(" 0", Shown(list, 0)); // without text
    EXPECT_EQ(Ledger({": Out of memory."}), desktop.TakeMessageBoxes());
}

TEST_F(ListModelTest, IconsFollowTheDefaultPictureAndAtomsWithoutOneShareIt)
{
    FakeContainer* const pBox = MakeBox({"a", "b", "c", "d", "e"});
    Ledger icons;
    for (const AtomRef& pMember : pBox->members) {
        pMember->pLedger = &icons;
        pMember->hasIcon = pMember->name != "e";
    }
    pBox->Named("c")->iconFails = pBox->Named("d")->iconNeedsTooMuch = true;
    ProbeList& list = HideList(pBox);
    Hint(list, 0, 4);
    EXPECT_EQ("a 1, b 2, c 0, d 0, e 0", Shown(list, 0, 4));
    EXPECT_EQ(Ledger({"icon a at -1", "icon b at -1", "icon c at -1", "icon d at -1"}), icons);
    list.OnChangeAtom(pBox->Named("c"), nullptr); // the default picture is never free
    list.OnChangeAtom(pBox->Named("b"), nullptr);
    Hint(list, 1, 1);
    EXPECT_EQ("icon b at 2", icons.back());

    list.DestroyWindow();
    resources.Leave(); // without the host's bitmap rows have no picture
    ASSERT_TRUE(list.Create(&frame));
    list.SetRootAtom(pBox);
    EXPECT_EQ(0, list.SendMessage(LVM_GETIMAGELIST, LVSIL_NORMAL));
    Hint(list, 0, 0);
    EXPECT_EQ("a 0", Shown(list, 0));
    resources.Join();
}

TEST_F(ListModelTest, RowsMayChangeWhileAnAtomIsAskedForItsNameOrItsPicture)
{
    FakeContainer* const pBag = MakeBox("bag", {"d"});
    const auto cached = [&] {
        const auto count = [&](const char* pszHook) {
            return std::ranges::count_if(hooks, [=](const std::string& line) { return line.starts_with(pszHook); });
        };
        return count("cache") - count("uncache");
    };
    const std::function<void(ProbeList&)> deeds[] = {[&](ProbeList& list) { list.SetRootAtom(pBag); },
                                                     [&](ProbeList& list) { Hint(list, 0, 1); }};
    for (const auto& deed : deeds) {
        for (const int nth : {1, 2}) { // the name, the picture
            FakeContainer* const pBox = MakeBox({"a", "b"});
            FakeAtom* const a = pBox->Named("a");
            a->hasIcon = true;
            ProbeList& list = HideList(pBox);
            a->onAsked = [&, n = nth]() mutable {
                if (--n == 0)
                    deed(list);
            };
            Hint(list, 0, 1);
            Hint(list, 0, 1);
            EXPECT_EQ(list.GetItemCount(), cached());
            EXPECT_TRUE(Shown(list, 0).starts_with(NameOf(list.Pair(0)->pAtom)));
            list.DestroyWindow();
            EXPECT_EQ(0, cached());
            a->onAsked = nullptr;
        }
    }
}

TEST_F(ListModelTest, WhereverMemoryRunsOutTheRowsStayInStep)
{
    FakeContainer* const pBox = MakeBox({"b", "a", "c", "d"});
    ProbeList& list = MakeList();
    const auto check = [&] {
        EXPECT_TRUE(list.State() == "[a b c d]" || list.State() == "[]") << list.State();
        EXPECT_LE(desktop.TakeMessageBoxes().size(), 1u);
    };
    FailEveryAllocation([&] { list.SetRootAtom(pBox); }, check);
}

TEST_F(ListModelTest, AViewWhoseWindowGoesWhileItJoinsTheEditorOrForWantOfMemoryIsNotRegistered)
{
    resources.AddBitmap(1013, toolkit::Surface(CSize(32, 16), 0xFFFFFF00));
    resources.AddString(57357, "Libraries");
    resources.AddIcon(1007, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1011, toolkit::Surface(CSize(16, 16), 0xFFFFFF00));
    FakeContainer* const pBox = MakeBox({"a"});
    const auto check = [&](auto&& view, int nJoin) {
        editor.onJoin = [&] {
            if (--nJoin == 0)
                view.DestroyWindow();
        };
        if (view.Create(&frame))
            view.SetRootAtom(pBox);
        editor.onJoin = nullptr;
        EXPECT_EQ(nullptr, view.m_hWnd);
        EXPECT_EQ(0, editor.CountHandlers());
        FailEveryAllocation([&] { view.Create(&frame) && view.SetRootAtom(pBox); }, // and nothing is thrown
                            [&] {
                                view.DestroyWindow();
                                EXPECT_EQ(0, editor.CountHandlers());
                            });
    };
    for (const int nJoin : {1, 2}) {
        check(CThumbList(), nJoin);
        check(ProbeList(hooks, FALSE), nJoin);
        check(ProbeTree(FALSE), nJoin);
    }
    const Ledger told = editor.TakeLedger();
    for (const char* pszPane : {"pane 0 \"Libraries\"", "pane 1 \"Icons\""}) // the icon fails for itself
        EXPECT_NE(0, std::ranges::count(told, pszPane));
    desktop.TakeMessageBoxes();
}

} // namespace
