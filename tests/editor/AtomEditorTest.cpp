#include "Editor/services/AtomEditor.h"

#include "Toolkit/window/Wnd.h"
#include "tests/editor/LibraryFixture.h"
#include "tests/editor/StateSpy.h"

namespace
{

class AtomEditorTest : public LibraryTest
{
protected:
    AtomEditorTest()
    {
        folder.Make("a.bmp b.bmp");
        Open();
        pA = Find("a.bmp");
        pB = Find("b.bmp");
    }
    ~AtomEditorTest() override { EXPECT_EQ(0, editor.CountReferences()); }

    BOOL Tell(IAEStateHandler* pSender, AEStateOperation operation, IAtom* pAtom)
    {
        return editor.NotifyHandlers(pSender, operation, pAtom, Library(), 0);
    }
    std::string ActiveAtom()
    {
        CStubRef<IAtom> pActive;
        editor.GetActiveAtom(pActive.Receive(), IID_IAtom);
        return !pActive ? "none" : pActive.Get() == Library() ? "library" : Name(pActive.Get());
    }
    std::string ActivePairs()
    {
        std::string names;
        const auto note = [](IAtom* pAtom, IAtomContainer*, void* pNames) -> BOOL {
            return !(*static_cast<std::string*>(pNames) += Name(pAtom) + ' ').empty();
        };
        const BOOL bResult = editor.EnumActivePairs(note, &names);
        return names + (bResult ? "yes" : "no");
    }

    editor::CAtomEditor editor;
    LedgerBook book;
    StateSpy one{"one ", book}, two{"two ", book}, three{"three ", book};
    CStubRef<IAtom> pA, pB;
};

TEST_F(AtomEditorTest, EveryHandlerButTheSenderHearsAndAnyOneMayVeto)
{
    editor.RegisterHandler(nullptr, &one);
    editor.RegisterHandler(nullptr, &two);
    one.answer = FALSE;

    EXPECT_FALSE(Tell(nullptr, &IAEStateHandler::OnAtomSelecting, pA.Get()));
    EXPECT_EQ(Ledger({"one selecting a.bmp", "two selecting a.bmp"}), book.TakeLedger());
    EXPECT_TRUE(Tell(&one, &IAEStateHandler::OnAtomSelecting, pA.Get())) << "its own answer does not count";
    EXPECT_EQ(Ledger({"two selecting a.bmp"}), book.TakeLedger());
    EXPECT_TRUE(Tell(&two, &IAEStateHandler::OnAtomSelected, pA.Get())) << "told, not asked";
    EXPECT_EQ(Ledger({"one selected a.bmp"}), book.TakeLedger());
    EXPECT_TRUE(Tell(nullptr, &IAEStateHandler::OnAtomRename, nullptr)) << "the second one renames";
    two.answer = FALSE;
    EXPECT_FALSE(Tell(nullptr, &IAEStateHandler::OnAtomRename, nullptr));
}

TEST_F(AtomEditorTest, HandlersComeAndGoWhileTheyAreCalled)
{
    const DWORD cookie = editor.RegisterHandler(nullptr, &one);
    const DWORD second = editor.RegisterHandler(nullptr, &two);
    one.onHear = [&] {
        editor.UnregisterHandler(cookie);
        editor.UnregisterHandler(second);
        editor.RegisterHandler(nullptr, &three);
        Tell(nullptr, &IAEStateHandler::OnAtomEntered, pA.Get());
    };

    Tell(nullptr, &IAEStateHandler::OnAtomSelected, pA.Get());
    EXPECT_EQ(Ledger({"one selected a.bmp", "three entered a.bmp"}), book.TakeLedger());
    Tell(nullptr, &IAEStateHandler::OnAtomSelected, pA.Get());
    EXPECT_EQ(Ledger({"three selected a.bmp"}), book.TakeLedger());
    editor.UnregisterHandler(12345);
}

TEST_F(AtomEditorTest, TheActiveAtomFollowsTheNews)
{
    IAtom* const pNone = nullptr;
    const std::tuple<AEStateOperation, IAtom*, const char*> news[] = {
        {&IAEStateHandler::OnAtomEntered, Library(), "library"},
        {&IAEStateHandler::OnAtomSelected, pA.Get(), "a.bmp"},
        {&IAEStateHandler::OnAtomSelected, pB.Get(), "b.bmp"},
        {&IAEStateHandler::OnAtomDeselected, pA.Get(), "b.bmp"},
        {&IAEStateHandler::OnAtomSelecting, pA.Get(), "b.bmp"}, // only asked
        {&IAEStateHandler::OnDeleteAtom, pB.Get(), "library"},
        {&IAEStateHandler::OnAtomSelected, pA.Get(), "a.bmp"},
        {&IAEStateHandler::OnAtomDeselected, pNone, "library"},
    };
    EXPECT_EQ("none", ActiveAtom());
    for (const auto& [operation, pAtom, pszActive] : news) {
        Tell(&one, operation, pAtom);
        EXPECT_EQ(pszActive, ActiveAtom());
    }
}

TEST_F(AtomEditorTest, TheSelectionIsThatOfTheFocusedViewElseOfTheLastToAnnounceOne)
{
    CWnd view;
    view.CreateEx(0, "", "", WS_OVERLAPPED | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr, 0);
    EXPECT_EQ("yes", ActivePairs()) << "nobody to ask";
    editor.RegisterHandler(view.GetSafeHwnd(), &one);
    const DWORD cookie = editor.RegisterHandler(nullptr, &two);
    one.active = {pA.Get()};
    two.active = {pB.Get(), pA.Get()};

    SetFocus(nullptr);
    Tell(&two, &IAEStateHandler::OnAtomSelected, pB.Get());
    EXPECT_EQ("b.bmp a.bmp yes", ActivePairs());
    view.SetFocus();
    EXPECT_EQ("a.bmp yes", ActivePairs());
    book.TakeLedger();
    one.answer = FALSE;
    EXPECT_FALSE(Tell(nullptr, &IAEStateHandler::OnAtomRename, nullptr));
    EXPECT_EQ(Ledger({"one rename -"}), book.TakeLedger()) << "nobody renames in its place";
    SetFocus(nullptr);
    editor.UnregisterHandler(cookie);
    EXPECT_EQ("yes", ActivePairs());
}

} // namespace
