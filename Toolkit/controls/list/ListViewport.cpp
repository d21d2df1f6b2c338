// The list control's view on its content: client area, scroll bar, wheel.
#include "Toolkit/controls/list/ListControl.h"

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

bool ListControl::LayOut()
{
    if (m_relayouts > 0) // the scroll bar comes or goes: the loop below looks again
        return true;

    const int columns = m_layout.Columns();
    const UnderWay relayout(m_relayouts);
    CSize client;
    do {
        client = ClientSize();
        m_layout.SetClient(client);
        if (!UpdateScrollBar())
            return false;
    } while (!(ClientSize() == client));
    if (m_layout.Columns() != columns && m_band)
        EndTracking(); // its cells are no longer where they were
    Labels().Place();
    return true;
}

bool ListControl::UpdateScrollBar()
{
    const HWND hWnd = m_hWnd;
    const std::int64_t height = m_layout.ContentHeight();
    const std::int64_t step = PixelsPerStep(height);
    const int page = std::max<int>(m_layout.Client().cy, 1);
    SCROLLINFO info{};
    info.nMax = static_cast<int>(std::max<std::int64_t>(height / step - 1, 0));
    info.nPage = static_cast<int>(std::max<std::int64_t>(page / step, 1));
    info.nPos = static_cast<int>(m_layout.ScrollPosition() / step);
    // The bar must not stay only because it takes the width that makes it needed.
    if (m_layout.ContentHeight(SizeWithoutBars().cx) <= page)
        info.nPage = info.nMax + 1;
    SetScrollInfo(hWnd, SB_VERT, info);
    return IsWindow(hWnd);
}

LRESULT ListControl::OnSize(WPARAM, LPARAM)
{
    const CSize former = m_layout.Client();
    const std::int64_t position = m_layout.ScrollPosition();
    if (m_relayouts > 0) {
        RedrawAll();
        return 0;
    }
    if (LayOut() && (m_layout.Client().cx != former.cx || m_layout.ScrollPosition() != position))
        RedrawAll();
    return 0;
}

bool ListControl::ScrollTo(std::int64_t position)
{
    const std::int64_t former = m_layout.ScrollPosition();
    m_layout.ScrollTo(position);
    const std::int64_t up = m_layout.ScrollPosition() - former;
    if (up == 0)
        return true;

    if (std::abs(up) < m_layout.Client().cy)
        ScrollWindow(m_hWnd, 0, static_cast<int>(-up));
    else
        RedrawAll();
    Labels().StopWaiting();
    Labels().Place();
    if (!UpdateScrollBar())
        return false;
    return !m_band || MoveBand(); // its corner stays under the mouse
}

LRESULT ListControl::OnVScroll(WPARAM wParam, LPARAM)
{
    const int line = std::max<int>(m_layout.Cell().cy / kLinesPerCell, 1);
    const std::int64_t unit = PixelsPerStep(m_layout.ContentHeight());
    const std::int64_t target =
        ScrollTarget(SB_VERT, wParam, m_layout.ScrollPosition(), line, m_layout.Client().cy, unit);
    static_cast<void>(ScrollTo(target));
    return 0;
}

LRESULT ListControl::OnMouseWheel(WPARAM wParam, LPARAM)
{
    const int pixels = WheelSteps(wParam, m_layout.Cell().cy);
    static_cast<void>(ScrollTo(m_layout.ScrollPosition() - pixels));
    return 0;
}

LRESULT ListControl::OnScroll(WPARAM, LPARAM lParam)
{
    return ScrollTo(m_layout.ScrollPosition() + static_cast<int>(lParam));
}

LRESULT ListControl::OnEnsureVisible(WPARAM wParam, LPARAM lParam)
{
    const int row = static_cast<int>(wParam);
    return m_rows.Has(row) && ScrollTo(m_layout.ScrollToShow(row, lParam != 0));
}

} // namespace toolkit
