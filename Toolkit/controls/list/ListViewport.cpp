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

LRESULT ListViewport::OnSize(WPARAM, LPARAM)
{
    const int width = m_layout.Client().cx;
    const std::int64_t position = m_layout.ScrollPosition();
    const bool inRelayout = m_relayouts > 0;
    Relayout();
    if (inRelayout || m_layout.Client().cx != width || m_layout.ScrollPosition() != position)
        m_control.RedrawAll();
    return 0;
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

LRESULT ListViewport::OnVScroll(WPARAM wParam, LPARAM)
{
    const int line = std::max<int>(m_layout.Cell().cy / kLinesPerCell, 1);
    const std::int64_t unit = PixelsPerStep(m_layout.ContentHeight());
    ScrollTo(m_control.ScrollTarget(SB_VERT, wParam, m_layout.ScrollPosition(), line, m_layout.Client().cy, unit));
    return 0;
}

// One notch is one cell's height.
LRESULT ListViewport::OnMouseWheel(WPARAM wParam, LPARAM)
{
    ScrollTo(m_layout.ScrollPosition() - m_control.WheelSteps(wParam, m_layout.Cell().cy));
    return 0;
}

LRESULT ListViewport::OnScroll(WPARAM, LPARAM lParam)
{
    ScrollTo(m_layout.ScrollPosition() + static_cast<int>(lParam));
    return TRUE;
}

LRESULT ListViewport::OnEnsureVisible(WPARAM wParam, LPARAM lParam)
{
    const int row = static_cast<int>(wParam);
    if (!m_layout.Has(row))
        return FALSE;
    ScrollTo(m_layout.ScrollToShow(row, lParam != 0));
    return TRUE;
}

} // namespace toolkit
