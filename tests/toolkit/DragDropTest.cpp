#include "Toolkit/base/Exception.h"
#include "Toolkit/exchange/DataSource.h"
#include "Toolkit/exchange/DropTarget.h"
#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

#include <cstring>

namespace
{

const CLIPFORMAT kAtoms = RegisterClipboardFormat("application/x-atoms");

std::string Name(DROPEFFECT effect)
{
    const char* names[] = {"none", "copy", "move", "copy|move"};
    return effect < 4 ? names[effect] : "?";
}

std::string TakeBytes(HGLOBAL hMem)
{
    const std::string bytes(static_cast<char*>(GlobalLock(hMem)), GlobalSize(hMem));
    GlobalUnlock(hMem);
    GlobalFree(hMem);
    return bytes;
}

// Writes down what it is asked, and answers what it is told to.
class SpyTarget : public COleDropTarget
{
public:
    SpyTarget(std::string name, LedgerBook& book) : m_name(std::move(name)), m_book(book) {}

    DROPEFFECT over = DROPEFFECT_MOVE;
    BOOL takes = TRUE;
    DROPEFFECT performed = kNotHandled; // what OnDropEx answers
    std::function<void()> atOver, atDropEx;

    DROPEFFECT OnDragEnter(CWnd*, COleDataObject* pData, DWORD keys, CPoint at) override
    {
        return Write("enter" + Describe(keys, at) + (pData->IsDataAvailable(kAtoms) ? "" : " without atoms")), 0;
    }

    DROPEFFECT OnDragOver(CWnd*, COleDataObject*, DWORD keys, CPoint at) override
    {
        Write("over" + Describe(keys, at));
        const DROPEFFECT effect = keys & MK_CONTROL && over ? DROPEFFECT_COPY : over;
        if (const auto action = atOver)
            action();
        return effect;
    }

    BOOL OnDrop(CWnd*, COleDataObject* pData, DROPEFFECT effect, CPoint at) override
    {
        Write("drop" + Describe(0, at) + " " + Name(effect) + " " + TakeBytes(pData->GetGlobalData(kAtoms)));
        return takes;
    }

    DROPEFFECT OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) override
    {
        const DROPEFFECT result = performed;
        if (const auto action = atDropEx)
            action();
        return result;
    }

    void OnDragLeave(CWnd*) override { Write("leave"); }

private:
    void Write(const std::string& what) { m_book.Write(m_name + " " + what); }

    static std::string Describe(DWORD keys, CPoint at)
    {
        return " " + std::to_string(at.x) + "," + std::to_string(at.y) + (keys & MK_CONTROL ? " ctrl" : "");
    }

    const std::string m_name;
    LedgerBook& m_book;
};

// A frame with two children side by side, of 100 by 100 pixels. A press and a movement on the left one drag "path".
class DragDropTest : public DesktopTest, public LedgerBook
{
protected:
    DragDropTest()
    {
        frame.Show(nullptr, {0, 0, 200, 100});
        left.Show(&frame, {0, 0, 100, 100});
        right.Show(&frame, {100, 0, 200, 100}, WS_VSCROLL);
        leftTarget.Register(&left);
        rightTarget.Register(&right);
        left.At(WM_MOUSEMOVE, [this] {
            if (GetKeyState(VK_LBUTTON) < 0)
                StartDrag();
        });
        MakeSource();
    }

    void MakeSource()
    {
        source = std::make_unique<COleDataSource>();
        const HGLOBAL hMem = GlobalAlloc(GMEM_MOVEABLE, 4);
        std::memcpy(toolkit::GlobalLocker<char>(hMem).Get(), "path", 4);
        source->CacheGlobalData(kAtoms, hMem);
    }

    void StartDrag() { Write("dragged: " + Name(source->DoDragDrop(allowed))); }

    // Presses on the left window, moves 10 pixels and does the rest while it drags.
    Ledger Drag(std::function<void()> rest)
    {
        desktop.DuringDrag(std::move(rest));
        desktop.Press(left.m_hWnd, {20, 50});
        desktop.MoveTo(left.m_hWnd, {30, 50});
        return TakeLedger();
    }

    Ledger DragToRight()
    {
        return Drag([this] { desktop.Release(right.m_hWnd, {10, 50}); });
    }

    // What is written when it is dragged there, and then the rest.
    static Ledger OverRight(const Ledger& rest)
    {
        Ledger lines{"left enter 30,50", "left leave", "right enter 10,50", "right over 10,50"};
        lines.insert(lines.end(), rest.begin(), rest.end());
        return lines;
    }

    SpyWnd frame{"frame", *this, {}}, left{"left", *this, {WM_LBUTTONUP}}, right{"right", *this, {WM_VSCROLL}};
    SpyTarget leftTarget{"left", *this}, rightTarget{"right", *this};
    std::unique_ptr<COleDataSource> source;
    DROPEFFECT allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;
};

TEST_F(DragDropTest, ADragIsToldMovementByMovementAndDropped)
{
    const Ledger ledger = Drag([&] {
        desktop.MoveTo(left.m_hWnd, {40, 50});
        EXPECT_EQ(toolkit::Cursor::DropMove, desktop.CurrentCursor());
        desktop.MoveTo(right.m_hWnd, {10, 50});
        EXPECT_EQ(toolkit::Cursor::NoDrop, desktop.CurrentCursor()); // entering has no effect yet
        desktop.MoveTo(right.m_hWnd, {20, 50});
        desktop.Hold({.control = true});
        EXPECT_EQ(toolkit::Cursor::DropCopy, desktop.CurrentCursor());
        desktop.Hold({});
        desktop.Release(right.m_hWnd, {20, 50});
    });
    EXPECT_EQ(Ledger({"left enter 30,50", "left over 40,50", "left leave", "right enter 10,50", "right over 20,50",
                      "right over 20,50 ctrl", "right over 20,50", "right over 20,50", "right drop 20,50 move path",
                      "dragged: move"}),
              ledger);
    EXPECT_EQ(toolkit::Cursor::Arrow, desktop.CurrentCursor());
    EXPECT_EQ(0, GetKeyState(VK_LBUTTON)); // the source has not seen the release
    desktop.MoveTo(left.m_hWnd, {30, 60});
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(DragDropTest, SourceAndTargetSayWhatBecomesOfADrop)
{
    rightTarget.takes = FALSE;
    EXPECT_EQ(OverRight({"right drop 10,50 move path", "dragged: none"}), DragToRight());
    rightTarget.performed = DROPEFFECT_COPY; // it has handled it all itself, though a move was asked for
    EXPECT_EQ(OverRight({"dragged: copy"}), DragToRight());
    rightTarget.over = DROPEFFECT_NONE;
    EXPECT_EQ(OverRight({"right leave", "dragged: none"}), DragToRight());
    rightTarget.over = DROPEFFECT_MOVE;
    rightTarget.performed = SpyTarget::kNotHandled;
    rightTarget.takes = TRUE;
    allowed = DROPEFFECT_COPY; // instead of a move
    EXPECT_EQ(OverRight({"right drop 10,50 copy path", "dragged: copy"}), DragToRight());
    allowed = DROPEFFECT_MOVE; // never instead of a copy
    desktop.Hold({.control = true});
    EXPECT_EQ("dragged: none", DragToRight().back());
    desktop.Hold({});

    EXPECT_FALSE(SpyTarget("second", *this).Register(&right));
    rightTarget.Revoke(); // what is no target leaves it to its parent
    EXPECT_TRUE(rightTarget.Register(&frame));
    EXPECT_EQ("right drop 110,50 move path", DragToRight().at(4));
    rightTarget.atOver = [] { AfxThrowMemoryException(); };
    EXPECT_EQ("dragged: none", DragToRight().back());
    EXPECT_EQ(std::vector<std::string>({": Out of memory."}), desktop.TakeMessageBoxes());
}

TEST_F(DragDropTest, ADragEndsByEscapeAnotherButtonOrTheLossOfItsDataAndHasNoOtherInsideIt)
{
    const Ledger cancelled{"left enter 30,50", "left leave", "dragged: none"};
    EXPECT_EQ(cancelled, Drag([&] { desktop.Key(VK_ESCAPE); }));
    EXPECT_EQ(cancelled, Drag([&] { desktop.Press(left.m_hWnd, {30, 50}, toolkit::MouseButton::Right); }));
    EXPECT_EQ(cancelled, Drag([] {})); // the end of the script
    EXPECT_EQ(Ledger({"left enter 30,50", "dragged: none", "left leave", "dragged: none"}), Drag([&] { StartDrag(); }));
    EXPECT_EQ(cancelled, Drag([&] {
                  source.reset();
                  desktop.Release(right.m_hWnd, {10, 50}); // there is nothing left to drop
              }));
    MakeSource();
    EXPECT_EQ(Ledger({"left enter 30,50", "right enter 10,50", "right over 10,50", "right drop 10,50 move path",
                      "dragged: move"}),
              Drag([&] {
                  left.DestroyWindow(); // outlives its source's window
                  desktop.Release(right.m_hWnd, {10, 50});
              }));
}

TEST_F(DragDropTest, ATargetThatGoesUnderWayIsAskedNoMore)
{
    rightTarget.Revoke();
    auto fleeting = std::make_unique<SpyTarget>("fleeting", *this);
    fleeting->Register(&right);
    fleeting->atOver = [&] { fleeting.reset(); };
    const Ledger gone{"left enter 30,50", "left leave", "fleeting enter 10,50", "fleeting over 10,50", "dragged: none"};
    EXPECT_EQ(gone, DragToRight());

    fleeting = std::make_unique<SpyTarget>("fleeting", *this);
    fleeting->Register(&right);
    fleeting->atDropEx = [&] { fleeting.reset(); };
    EXPECT_EQ(gone, DragToRight());

    rightTarget.Register(&right);
    rightTarget.atOver = [&] { right.DestroyWindow(); };
    EXPECT_EQ(OverRight({"dragged: none"}), DragToRight());
}

TEST_F(DragDropTest, ADragThatRestsAtAnEdgeScrolls)
{
    const auto range = [&](int nPos) { SetScrollInfo(right.m_hWnd, SB_VERT, {0, 99, 50, nPos, 0}); };
    range(48);
    right.At(WM_VSCROLL, [&] {
        SCROLLINFO info{};
        GetScrollInfo(right.m_hWnd, SB_VERT, &info);
        range(info.nPos + 1);
    });
    const Ledger ledger = Drag([&] {
        desktop.MoveTo(right.m_hWnd, {20, 95});
        desktop.Advance(200);
        Write("soon");
        desktop.Advance(500); // to the end, and no further
        desktop.MoveTo(right.m_hWnd, {20, 50});
        desktop.Advance(1000);
    });
    EXPECT_EQ(
        Ledger({"left enter 30,50", "left leave", "right enter 20,95", "soon", "right VSCROLL 1", "right over 20,95",
                "right VSCROLL 1", "right over 20,95", "right over 20,50", "right leave", "dragged: none"}),
        ledger);
}

} // namespace
