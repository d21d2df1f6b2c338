#include "Toolkit/controls/list/ListViewport.h"

#include "Toolkit/controls/list/ListMouse.h"

#include <cstdlib>

namespace toolkit
{

namespace
{

constexpr std::int64_t kScrollBarRange = 1 << 30;
constexpr int kLinesPerCell = 3; // steps of the scroll bar's arrows

// A scroll bar counts in 32 bits: very long content is scaled to it.
std::int64_t PixelsPerStep(std::int64_t contentHeight)
{
    return contentHeight / kScrollBarRange + 1;
}

} // namespace

void ListViewport::Redraw(int row) const
{
    const CRect cell = m_layout.CellRect(row);
    InvalidateRect(m_control.m_hWnd, &cell);
}

void ListViewport::Relayout()
{
    if (m_relayouts > 0) // the scroll bar comes or goes: the loop below looks again
        return;

    const int columns = m_layout.Columns();
    const UnderWay relayout(m_relayouts);
    CSize client;
    do {
        client = m_control.ClientSize();
        m_layout.SetClient(client);
        UpdateScrollBar();
    } while (!(m_control.ClientSize() == client));
    if (m_layout.Columns() != columns)
        m_mouse.CancelBand(); // its cells are no longer where they were
    m_control.Labels().Place();
}

void ListViewport::UpdateScrollBar()
{
    const std::int64_t height = m_layout.ContentHeight();
    const std::int64_t step = PixelsPerStep(height);
    const int page = std::max<int>(m_layout.Client().cy, 1);
    SCROLLINFO info{};
    info.nMax = static_cast<int>(std::max<std::int64_t>(height / step - 1, 0));
    info.nPage = static_cast<int>(std::max<std::int64_t>(page / step, 1));
    info.nPos = static_cast<int>(m_layout.ScrollPosition() / step);
    // The bar must not stay only because it takes the width that makes it needed.
    if (m_layout.ContentHeight(m_control.SizeWithoutBars().cx) <= page)
        info.nPage = info.nMax + 1;
    SetScrollInfo(m_control.m_hWnd, SB_VERT, info);
}

void ListViewport::OnSize()
{
    const int width = m_layout.Client().cx;
    const std::int64_t position = m_layout.ScrollPosition();
    const bool inRelayout = m_relayouts > 0;
    Relayout();
    if (inRelayout || m_layout.Client().cx != width || m_layout.ScrollPosition() != position)
        m_control.RedrawAll();
}

void ListViewport::ScrollTo(std::int64_t position)
{
    const std::int64_t former = m_layout.ScrollPosition();
    m_layout.ScrollTo(position);
    const std::int64_t up = m_layout.ScrollPosition() - former;
    if (up == 0)
        return;

    if (std::abs(up) < m_layout.Client().cy)
        ScrollWindow(m_control.m_hWnd, 0, static_cast<int>(-up));
    else
        m_control.RedrawAll();
    m_control.Labels().StopWaiting();
    m_control.Labels().Place();
    UpdateScrollBar();
    m_mouse.MoveBand(); // its corner stays under the mouse
}

void ListViewport::OnVScroll(WPARAM wParam)
{
    const int line = std::max<int>(m_layout.Cell().cy / kLinesPerCell, 1);
    const std::int64_t unit = PixelsPerStep(m_layout.ContentHeight());
    ScrollTo(m_control.ScrollTarget(SB_VERT, wParam, m_layout.ScrollPosition(), line, m_layout.Client().cy, unit));
}

// One notch is one cell's height.
void ListViewport::OnMouseWheel(WPARAM wParam)
{
    ScrollTo(m_layout.ScrollPosition() - m_control.WheelSteps(wParam, m_layout.Cell().cy));
}

BOOL ListViewport::OnScroll(WPARAM, int pixels)
{
    ScrollTo(m_layout.ScrollPosition() + pixels);
    return TRUE;
}

BOOL ListViewport::OnEnsureVisible(int row, BOOL partIsEnough)
{
    if (!m_layout.Has(row))
        return FALSE;
    ScrollTo(m_layout.ScrollToShow(row, partIsEnough));
    return TRUE;
}

ListViewport::Hit ListViewport::HitTest(CPoint client) const
{
    const int row = m_layout.CellAt(client);
    if (row < 0 || !CRect(CPoint(), m_layout.Client()).PtInRect(client))
        return {};
    if (m_layout.IconRect(row).PtInRect(client))
        return {row, LVHT_ONITEMICON};
    if (!m_layout.LabelRoom(row).PtInRect(client))
        return {};

    const RowFace face = m_owner.HintAndAsk(row);
    const bool hit = m_layout.Has(row) && m_layout.PlaceLabel(row, face.text).box.PtInRect(client);
    return hit ? Hit{row, LVHT_ONITEMLABEL} : Hit();
}

int ListViewport::OnHitTest(WPARAM, LVHITTESTINFO* pInfo) const
{
    if (!pInfo)
        return -1;
    const Hit hit = HitTest(pInfo->pt);
    pInfo->iItem = hit.row;
    pInfo->flags = hit.flags;
    return hit.row;
}

BOOL ListViewport::OnGetItemRect(int row, RECT* pRect) const
{
    if (!pRect || !m_layout.Has(row))
        return FALSE;
    const CRect icon = m_layout.IconRect(row);
    if (pRect->left == LVIR_ICON) {
        *pRect = icon;
        return TRUE;
    }
    const RowFace face = m_owner.HintAndAsk(row);
    if (!m_layout.Has(row))
        return FALSE;
    const CRect label = m_layout.PlaceLabel(row, face.text).box;
    *pRect = pRect->left == LVIR_LABEL ? label : icon | label;
    return TRUE;
}

} // namespace toolkit
