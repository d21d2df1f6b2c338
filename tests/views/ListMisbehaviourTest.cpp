// Hosts that do the unexpected from within a call.
#include "tests/support/AllocationFailures.h"
#include "tests/views/ListTest.h"
#include "tests/views/TreeTest.h"

#include <algorithm>
#include <set>

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
    std::ptrdiff_t CountCached() const
    {
        const auto starts = [](const char* pszHook) { return [=](auto& line) { return line.starts_with(pszHook); }; };
        return std::ranges::count_if(hooks, starts("cache")) - std::ranges::count_if(hooks, starts("uncache"));
    }
    // Its rows are the members of what it shows, each with its own name.
    void ExpectInStep(ProbeList& list)
    {
        std::multiset<std::string> shown, members;
        Hint(list, 0, list.GetItemCount() - 1);
        for (int i = 0; i < list.GetItemCount(); ++i)
            EXPECT_TRUE(Shown(list, i).starts_with(*shown.insert(NameOf(list.Pair(i)->pAtom)) + " "));
        for (const AtomRef& p : shown.contains("d") ? bag->members : box->members)
            members.insert(p->name);
        EXPECT_EQ(members, shown);
        EXPECT_EQ(list.GetItemCount(), CountCached());
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

// While members are loaded, rows are read for drawing, one is looked for, or its order is doubted. Whatever is done
// then, rows show their own atoms' names, and every picture is given back once.
TEST_F(ListMisbehaviourTest, RowsMayChangeWhileAnAtomIsAskedForItsNameOrItsPicture)
{
    const auto remove = [this](ProbeList& list, FakeAtom* pAtom) {
        const AtomRef pRemoved = box->Remove(pAtom);
        list.OnDeleteAtom(pAtom, box);
    };
    using Deed = std::function<void(ProbeList&, FakeAtom*)>;
    const Deed load = [this](ProbeList& list, FakeAtom*) { list.SetRootAtom(box); };
    const Deed hint = [this](ProbeList& list, FakeAtom*) { Hint(list, 0, 9); };
    const Deed works[] = {load, hint, [&](ProbeList& list, FakeAtom*) { remove(list, box->Named("b")); },
                          [&](ProbeList& list, FakeAtom* pAtom) { list.OnChangeAtom(pAtom, box); }};
    const Deed deeds[] = {[&](ProbeList& list, FakeAtom*) { list.SetRootAtom(bag); },
                          load,
                          hint,
                          remove,
                          [&](ProbeList& list, FakeAtom*) { remove(list, box->Named("c")); },
                          [&](ProbeList& list, FakeAtom*) { list.OnCreateAtom(box->Add("late"), box); },
                          [](ProbeList& list, FakeAtom*) { list.DestroyWindow(); }};
    int nDone = 0;
    for (const Deed& work : works) {
        for (const Deed& deed : deeds) {
            for (int nth = 1, nFormer = nDone - 1; nDone > nFormer; ++nth) {
                nFormer = nDone;
                box->members.clear();
                const auto pRestless = CStubRef<RestlessAtom>::Share(new RestlessAtom("a"));
                for (FakeAtom* p : {box->Add(pRestless.Get()), box->Add("b"), box->Add("c")})
                    p->hasIcon = true;
                ProbeList& list = HideList(box);
                if (&work > &works[1])
                    Hint(list, 0, 2);
                pRestless->Do(nth, [&] { deed(list, pRestless.Get()); });
                work(list, pRestless.Get());
                nDone += !std::exchange(pRestless->deed, nullptr);
                if (list.m_hWnd)
                    ExpectInStep(list);
                EXPECT_EQ(&deed == deeds && nDone > nFormer, list.Names() == "d");
                list.DestroyWindow();
                EXPECT_EQ(0, CountCached()) << &work - works << " " << &deed - deeds << " " << nth;
            }
        }
    }
    EXPECT_LE(35, nDone);
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
        FailEveryAllocation([&] { view.Create(&frame) && view.SetRootAtom(box); }, // and nothing is thrown
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
    const Ledger told = editor.TakeLedger();
    for (const char* pszPane : {"pane 0 \"Libraries\"", "pane 1 \"Icons\""}) // the icon fails for itself
        EXPECT_NE(0, std::ranges::count(told, pszPane));
    desktop.TakeMessageBoxes();
}

} // namespace
