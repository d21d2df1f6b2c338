// Painting, looked at pixel by pixel: each window fills itself with a letter's colour, a picture is rows of letters.
#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/paint/WindowDC.h"
#include "Toolkit/run/Run.h"
#include "tests/support/AllocationFailures.h"
#include "tests/support/DesktopTest.h"
#include "tests/toolkit/SpyWnd.h"

namespace
{

COLORREF ColorOf(char letter)
{
    return RGB(letter, 0, 0);
}

std::string Picture(const toolkit::Surface& surface)
{
    std::string rows;
    for (int y = 0; y < surface.Height(); ++y) {
        for (int x = 0; x < surface.Width(); ++x) {
            const COLORREF color = toolkit::ToColor(surface.At(x, y));
            rows += color == GetSysColor(COLOR_BTNSHADOW) ? '#' : static_cast<char>(GetRValue(color));
        }
        rows += '\n';
    }
    return rows;
}

std::string Describe(const CRect& rect)
{
    const auto number = [](int n) { return std::to_string(n); };
    return number(rect.left) + "," + number(rect.top) + "-" + number(rect.right) + "," + number(rect.bottom);
}

// Fills itself with its letter and writes down what it was asked to paint.
class PaintWnd : public CWnd
{
public:
    PaintWnd(char letter, LedgerBook& book) : m_letter(letter), m_book(book) {}

    bool Show(CWnd* pParent, const CRect& rect, DWORD style = 0)
    {
        return CreateEx(0, "", "", WS_VISIBLE | style | (pParent ? WS_CHILD : 0), rect, pParent, 1);
    }
    void SetLetter(char letter) { m_letter = letter; }

    std::function<void()> painting; // called by every paint

protected:
    void OnPaint()
    {
        const CPaintDC dc(this);
        m_book.Write(std::string(1, m_letter) + " " + Describe(dc.GetPaintRect()));
        FillSolidRect(dc, CRect(-99, -99, 99, 99), ColorOf(m_letter));
        if (painting)
            painting();
    }
    BOOL OnEraseBkgnd(HDC) { return TRUE; }

private:
    char m_letter;
    LedgerBook& m_book;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PaintWnd, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

class PaintTest : public DesktopTest, public LedgerBook
{
protected:
    std::string Show() { return "\n" + Picture(desktop.Dump(frame.m_hWnd)); }

    PaintWnd frame{'.', *this}, a{'a', *this}, b{'b', *this};
};

TEST_F(PaintTest, AWindowDrawsOnlyWhereItCanBeSeen)
{
    frame.Show(nullptr, {0, 0, 10, 6}, WS_CLIPCHILDREN);
    a.Show(&frame, {1, 1, 6, 5}, WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_BORDER);
    b.Show(&frame, {4, 3, 12, 5}, WS_CLIPSIBLINGS);
    PaintWnd inner('i', *this);
    inner.Show(&a, {-1, 1, 2, 9}); // sticks out of its parent
    const std::string all = R"(
..........
.#####....
.#aaa#....
.#iibbbbbb
.###bbbbbb
..........
)";
    EXPECT_EQ(all, Show());

    TakeLedger();
    frame.Invalidate();
    a.Invalidate();
    EXPECT_EQ(all, Show()); // nobody drew over another
    EXPECT_EQ(Ledger({". 0,0-10,6", "a 0,0-3,1"}), TakeLedger());

    a.ShowWindow(SW_HIDE);
    Show();
    EXPECT_EQ(Ledger({". 1,1-6,5", "b 0,0-2,2"}), TakeLedger());
    a.ShowWindow(SW_SHOW);
    EXPECT_EQ(all, Show());
    b.DestroyWindow();
    a.MoveWindow(CRect(0, 0, 4, 3));
    EXPECT_EQ("\n####......\n#aa#......\n####......\n..........\n..........\n..........\n", Show());
}

TEST_F(PaintTest, InvalidatingOnlyNotesAndPaintsAreMerged)
{
    frame.Show(nullptr, {0, 0, 20, 10});
    desktop.Run();
    TakeLedger();
    frame.SetLetter('x');
    const CRect one(1, 1, 3, 3), two(5, 5, 8, 8);
    frame.InvalidateRect(&one);
    frame.InvalidateRect(&two);
    RECT noted{};
    EXPECT_TRUE(GetUpdateRect(frame.m_hWnd, &noted));
    EXPECT_EQ(CRect(1, 1, 8, 8), CRect(noted));
    EXPECT_EQ(Ledger(), TakeLedger());
    EXPECT_EQ('.', static_cast<char>(toolkit::WindowSurface(frame.m_hWnd)->At(1, 1) >> 16));

    frame.UpdateWindow();
    EXPECT_EQ(Ledger({"x 1,1-8,8"}), TakeLedger());
    EXPECT_FALSE(GetUpdateRect(frame.m_hWnd, nullptr));
    const std::string shown = Show();
    EXPECT_EQ(".xx..\nxx", shown.substr(1 + 21 * 2, 5) + "\n" + shown.substr(1 + 21 * 7 + 6, 2));
    {
        const FailAllocation failure(1);
        frame.InvalidateRect(&one);
        EXPECT_TRUE(FailAllocation::HasFailed());
    }
    frame.UpdateWindow(); // more than was asked, never less
    EXPECT_EQ(Ledger({"x 0,0-20,10"}), TakeLedger());

    frame.painting = [&] { frame.Invalidate(); };
    frame.Invalidate();
    frame.UpdateWindow(); // once, although it wants it again
    EXPECT_EQ(Ledger({"x 0,0-20,10"}), TakeLedger());
    EXPECT_TRUE(toolkit::RunOneMessage()); // in its turn
    EXPECT_EQ(Ledger({"x 0,0-20,10"}), TakeLedger());
    frame.painting = nullptr;
    frame.ShowWindow(SW_HIDE);
    frame.Invalidate();
    desktop.Run();
    EXPECT_EQ(Ledger(), TakeLedger());
}

TEST_F(PaintTest, ALockedWindowIsPaintedWhenItIsLetGo)
{
    frame.Show(nullptr, {0, 0, 8, 2}, WS_CLIPCHILDREN);
    a.Show(&frame, {0, 0, 3, 1});
    b.Show(&frame, {4, 0, 7, 1});
    desktop.Run();
    TakeLedger();
    EXPECT_TRUE(LockWindowUpdate(a.m_hWnd));
    EXPECT_FALSE(LockWindowUpdate(b.m_hWnd)); // one at a time
    const CRect part(1, 0, 2, 1);
    a.InvalidateRect(&part);
    a.UpdateWindow();
    b.Invalidate();
    desktop.Run();
    EXPECT_EQ(Ledger({"b 0,0-3,1"}), TakeLedger());
    LockWindowUpdate(nullptr);
    desktop.Run();
    EXPECT_EQ(Ledger({"a 1,0-2,1"}), TakeLedger());

    LockWindowUpdate(a.m_hWnd);
    const HDC hdc = GetDC(a.m_hWnd);
    FillSolidRect(hdc, CRect(0, 0, 9, 9), ColorOf('!'));
    ReleaseDC(a.m_hWnd, hdc);
    LockWindowUpdate(nullptr);
    desktop.Run();
    EXPECT_EQ(Ledger({"a 0,0-3,1"}), TakeLedger()); // it would have been drawn on
}

TEST_F(PaintTest, ADrawingContextOutlivesNothingItDrawsOn)
{
    frame.Show(nullptr, {0, 0, 6, 2}, WS_CLIPCHILDREN);
    a.Show(&frame, {1, 0, 3, 2});
    desktop.Run();
    HDC hdc = GetDC(a.m_hWnd);
    EXPECT_TRUE(FillSolidRect(hdc, CRect(0, 0, 1, 1), ColorOf('!')));
    EXPECT_EQ(1, ReleaseDC(a.m_hWnd, hdc));
    EXPECT_EQ("\n.!a...\n.aa...\n", Show());

    hdc = GetDC(a.m_hWnd);
    a.DestroyWindow();
    EXPECT_FALSE(FillSolidRect(hdc, CRect(0, 0, 1, 1), ColorOf('!')));
    hdc = GetDC(frame.m_hWnd);
    frame.MoveWindow(CRect(0, 0, 3, 3));
    desktop.Run();
    EXPECT_FALSE(FillSolidRect(hdc, CRect(0, 0, 1, 1), ColorOf('!')));
    EXPECT_EQ(0, ReleaseDC(frame.m_hWnd, hdc));
}

TEST_F(PaintTest, ScrollingMovesWhatIsSeenAndNotesTheRest)
{
    frame.Show(nullptr, {0, 0, 8, 6}, WS_CLIPCHILDREN);
    a.Show(&frame, {1, 1, 7, 5}, WS_CLIPSIBLINGS);
    b.Show(&frame, {5, 3, 8, 6}, WS_CLIPSIBLINGS); // hides a corner
    desktop.Run();
    const HDC hdc = GetDC(a.m_hWnd);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 6; ++x)
            FillSolidRect(hdc, CRect(x, y, x + 1, y + 1), ColorOf(static_cast<char>('A' + 6 * y + x)));
    ReleaseDC(a.m_hWnd, hdc);
    EXPECT_EQ("\n........\n.ABCDEF.\n.GHIJKL.\n.MNOPbbb\n.STUVbbb\n.....bbb\n", Show());
    TakeLedger();

    const CRect noted(1, 3, 2, 4); // moves along
    a.InvalidateRect(&noted);
    ScrollWindow(a.m_hWnd, -1, -1);
    a.SetLetter('-');
    EXPECT_EQ("\n........\n.HIJKL-.\n.NOP---.\n.-UV-bbb\n.----bbb\n.....bbb\n", Show());
    ScrollWindow(a.m_hWnd, 0, 99); // all of it
    a.SetLetter('*');
    EXPECT_EQ("\n........\n.******.\n.******.\n.****bbb\n.****bbb\n.....bbb\n", Show());
}

} // namespace

TEST_F(PaintTest, OtherColoursReachEveryWindowAndAllOfItIsPaintedAnew)
{
    PaintWnd top('t', *this);
    SpyWnd inside("inside", *this, {WM_SYSCOLORCHANGE});
    PaintWnd deep('d', *this);
    top.Show(nullptr, CRect(0, 0, 12, 6));
    inside.Show(&top, CRect(2, 1, 10, 5));
    deep.Show(&inside, CRect(1, 1, 6, 4), WS_BORDER);
    desktop.Run();
    TakeLedger();

    desktop.ShowColors({.window = RGB(20, 20, 20), .text = RGB(240, 240, 240)});
    EXPECT_EQ((Ledger{"inside SYSCOLORCHANGE", "t 0,0-12,6", "d 0,0-3,1"}), TakeLedger());
    EXPECT_TRUE(toolkit::IsDark());
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), toolkit::ToColor(desktop.Dump(inside.m_hWnd).At(0, 0)));
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), toolkit::ToColor(desktop.Dump(deep.m_hWnd).At(0, 0)));

    desktop.ShowColors({.window = RGB(20, 20, 20), .text = RGB(240, 240, 240)});
    EXPECT_EQ(Ledger{}, TakeLedger()) << "they are no others";
}

TEST_F(PaintTest, WhateverColoursADesktopHasTextsCanBeRead)
{
    const toolkit::ColorScheme schemes[] = {
        {},
        {RGB(255, 255, 255), RGB(35, 38, 41), RGB(61, 174, 233), RGB(255, 255, 255)},
        {RGB(27, 30, 32), RGB(252, 252, 252), RGB(61, 174, 233), RGB(252, 252, 252)},
        {RGB(45, 45, 45), RGB(140, 140, 140), RGB(255, 200, 0), RGB(255, 255, 255)},
        {RGB(120, 120, 120), RGB(128, 128, 128), RGB(1, 1, 1), RGB(2, 2, 2)}};
    for (const toolkit::ColorScheme& scheme : schemes) {
        desktop.ShowColors(scheme);
        const auto contrast = [](int text, int ground) {
            return toolkit::Contrast(GetSysColor(text), GetSysColor(ground));
        };
        SCOPED_TRACE(scheme.window);
        EXPECT_LE(4.5, contrast(COLOR_WINDOWTEXT, COLOR_WINDOW));
        EXPECT_LE(4.5, contrast(COLOR_GRAYTEXT, COLOR_WINDOW));
        EXPECT_LE(4.5, contrast(COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT));
    }
}
