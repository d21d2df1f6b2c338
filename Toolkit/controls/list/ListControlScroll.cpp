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

// Holds a flag of a window's object up; lets it down at the end unless the window is gone.
class Raised
{
public:
    Raised(HWND hWnd, bool& flag) : m_hWnd(hWnd), m_flag(flag) { m_flag = true; }
    ~Raised()
    {
        if (IsWindow(m_hWnd))
            m_flag = false;
    }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    const HWND m_hWnd;
    bool& m_flag;
};

} // namespace

bool ListControl::Relayout()
{
    if (m_bInRelayout) // the scroll bar comes or goes: the loop below looks again
        return true;

    const HWND hWnd = m_hWnd;
    const int columns = m_layout.Columns();
    const Raised inRelayout(hWnd, m_bInRelayout);
    CSize client;
    do {
        client = ClientSize();
        m_layout.SetClient(client);
        if (!UpdateScrollBar())
            return false;
    } while (!(ClientSize() == client));
    if (m_layout.Columns() != columns && m_band)
        EndTracking(); // its cells are no longer where they were
    PlaceLabelField();
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
    if (m_bInRelayout) {
        RedrawAll();
        return 0;
    }
    if (Relayout() && (m_layout.Client().cx != former.cx || m_layout.ScrollPosition() != position))
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
    StopLabelClock();
    PlaceLabelField();
    if (!UpdateScrollBar())
        return false;
    return !m_band || MoveBand(); // its corner stays under the mouse
}

LRESULT ListControl::OnVScroll(WPARAM wParam, LPARAM)
{
    const std::int64_t position = m_layout.ScrollPosition();
    const int line = std::max<int>(m_layout.Cell().cy / kLinesPerCell, 1);
    const int page = std::max<int>(m_layout.Client().cy - line, line);
    std::int64_t target = position;
    switch (LOWORD(wParam)) {
    case SB_LINEUP:
        target -= line;
        break;
    case SB_LINEDOWN:
        target += line;
        break;
    case SB_PAGEUP:
        target -= page;
        break;
    case SB_PAGEDOWN:
        target += page;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
        SCROLLINFO info{};
        if (GetScrollInfo(m_hWnd, SB_VERT, &info))
            target = info.nTrackPos * PixelsPerStep(m_layout.ContentHeight());
        break;
    }
    default:
        break;
    }
    static_cast<void>(ScrollTo(target));
    return 0;
}

LRESULT ListControl::OnMouseWheel(WPARAM wParam, LPARAM)
{
    // One notch is one cell's height; what a finer wheel turns less adds up.
    m_nWheelRest += static_cast<std::int16_t>(HIWORD(wParam)) * m_layout.Cell().cy;
    const int pixels = m_nWheelRest / WHEEL_DELTA;
    m_nWheelRest %= WHEEL_DELTA;
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
