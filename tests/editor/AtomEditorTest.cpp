#include "Editor/services/AtomEditor.h"

#include "Toolkit/window/Wnd.h"
#include "tests/editor/LibraryFixture.h"
#include "tests/editor/StateSpy.h"

namespace
{

class Frame final : public editor::PaneFrame
{
public:
    explicit Frame(HWND hWnd) : m_hWnd(hWnd) {}

    void AddPane(DWORD, HWND, LPCSTR, HICON) override {}
    void RemovePane(DWORD, HWND) override {}
    HWND GetMainWindow() const override { return m_hWnd; }
    CMenu* CreateContextMenu() override { return nullptr; }
    void OnMoving() override {}
    void OnMoved(const std::string&) override {}
    void OnCopied(const editor::ActiveMembers&) override {}

private:
    const HWND m_hWnd;
};

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
    std::string ActivePairs(const char* pszRefused = "")
    {
        std::pair<std::string, std::string> context({}, pszRefused); // with the names so far
        const BOOL bResult = editor.EnumActivePairs(
            [](IAtom* pAtom, IAtomContainer*, void* p) -> BOOL {
                auto& [names, refused] = *static_cast<decltype(context)*>(p);
                names += Name(pAtom) + ' ';
                return Name(pAtom) != refused;
            },
            &context);
        return context.first + (bResult ? "yes" : "no");
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
    EXPECT_EQ("none", ActiveAtom());
    Tell(nullptr, &IAEStateHandler::OnAtomEntered, Library());
    EXPECT_EQ("library", ActiveAtom());
    Tell(&one, &IAEStateHandler::OnAtomSelected, pA.Get());
    EXPECT_EQ("a.bmp", ActiveAtom());
    Tell(&one, &IAEStateHandler::OnAtomSelected, pB.Get());
    Tell(&one, &IAEStateHandler::OnAtomDeselected, pA.Get());
    EXPECT_EQ("b.bmp", ActiveAtom());
    Tell(&one, &IAEStateHandler::OnAtomSelecting, pA.Get());
    EXPECT_EQ("b.bmp", ActiveAtom()) << "only asked";
    Tell(nullptr, &IAEStateHandler::OnDeleteAtom, pB.Get());
    EXPECT_EQ("library", ActiveAtom());
    Tell(&one, &IAEStateHandler::OnAtomSelected, pA.Get());
    Tell(&one, &IAEStateHandler::OnAtomDeselected, nullptr);
    EXPECT_EQ("library", ActiveAtom());
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
    EXPECT_EQ("b.bmp no", ActivePairs("b.bmp")) << "stops at a refusal";
    view.SetFocus();
    EXPECT_EQ("a.bmp yes", ActivePairs());
    book.TakeLedger();
    one.answer = FALSE;
    EXPECT_FALSE(Tell(nullptr, &IAEStateHandler::OnAtomRename, nullptr));
    EXPECT_EQ(Ledger({"one rename -"}), book.TakeLedger()) << "nobody renames in its place";

    Frame frame{view.GetSafeHwnd()};
    editor.SetFrame(&frame);
    EXPECT_EQ("b.bmp a.bmp yes", ActivePairs()) << "the frame is no view";
    editor.SetFrame(nullptr);
    SetFocus(nullptr);
    editor.UnregisterHandler(cookie);
    EXPECT_EQ("yes", ActivePairs());
}

} // namespace
