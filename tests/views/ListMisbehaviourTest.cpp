// Hosts that do the unexpected from within a call.
#include "tests/support/AllocationFailures.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

#include <algorithm>

namespace
{

using Handler = IAEStateHandler;

class ListMisbehaviourTest : public ListTest
{
protected:
    ListMisbehaviourTest() { editor.active = CStubRef<IAtom>::Share(box); }

    // The next time that the operation is asked or told.
    void Do(AEStateOperation operation, std::function<void()> deed)
    {
        editor.onNotify = [this, operation, deed](AEStateOperation told, IAtom*) {
            if (told == operation) {
                editor.onNotify = nullptr;
                deed();
            }
        };
    }
    std::ptrdiff_t CountHooks(const char* pszHook) const
    {
        return std::ranges::count_if(hooks, [&](const std::string& line) { return line.starts_with(pszHook); });
    }
    // Shows, and remembers, exactly what is in the container.
    void ExpectInStep(CListCtrl& list, const ProbeList& rows)
    {
        const int nRows = rows.GetItemCount();
        Hint(list, 0, nRows - 1);
        std::vector<std::string> shown, members;
        for (int i = 0; i < nRows; ++i) {
            ASSERT_NE(nullptr, rows.Pair(i));
            shown.push_back(NameOf(rows.Pair(i)->pAtom));
            EXPECT_EQ(0u, Shown(list, i).find(shown.back() + " "));
        }
        for (const AtomRef& p : nRows&& NameOf(rows.Pair(0)->pContainer) == "bag" ? bag->members : box->members)
            members.push_back(p->name);
        EXPECT_TRUE(std::ranges::is_permutation(members, shown)) << rows.State();
        EXPECT_EQ(nRows, CountHooks("cache") - CountHooks("uncache"));
    }

    FakeContainer* const box = MakeBox({"b", "c"});
    FakeContainer* const bag = MakeBox("bag", {"d"});
};

TEST_F(ListMisbehaviourTest, TheWindowMayGoWhileTheListAsksOrTellsAndIsSpokenToAfterwards)
{
    for (const AEStateOperation operation :
         {&Handler::PreSaveAtom, &Handler::OnAtomDeselecting, &Handler::OnAtomSelecting, &Handler::OnAtomDeselected,
          &Handler::OnAtomSelected}) {
        ProbeList& list = ShowList(box);
        list.OnAtomSelected(box->Named("b"), box);
        field.SetFocus();
        Do(operation, [&] { list.DestroyWindow(); });
        Click(list, 1);
        EXPECT_EQ(nullptr, list.m_hWnd);

        editor.TakeLedger();
        DWORD nPairs = 7;
        EXPECT_FALSE(list.OnGetActivePairs(nullptr, &nPairs));
        EXPECT_EQ(0u, nPairs);
        list.OnAtomSelected(nullptr, box);
        list.OnAtomDeselected(nullptr, box);
        list.OnCreateAtom(box->Named("b"), box);
        list.OnDeleteAtom(nullptr, box);
        EXPECT_TRUE(list.SetRootAtom(box));
        EXPECT_FALSE(list.OnAtomRename(nullptr, nullptr));
        EXPECT_EQ(Ledger(), editor.TakeLedger());
        EXPECT_EQ(1, box->CountReferences() - 1); // the editor's
    }
}

TEST_F(ListMisbehaviourTest, TheWindowThatHadTheFocusMayGoAndTheFocusMayMoveOnWhileASaveIsOffered)
{
    ProbeList& list = ShowList(box);
    list.OnAtomSelected(box->Named("b"), box);
    auto pOther = std::make_unique<CWnd>();
    pOther->CreateEx(0, "", "", WS_CHILD | WS_VISIBLE, CRect(0, 380, 10, 390), &frame, 2);
    pOther->SetFocus();
    editor.Veto(&Handler::PreSaveAtom);
    Do(&Handler::PreSaveAtom, [&] { pOther.reset(); });
    list.SetFocus();
    EXPECT_TRUE(HasFocus(list)); // there is nobody to give it back to
    editor.Allow();

    field.SetFocus();
    editor.TakeLedger();
    Do(&Handler::PreSaveAtom, [&] { field.SetFocus(); });
    list.SetFocus();
    EXPECT_TRUE(HasFocus(field));
    const Ledger save{"nobody asks PreSaveAtom(world in -)"};
    EXPECT_EQ(save, editor.TakeLedger());
    list.OnAtomSelected(box->Named("c"), box); // it does not have the focus: everyone knows of this
    editor.TakeLedger();
    list.SetFocus();
    EXPECT_EQ(save, editor.TakeLedger());
}

// While the members are loaded, rows read for drawing, or a row looked for. Whatever is done then, a row shows its own
// atom's name and picture, and every picture is given back once.
TEST_F(ListMisbehaviourTest, RowsMayChangeWhileAnAtomIsAskedForItsNameOrItsPicture)
{
    const auto remove = [&](ProbeList& list, FakeAtom* pAtom) {
        const AtomRef pRemoved = box->Remove(pAtom);
        list.OnDeleteAtom(pAtom, box);
    };
    int nDeeds = 0;
    for (int nWork = 0; nWork < 4; ++nWork) {
        for (int nDeed = 0; nDeed < 7; ++nDeed) {
            for (int nth = 1;; ++nth) {
                box->members.clear();
                auto* const pRestless = new RestlessAtom("a");
                const AtomRef pHeld = AtomRef::Share(pRestless);
                for (FakeAtom* p : {box->Add(pRestless), box->Add("b"), box->Add("c")})
                    p->hasIcon = true;
                ProbeList& list = HideList(box);
                if (nWork > 1)
                    Hint(list, 0, 2);
                pRestless->Do(nth, [&] {
                    if (nDeed == 0)
                        remove(list, pRestless);
                    else if (nDeed == 1)
                        remove(list, box->Named("c"));
                    else if (nDeed == 2)
                        list.OnCreateAtom(box->Add("late"), box);
                    else if (nDeed < 5)
                        list.SetRootAtom(nDeed == 3 ? box : bag);
                    else if (nDeed == 5)
                        Hint(list, 0, 9);
                    else
                        list.DestroyWindow();
                });
                if (nWork == 0)
                    list.SetRootAtom(box);
                else if (nWork == 1)
                    Hint(list, 0, 9);
                else if (nWork == 2)
                    remove(list, box->Named("b"));
                else
                    list.OnChangeAtom(pRestless, box);
                const bool bDone = !pRestless->deed;
                pRestless->deed = nullptr;
                nDeeds += bDone;
                SCOPED_TRACE(std::to_string(nWork) + " " + std::to_string(nDeed) + " " + std::to_string(nth));
                if (list.m_hWnd)
                    ExpectInStep(list, list);
                EXPECT_EQ(nDeed == 4 && bDone, list.Names() == "d");
                list.DestroyWindow();
                EXPECT_EQ(CountHooks("cache"), CountHooks("uncache"));
                if (!bDone)
                    break;
            }
        }
    }
    EXPECT_LE(35, nDeeds);
}

TEST_F(ListMisbehaviourTest, AViewWhoseWindowGoesWhileItJoinsTheEditorOrForWantOfMemoryIsNotRegistered)
{
    resources.AddBitmap(1013, toolkit::Surface(CSize(32, 16), 0xFFFFFF00));
    resources.AddString(57357, "Libraries");
    resources.AddIcon(1007, toolkit::Surface(CSize(16, 16), 0xFF0000FF));
    resources.AddBitmap(1011, toolkit::Surface(CSize(16, 16), 0xFFFFFF00));
    const auto check = [this](auto& view, int nJoin) {
        editor.onJoin = [&] {
            if (--nJoin == 0)
                view.DestroyWindow();
        };
        const bool bCreated = view.Create(&frame) != FALSE;
        if (bCreated)
            view.SetRootAtom(box);
        editor.onJoin = nullptr;
        EXPECT_EQ(nullptr, view.m_hWnd);
        EXPECT_EQ(0, editor.CountHandlers());
        FailEveryAllocation([&] { view.Create(&frame); }, // and nothing is thrown
                            [&] {
                                view.DestroyWindow();
                                EXPECT_EQ(0, editor.CountHandlers());
                            });
    };
    for (const int nJoin : {1, 2}) {
        CThumbList thumbs;
        ProbeList list(hooks, FALSE);
        ProbeTree tree(FALSE);
        check(thumbs, nJoin);
        check(list, nJoin);
        check(tree, nJoin);
    }
    EXPECT_LT(0, std::ranges::count(editor.TakeLedger(), "pane 0 \"Libraries\"")); // the icon fails for itself
    desktop.TakeMessageBoxes();
}

} // namespace
