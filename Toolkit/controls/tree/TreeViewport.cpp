// The tree control's view on its rows: client area, scroll bars, wheel.
//
// How wide the content is would take every label to know. So the bar below knows the rows that were painted, and
// learns as others come into sight.
#include "Toolkit/controls/tree/TreeControl.h"

#include <cstdlib>

namespace toolkit
{

namespace
{

constexpr int kRowsPerNotch = 3;
constexpr int kPixelsPerStep = TreeLayout::kIndent; // sideways

} // namespace

bool TreeControl::RowsChanged(int from)
{
    m_layout.SetRows(m_items.RowCount());
    const ItemIndex top = m_items.Find(m_hTop);
    if (m_layout.TopRow() > 0 && top != kNoItem)
        m_layout.ScrollToRow(m_items.RowOf(top));
    if (!LayOut())
        return false;
    RedrawFrom(from);
    return true;
}

void TreeControl::KeepPlace()
{
    m_hTop = m_items.HandleOf(m_items.AtRow(m_layout.TopRow()));
    m_nLeft = m_layout.X();
}

// Whatever has scrolled the layout meanwhile, be it only that it was clamped to less content.
void TreeControl::FollowPlace()
{
    const HTREEITEM hTop = m_hTop;
    const int left = m_nLeft;
    KeepPlace();
    if (m_hTop != hTop || m_nLeft != left)
        RedrawAll();
}

void TreeControl::ForgetWidth()
{
    m_bWidthStale = true;
    if (m_layout.MaxX() > 0)
        RedrawAll();
}

// Each bar takes room from the other. The one below is certain when the rows are wider than all the room there is;
// else it is only needed when the one at the side is, which must not stay for the one below alone.
bool TreeControl::LayOut()
{
    if (m_nRelayouts > 0) // a bar comes or goes: it is looked after below
        return true;
    const UnderWay relayout(m_nRelayouts);
    const CSize room = SizeWithoutBars();
    const bool certain = m_layout.Width() > room.cx;
    m_layout.SetClient(ClientSize());
    if (!certain && !UpdateBarAtSide(room.cy))
        return false;
    if (!UpdateBarBelow() || !UpdateBarAtSide(m_layout.Client().cy) || !UpdateBarBelow())
        return false;
    FollowPlace();
    Labels().Place();
    return true;
}

bool TreeControl::UpdateBarAtSide(int height)
{
    SCROLLINFO info{};
    info.nMax = m_layout.Rows() - 1;
    info.nPage = m_layout.FullRows(height);
    info.nPos = m_layout.TopRow();
    return UpdateBar(SB_VERT, info);
}

bool TreeControl::UpdateBarBelow()
{
    SCROLLINFO info{};
    info.nMax = m_layout.Width() - 1;
    info.nPage = std::max<int>(m_layout.Client().cx, 1);
    info.nPos = m_layout.X();
    return UpdateBar(SB_HORZ, info);
}

bool TreeControl::UpdateBar(int nBar, const SCROLLINFO& info)
{
    const HWND hWnd = m_hWnd;
    SetScrollInfo(hWnd, nBar, info);
    if (!IsWindow(hWnd))
        return false;
    m_layout.SetClient(ClientSize());
    return true;
}

LRESULT TreeControl::OnSize(WPARAM, LPARAM)
{
    if (m_nRelayouts > 0) {
        RedrawAll();
        return 0;
    }
    const CSize former = m_layout.Client();
    if (!LayOut())
        return 0;
    if (m_layout.Client().cx != former.cx)
        RedrawAll();
    if (former.cx <= 0 || former.cy <= 0)
        static_cast<void>(ScrollIntoView(m_hCaret)); // nobody could see it before
    return 0;
}

bool TreeControl::ScrollToRow(int row)
{
    const int former = m_layout.TopRow();
    m_layout.ScrollToRow(row);
    const int rows = m_layout.TopRow() - former;
    if (rows == 0)
        return true;
    if (std::abs(rows) < m_layout.FullRows())
        ScrollWindow(m_hWnd, 0, -rows * m_layout.RowHeight());
    else
        RedrawAll();
    KeepPlace();
    Labels().StopWaiting();
    Labels().Place();
    return UpdateBarAtSide(m_layout.Client().cy);
}

bool TreeControl::ScrollToX(int x)
{
    const int former = m_layout.X();
    m_layout.ScrollToX(x);
    const int pixels = m_layout.X() - former;
    if (pixels == 0)
        return true;
    if (std::abs(pixels) < m_layout.Client().cx)
        ScrollWindow(m_hWnd, -pixels, 0);
    else
        RedrawAll();
    KeepPlace();
    Labels().Place();
    return UpdateBarBelow();
}

// The row, and as much of picture and label as fits, the picture first.
bool TreeControl::ScrollIntoView(HTREEITEM hItem)
{
    if (!Settle())
        return false;
    const ItemIndex item = m_items.Find(hItem);
    const int row = item == kNoItem ? -1 : m_items.RowOf(item);
    if (row < 0 || m_layout.Client().cx <= 0 || m_layout.Client().cy <= 0)
        return true;
    if (!ScrollToRow(m_layout.TopRowToShow(row)))
        return false;
    if (!IsWindowVisible(m_hWnd))
        return true;

    Face face;
    if (!AskFace(hItem, TVIF_TEXT, face))
        return false;
    const ItemIndex itemNow = m_items.Find(hItem);
    if (itemNow == kNoItem)
        return true;
    const int level = m_items.Level(itemNow);
    const int right = m_layout.RightOf(level, TextWidth(itemNow, face.text));
    if (right > m_layout.Width()) {
        m_layout.SetWidth(right);
        if (!LayOut())
            return false;
    }
    return ScrollToX(m_layout.XToShow(m_layout.LeftOf(level), right));
}

bool TreeControl::Reveal(HTREEITEM hItem, bool* pExpanded)
{
    return ExpandAncestors(hItem, pExpanded) && ScrollIntoView(hItem);
}

LRESULT TreeControl::OnEnsureVisible(WPARAM, LPARAM lParam)
{
    const int top = m_layout.TopRow();
    bool expanded = false;
    return Reveal(reinterpret_cast<HTREEITEM>(lParam), &expanded) && !expanded && m_layout.TopRow() != top;
}

LRESULT TreeControl::OnVScroll(WPARAM wParam, LPARAM)
{
    const std::int64_t row = ScrollTarget(SB_VERT, wParam, m_layout.TopRow(), 1, m_layout.FullRows());
    static_cast<void>(ScrollToRow(static_cast<int>(row)));
    return 0;
}

LRESULT TreeControl::OnHScroll(WPARAM wParam, LPARAM)
{
    const std::int64_t x = ScrollTarget(SB_HORZ, wParam, m_layout.X(), kPixelsPerStep, m_layout.Client().cx);
    static_cast<void>(ScrollToX(static_cast<int>(x)));
    return 0;
}

// With Shift it scrolls sideways.
LRESULT TreeControl::OnMouseWheel(WPARAM wParam, LPARAM)
{
    const int rows = WheelSteps(wParam, kRowsPerNotch);
    static_cast<void>(LOWORD(wParam) & MK_SHIFT ? ScrollToX(m_layout.X() - rows * kPixelsPerStep)
                                                : ScrollToRow(m_layout.TopRow() - rows));
    return 0;
}

} // namespace toolkit
