// Windows from their creation to their end, what reaches them, and popup menus.
#include "Toolkit/base/Exception.h"
#include "Toolkit/controls/list/ListCtrl.h"
#include "Toolkit/controls/tree/TreeCtrl.h"
#include "Toolkit/menu/Menu.h"
#include "Toolkit/run/Run.h"
#include "tests/support/AllocationFailures.h"
#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

#include <memory>

namespace
{

const std::set<UINT> kLife = {WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW, WM_DESTROY, WM_NCDESTROY};

class WindowTest : public DesktopTest, public LedgerBook
{};

TEST_F(WindowTest, IsToldOfItsLifeInTheNativeOrder)
{
    SpyWnd frame("frame", *this, kLife);
    ASSERT_TRUE(frame.Show(nullptr, {10, 20, 110, 70}));
    EXPECT_EQ(Ledger({"frame NCCREATE", "frame CREATE", "frame SIZE 100,50", "frame MOVE 10,20", "frame SHOWWINDOW 1"}),
              TakeLedger());

    SpyWnd a("a", *this, kLife), b("b", *this, kLife);
    a.Show(&frame, {0, 0, 40, 40});
    b.Show(&a, {0, 0, 20, 20});
    TakeLedger();
    EXPECT_TRUE(a.ShowWindow(SW_SHOW)); // shown already: no news
    EXPECT_TRUE(a.ShowWindow(SW_HIDE));
    EXPECT_FALSE(a.ShowWindow(SW_HIDE));
    EXPECT_FALSE(b.IsWindowVisible());
    EXPECT_EQ(Ledger({"a SHOWWINDOW 0"}), TakeLedger());

    b.gone = [&] { Write("b is gone"); };
    frame.DestroyWindow();
    EXPECT_EQ(Ledger({"frame DESTROY", "a DESTROY", "b DESTROY", "b NCDESTROY", "b is gone", "a NCDESTROY",
                      "frame NCDESTROY"}),
              TakeLedger());
    EXPECT_EQ(nullptr, a.m_hWnd);
}

TEST_F(WindowTest, ARefusedCreationLeavesNoWindow)
{
    SpyWnd early("early", *this, kLife), late("late", *this, kLife);
    early.Answer(WM_NCCREATE, FALSE);
    late.Answer(WM_CREATE, -1);
    late.At(WM_CREATE, [&] { CreateWindowEx(0, "", "", WS_CHILD, 0, 0, 9, 9, late.m_hWnd, 1, nullptr); });
    late.gone = [&] { Write("late is gone"); };

    EXPECT_FALSE(early.Show(nullptr, {0, 0, 10, 10}));
    EXPECT_FALSE(late.Show(nullptr, {0, 0, 10, 10}));
    EXPECT_EQ(Ledger({"early NCCREATE", "early NCDESTROY", "late NCCREATE", "late CREATE", "late DESTROY",
                      "late NCDESTROY", "late is gone"}),
              TakeLedger());
    EXPECT_EQ(nullptr, late.m_hWnd);
    EXPECT_EQ(nullptr, CreateWindowEx(0, "no such class", "", 0, 0, 0, 9, 9, nullptr, 1, nullptr));
}

TEST_F(WindowTest, AStaleHandleIsRefusedAlsoWhenItsPlaceIsTakenAgain)
{
    SpyWnd frame("frame", *this, {});
    frame.Show(nullptr, {0, 0, 100, 100});
    const HWND hStale = frame.m_hWnd;
    frame.DestroyWindow();
    SpyWnd other("other", *this, {WM_APP, WM_USER});
    other.Show(nullptr, {0, 0, 100, 100});

    EXPECT_EQ(nullptr, CWnd::FromHandle(hStale));
    EXPECT_FALSE(PostMessage(hStale, WM_APP, 0, 0));
    EXPECT_EQ(0, SendMessage(hStale, WM_USER, 0, 0));
    EXPECT_EQ(0u, SetTimer(hStale, 1, 10));
    EXPECT_EQ(nullptr, CreateWindowEx(0, "", "", WS_CHILD, 0, 0, 9, 9, hStale, 1, nullptr));
    desktop.Run();
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(WindowTest, HandlersMayDestroyAnyWindowAtAnyMoment)
{
    SpyWnd frame("frame", *this, {});
    frame.Show(nullptr, {0, 0, 100, 100});
    for (const UINT message : {WM_CREATE, WM_SIZE, WM_SHOWWINDOW, WM_SETFOCUS, WM_KILLFOCUS, WM_PAINT, WM_ERASEBKGND,
                               WM_NCPAINT, WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_TIMER, WM_DESTROY, WM_NCDESTROY}) {
        SpyWnd parent("parent", *this, {});
        auto pChild = std::make_unique<SpyWnd>("child", *this, std::set<UINT>());
        parent.Show(&frame, {0, 0, 50, 50});
        pChild->At(message, [&] { parent.DestroyWindow(); });
        pChild->gone = [&] { pChild.reset(); }; // the object goes with its window
        pChild->Show(&parent, {0, 0, 20, 20}, WS_BORDER);
        if (pChild && pChild->m_hWnd) {
            const HWND hChild = pChild->m_hWnd;
            SetTimer(hChild, 1, 10);
            SetFocus(hChild);
            desktop.Click(hChild, {5, 5});
            SetFocus(frame.m_hWnd);
            desktop.Advance(10);
            DestroyWindow(hChild);
        }
        EXPECT_EQ(nullptr, pChild) << message;
        EXPECT_EQ(nullptr, parent.m_hWnd) << message;
    }
}

TEST_F(WindowTest, AnExceptionInAHandlerIsReportedOnceAndEndsThere)
{
    SpyWnd frame("frame", *this, {});
    frame.Show(nullptr, {0, 0, 100, 100});
    AfxSetMainWnd(&frame);
    frame.At(WM_USER, [&] {
        try {
            SendMessage(frame.m_hWnd, WM_APP, 0, 0);
            Write("after the inner message");
            FailAllocation failure(1);
            ::operator delete(::operator new(1)); // which no compiler may leave out
        } catch (CMemoryException& exception) {
            exception.ReportError();
            exception.ReportError();
            throw;
        }
    });
    frame.At(WM_APP, [] { AfxThrowMemoryException(); });

    EXPECT_EQ(0, frame.SendMessage(WM_USER));
    EXPECT_EQ(std::vector<std::string>({": Out of memory.", ": Out of memory."}), desktop.TakeMessageBoxes());
    EXPECT_EQ(Ledger({"after the inner message"}), TakeLedger());

    frame.At(WM_PAINT, [] { AfxThrowMemoryException(); });
    frame.Invalidate();
    desktop.Run(); // once, and silently, as when a window is created
    SpyWnd child("child", *this, {});
    child.At(WM_CREATE, [] { AfxThrowMemoryException(); });
    EXPECT_FALSE(child.Show(&frame, {0, 0, 10, 10}));
    EXPECT_EQ(std::vector<std::string>(), desktop.TakeMessageBoxes());
}

TEST_F(WindowTest, AnObjectWithoutAWindowAnswersThatThereIsNone)
{
    UINT nFlags = 0;
    EXPECT_EQ(-1, CListCtrl().GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(-1, CListCtrl().HitTest({1, 1}, &nFlags));
    EXPECT_EQ(nullptr, CTreeCtrl().HitTest({1, 1}, &nFlags));
    EXPECT_EQ(nullptr, CTreeCtrl().SetFocus());
}

TEST_F(WindowTest, RunningOutOfMemoryLeavesNoHalfWindow)
{
    CWnd frame;
    frame.CreateEx(0, "", "", WS_VISIBLE, CRect(0, 0, 60, 60), nullptr, 0);
    desktop.Run();
    const int nFailures = FailEveryAllocation([&] {
        CWnd child;
        try {
            child.CreateEx(0, "", "child", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(5, 5, 40, 40), &frame, 1);
            child.SetFocus();
            child.PostMessage(WM_USER);
            child.SetTimer(1, 10);
            SetScrollInfo(child.m_hWnd, SB_VERT, {0, 99, 10, 0, 0});
            desktop.Click(child.m_hWnd, {3, 3});
            child.UpdateWindow();
            ScrollWindow(child.m_hWnd, 0, 3);
        } catch (const CMemoryException&) {
        }
        child.DestroyWindow();
    });
    EXPECT_LT(10, nFailures);
    EXPECT_EQ(1, toolkit::CountWindows().windows);
    EXPECT_EQ(frame.m_hWnd, GetFocus());
    desktop.TakeMessageBoxes();
}

// Sees notifications of its own, and keeps them or not; another of its kind is its parent.
class NotedWnd : public CWnd
{
public:
    NotedWnd(std::string name, LedgerBook& book) : m_name(std::move(name)), m_book(book) {}
    BOOL bKeeps = FALSE;

protected:
    void Note(const char* pszWhat) { m_book.Write(m_name + " sees the " + pszWhat); }
    void OnOwnClick(NMHDR*, LRESULT* pResult) { Note("click"), *pResult = 7; }
    BOOL OnOwnReturn(NMHDR*, LRESULT*) { return Note("key"), bKeeps; }
    void OnNews(NMHDR*, LRESULT* pResult) { Note("news"), *pResult = 9; }
    DECLARE_MESSAGE_MAP()

private:
    const std::string m_name;
    LedgerBook& m_book;
};

BEGIN_MESSAGE_MAP(NotedWnd, CWnd)
    ON_NOTIFY_REFLECT(NM_CLICK, OnOwnClick)
    ON_NOTIFY_REFLECT_EX(NM_RETURN, OnOwnReturn)
    ON_NOTIFY(NM_CLICK, 5, OnNews)
    ON_NOTIFY(NM_RETURN, 5, OnNews)
END_MESSAGE_MAP()

TEST_F(WindowTest, ANotificationReachesTheControlsOwnClassFirst)
{
    NotedWnd parent("parent", *this), bell("bell", *this);
    parent.CreateEx(0, "", "", WS_VISIBLE, CRect(0, 0, 100, 100), nullptr, 0);
    bell.CreateEx(0, "", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 5);
    const auto notify = [&](UINT code) {
        NMHDR header{bell.m_hWnd, 5, code};
        return parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header));
    };
    EXPECT_EQ(7, notify(NM_CLICK));
    EXPECT_EQ(9, notify(NM_RETURN));
    bell.bKeeps = TRUE;
    EXPECT_EQ(0, notify(NM_RETURN));
    EXPECT_EQ(0, notify(NM_SETFOCUS)); // nobody's
    EXPECT_EQ(Ledger({"bell sees the click", "bell sees the key", "parent sees the news", "bell sees the key"}),
              TakeLedger());
}

// Its commands, as the map would see them.
class OwnerWnd : public SpyWnd
{
public:
    using SpyWnd::SpyWnd;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM) override
    {
        m_book.Write("command " + std::to_string(wParam));
        return TRUE;
    }
};

class MenuTest : public DesktopTest, public LedgerBook
{
protected:
    Ledger Track(std::string_view choice, UINT flags = 0)
    {
        desktop.Choose(std::string(choice));
        Write("result " + std::to_string(menu.TrackPopupMenu(flags, 30, 40, &owner)));
        desktop.Run();
        return TakeLedger();
    }

    OwnerWnd owner{"owner", *this, {}};
    CMenu menu;
};

TEST_F(MenuTest, TheChosenCommandIsPostedToTheOwnerOrReturned)
{
    owner.Show(nullptr, {0, 0, 100, 100});
    CMenu below;
    EXPECT_FALSE(below.AppendMenu(MF_STRING, 1, "nothing to append to"));
    below.CreatePopupMenu();
    below.AppendMenu(MF_STRING, 104, "&Folder");
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, &owner));
    menu.CreatePopupMenu();
    EXPECT_FALSE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 101, "&Open\tEnter");
    menu.AppendMenu(MF_STRING | MF_CHECKED, 102, "Salt && Pepper");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING | MF_GRAYED, 103, "Paste");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), "New");
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(menu.GetSafeHmenu()), "itself"));
    EXPECT_FALSE(menu.AppendMenu(MF_POPUP, 12345, "no menu"));

    EXPECT_EQ(Ledger({"result 1", "command 104"}), Track("Folder"));
    EXPECT_EQ(std::vector<std::string>({"[Open | *Salt & Pepper | - | (Paste) | New > [Folder]]"}),
              desktop.TakeMenus());
    EXPECT_EQ(CPoint(30, 40), desktop.LastMenuPlace());
    EXPECT_EQ(Ledger({"result 1"}), Track("Paste")); // cannot be chosen
    EXPECT_EQ(Ledger({"result 101"}), Track("Open", TPM_RETURNCMD));
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, nullptr));
}

} // namespace
