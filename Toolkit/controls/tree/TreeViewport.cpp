#include "Toolkit/controls/tree/TreeViewport.h"

#include <cstdlib>
#include <cstring>

namespace toolkit
{

namespace
{

constexpr int kRowsPerNotch = 3;
constexpr int kPixelsPerStep = TreeLayout::kIndent; // sideways

} // namespace

FontStyle TreeViewport::FontOf(ItemIndex item) const
{
    return m_items[item].state & TVIS_BOLD ? FontStyle::Bold : FontStyle::Regular;
}

int TreeViewport::TextWidth(ItemIndex item, const std::string& text) const
{
    return CurrentTextEngine().Measure(text, FontOf(item));
}

BOOL TreeViewport::OnGetItemRect(BOOL label, RECT* pRect) const
{
    if (!pRect)
        return FALSE;
    HTREEITEM hItem = nullptr;
    std::memcpy(&hItem, pRect, sizeof(hItem));
    const std::string text = label ? m_owner.AskText(hItem) : std::string();

    const ItemIndex item = m_items.Find(hItem);
    const int row = m_items.RowOf(item);
    if (row < 0)
        return FALSE;
    *pRect = label ? m_layout.LabelBox(row, m_items.Level(item), TextWidth(item, text)) : m_layout.RowRect(row);
    return TRUE;
}

HTREEITEM TreeViewport::OnHitTest(WPARAM, TVHITTESTINFO* pInfo) const
{
    if (!pInfo)
        return nullptr;
    const Hit hit = HitTest(pInfo->pt);
    pInfo->hItem = hit.hItem;
    pInfo->flags = hit.flags;
    return hit.hItem;
}

UINT TreeViewport::Outside(CPoint client) const
{
    UINT flags = 0;
    if (client.y < 0)
        flags |= TVHT_ABOVE;
    else if (client.y >= m_layout.Client().cy)
        flags |= TVHT_BELOW;
    if (client.x < 0)
        flags |= TVHT_TOLEFT;
    else if (client.x >= m_layout.Client().cx)
        flags |= TVHT_TORIGHT;
    return flags;
}

TreeViewport::Hit TreeViewport::HitTest(CPoint client) const
{
    if (const UINT outside = Outside(client))
        return {nullptr, outside};
    const int row = m_layout.RowAt(client.y);
    return row < 0 ? Hit() : HitTestRow(client, row);
}

// The owner is asked for what the answer hangs on, and only then.
TreeViewport::Hit TreeViewport::HitTestRow(CPoint client, int row) const
{
    const ItemIndex item = m_items.AtRow(row);
    const HTREEITEM hItem = m_items.HandleOf(item);
    const int level = m_items.Level(item);
    const CRect button = m_layout.ButtonSlot(row, level);
    const CRect icon = m_layout.IconSlot(row, level);
    UINT flags = TVHT_ONITEMINDENT;
    if (client.x >= icon.right) {
        const std::string text = m_owner.AskText(hItem);
        const ItemIndex itemNow = m_items.Find(hItem);
        const int width = itemNow == kNoItem ? 0 : TextWidth(itemNow, text);
        flags = client.x < m_layout.LabelBox(row, level, width).right ? TVHT_ONITEMLABEL : TVHT_ONITEMRIGHT;
    } else if (client.x >= icon.left) {
        flags = TVHT_ONITEMICON;
    } else if (client.x >= button.left && HasButtonAt(level)) {
        if (m_owner.AskFace(hItem, TVIF_CHILDREN).hasChildren)
            flags = TVHT_ONITEMBUTTON;
    }
    return m_items.Find(hItem) == kNoItem ? Hit() : Hit{hItem, flags};
}

void TreeViewport::Redraw(HTREEITEM hItem) const
{
    const int row = m_items.RowOf(m_items.Find(hItem));
    const CRect rect = m_layout.RowRect(row);
    if (row >= 0)
        InvalidateRect(m_control.m_hWnd, &rect);
}

void TreeViewport::Measure()
{
    m_layout.SetMeasures(CurrentTextEngine().LineHeight(), m_control.ImageSize());
    m_layout.SetButtonsAtRoot(m_control.Is(TVS_LINESATROOT) && m_control.Is(TVS_HASLINES | TVS_HASBUTTONS));
    m_bWidthStale = true;
}

void TreeViewport::RowsChanged(int from)
{
    m_layout.SetRows(m_items.RowCount());
    const ItemIndex top = m_items.Find(m_hTop);
    if (m_layout.TopRow() > 0 && top != kNoItem)
        m_layout.ScrollToRow(m_items.RowOf(top));
    Relayout();
    const int y = m_layout.RowRect(std::max(from, m_layout.TopRow())).top;
    const CRect below(0, y, m_layout.Client().cx, m_layout.Client().cy);
    InvalidateRect(m_control.m_hWnd, &below);
    TellAccess(EVENT_OBJECT_REORDER, nullptr);
}

void TreeViewport::ItemIsPlaced(ItemIndex item)
{
    if (m_items.IsShown(item))
        RowsChanged(RowAbove(item));
    else if (const ItemIndex parent = m_items.ParentOrRoot(item); m_items.ChildCount(parent) == 1)
        Redraw(m_items.HandleOf(parent)); // its button appears
}

// A change of an item among its siblings is seen from here on: lines and the parent's button change, too.
int TreeViewport::RowAbove(ItemIndex item) const
{
    const ItemIndex previous = m_items.Previous(item);
    return std::max(m_items.RowOf(previous != kNoItem ? previous : m_items.Parent(item)), 0);
}

void TreeViewport::KeepPlace()
{
    m_hTop = m_items.HandleOf(m_items.AtRow(m_layout.TopRow()));
    m_nLeft = m_layout.X();
}

// Whatever has scrolled the layout meanwhile, be it only that it was clamped to less content.
void TreeViewport::FollowPlace()
{
    const HTREEITEM hTop = m_hTop;
    const int left = m_nLeft;
    KeepPlace();
    if (m_hTop != hTop || m_nLeft != left)
        m_control.RedrawAll();
}

void TreeViewport::ForgetWidth()
{
    m_bWidthStale = true;
    if (m_layout.MaxX() > 0)
        m_control.RedrawAll();
}

void TreeViewport::TakeWidth(int width, bool complete)
{
    if (m_bWidthStale && complete)
        m_bWidthStale = false;
    else
        width = std::max(width, m_layout.Width());
    if (width == m_layout.Width())
        return;
    m_layout.SetWidth(width);
    Relayout();
}

// Each bar takes room from the other. The one below is certain when the rows are wider than all the room there is;
// else it is only needed when the one at the side is, which must not stay for the one below alone.
void TreeViewport::Relayout()
{
    if (m_relayouts > 0) // a bar comes or goes: it is looked after below
        return;
    const UnderWay relayout(m_relayouts);
    const CSize room = m_control.SizeWithoutBars();
    const bool certain = m_layout.Width() > room.cx;
    m_layout.SetClient(m_control.ClientSize());
    if (!certain)
        UpdateBarAtSide(room.cy);
    UpdateBarBelow();
    UpdateBarAtSide(m_layout.Client().cy);
    UpdateBarBelow();
    FollowPlace();
    m_control.Labels().Place();
}

void TreeViewport::UpdateBarAtSide(int height)
{
    SCROLLINFO info{};
    info.nMax = m_layout.Rows() - 1;
    info.nPage = m_layout.FullRows(height);
    info.nPos = m_layout.TopRow();
    UpdateBar(SB_VERT, info);
}

void TreeViewport::UpdateBarBelow()
{
    SCROLLINFO info{};
    info.nMax = m_layout.Width() - 1;
    info.nPage = std::max<int>(m_layout.Client().cx, 1);
    info.nPos = m_layout.X();
    UpdateBar(SB_HORZ, info);
}

void TreeViewport::UpdateBar(int nBar, const SCROLLINFO& info)
{
    SetScrollInfo(m_control.m_hWnd, nBar, info);
    m_layout.SetClient(m_control.ClientSize());
}

bool TreeViewport::OnSize()
{
    const CSize former = m_layout.Client();
    const bool inRelayout = m_relayouts > 0;
    Relayout();
    if (inRelayout || m_layout.Client().cx != former.cx)
        m_control.RedrawAll();
    return !inRelayout && (former.cx <= 0 || former.cy <= 0);
}

void TreeViewport::ScrollToRow(int row)
{
    const int former = m_layout.TopRow();
    m_layout.ScrollToRow(row);
    const int rows = m_layout.TopRow() - former;
    if (rows == 0)
        return;
    if (std::abs(rows) < m_layout.FullRows())
        ScrollWindow(m_control.m_hWnd, 0, -rows * m_layout.RowHeight());
    else
        m_control.RedrawAll();
    KeepPlace();
    m_control.Labels().StopWaiting();
    m_control.Labels().Place();
    UpdateBarAtSide(m_layout.Client().cy);
}

void TreeViewport::ScrollToX(int x)
{
    const int former = m_layout.X();
    m_layout.ScrollToX(x);
    const int pixels = m_layout.X() - former;
    if (pixels == 0)
        return;
    if (std::abs(pixels) < m_layout.Client().cx)
        ScrollWindow(m_control.m_hWnd, -pixels, 0);
    else
        m_control.RedrawAll();
    KeepPlace();
    m_control.Labels().Place();
    UpdateBarBelow();
}

// The row, and as much of picture and label as fits, the picture first.
void TreeViewport::ScrollIntoView(HTREEITEM hItem)
{
    const int row = m_items.RowOf(m_items.Find(hItem));
    if (row < 0 || m_layout.Client().cx <= 0 || m_layout.Client().cy <= 0)
        return;
    ScrollToRow(m_layout.TopRowToShow(row));
    if (!IsWindowVisible(m_control.m_hWnd))
        return;

    const std::string text = m_owner.AskText(hItem);
    const ItemIndex item = m_items.Find(hItem);
    if (item == kNoItem)
        return;
    const int level = m_items.Level(item);
    const int right = m_layout.RightOf(level, TextWidth(item, text));
    if (right > m_layout.Width()) {
        m_layout.SetWidth(right);
        Relayout();
    }
    ScrollToX(m_layout.XToShow(m_layout.LeftOf(level), right));
}

void TreeViewport::OnVScroll(WPARAM wParam)
{
    const int page = m_layout.FullRows();
    ScrollToRow(static_cast<int>(m_control.ScrollTarget(SB_VERT, wParam, m_layout.TopRow(), 1, page)));
}

void TreeViewport::OnHScroll(WPARAM wParam)
{
    const int page = m_layout.Client().cx;
    ScrollToX(static_cast<int>(m_control.ScrollTarget(SB_HORZ, wParam, m_layout.X(), kPixelsPerStep, page)));
}

// With Shift it scrolls sideways.
void TreeViewport::OnMouseWheel(WPARAM wParam)
{
    const int rows = m_control.WheelSteps(wParam, kRowsPerNotch);
    if (LOWORD(wParam) & MK_SHIFT)
        ScrollToX(m_layout.X() - rows * kPixelsPerStep);
    else
        ScrollToRow(m_layout.TopRow() - rows);
}

} // namespace toolkit
