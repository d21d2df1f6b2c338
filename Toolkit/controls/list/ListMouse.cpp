// The list control under the mouse: clicks, drags and the rubber band.
#include "Toolkit/controls/list/ListControl.h"
#include "Toolkit/controls/list/ListTracker.h"

#include <cstdlib>

namespace toolkit
{

LRESULT ListControl::OnLButtonDown(WPARAM wParam, LPARAM lParam)
{
    static_cast<void>(BeginPress(wParam, lParam, false));
    return 0;
}

LRESULT ListControl::OnRButtonDown(WPARAM wParam, LPARAM lParam)
{
    static_cast<void>(BeginPress(wParam, lParam, true));
    return 0;
}

LRESULT ListControl::OnLButtonUp(WPARAM, LPARAM)
{
    static_cast<void>(EndPress(false)); // without a press there is nothing to end
    return 0;
}

LRESULT ListControl::OnRButtonUp(WPARAM wParam, LPARAM lParam)
{
    if (!EndPress(true))
        return 0;
    return ::DefWindowProc(m_hWnd, WM_RBUTTONUP, wParam, lParam); // makes it a WM_CONTEXTMENU
}

// The second press of a double click selects like the first; nothing follows its release. On empty space it may
// begin a rubber band.
LRESULT ListControl::OnLButtonDblClk(WPARAM wParam, LPARAM lParam)
{
    if (!BeginPress(wParam, lParam, false))
        return 0;
    const std::optional<Press> press = m_press;
    if (!press)
        return 0;
    if (press->row >= 0) {
        EndTracking();
        if (press->onRelease == Press::OnRelease::Toggle && !Toggle(press->row))
            return 0;
    }
    static_cast<void>(TellClick(NM_DBLCLK, press->row, press->at));
    return 0;
}

bool ListControl::BeginPress(WPARAM wParam, LPARAM lParam, bool right)
{
    EndTracking();
    Labels().StopWaiting();
    TakeFocus();
    if (!IsAlive())
        return false;

    const CPoint at(lParam);
    const std::optional<Hit> hit = HitTest(at);
    if (!hit)
        return false;
    const Keys keys{(wParam & MK_SHIFT) != 0, (wParam & MK_CONTROL) != 0};
    Press press{hit->row, at, ToContent(at), right, keys, Press::OnRelease::Nothing};
    press.meansLabel =
        !right && !keys.shift && !keys.control && (hit->flags & LVHT_ONITEMLABEL) && Labels().IsMeant(press.row);
    if (!(press.row >= 0 ? PressRow(press) : PressEmpty(press)))
        return false;
    if (press.row >= m_rows.Count())
        return true; // a handler took the row away
    if (!StartTracking())
        return false;
    m_press = press;
    m_trackedAt = at;
    return true;
}

// What is not done at once waits for the release: until then it may become a drag of all selected rows.
bool ListControl::PressRow(Press& press)
{
    const bool selected = (m_rows.State(press.row) & LVIS_SELECTED) != 0;
    if (press.right) {
        if (selected)
            return ChangeState(press.row, LVIS_FOCUSED, LVIS_FOCUSED);
        return press.keys.control ? ChangeState(press.row, kSelectedAndFocused, kSelectedAndFocused)
                                  : SelectOnly(press.row);
    }
    if (press.keys.shift) {
        if (!selected)
            return ExtendTo(press.row, press.keys.control);
        press.onRelease = Press::OnRelease::Extend;
        return true;
    }
    if (press.keys.control) {
        press.onRelease = Press::OnRelease::Toggle;
        return true;
    }
    if (!selected)
        return SelectOnly(press.row);
    press.onRelease = Press::OnRelease::SelectOnly;
    return ChangeState(press.row, LVIS_FOCUSED, LVIS_FOCUSED);
}

bool ListControl::PressEmpty(const Press& press)
{
    return press.keys.shift || press.keys.control || DeselectBut({});
}

bool ListControl::EndPress(bool right)
{
    if (!m_press || m_press->right != right)
        return true;
    const Press press = *m_press;
    const bool drawn = m_band.has_value();
    EndTracking();
    if (drawn)
        return true;

    bool alive = true;
    if (press.onRelease == Press::OnRelease::SelectOnly)
        alive = SelectOnly(press.row);
    else if (press.onRelease == Press::OnRelease::Toggle)
        alive = Toggle(press.row);
    else if (press.onRelease == Press::OnRelease::Extend)
        alive = ExtendTo(press.row, press.keys.control);
    if (!alive || !TellClick(right ? NM_RCLICK : NM_CLICK, press.row, press.at))
        return false;
    if (press.meansLabel)
        Labels().BeginLater(press.row);
    return true;
}

bool ListControl::StartTracking()
{
    const HWND hWnd = m_hWnd;
    const HWND hTracker = CreateListTracker(hWnd);
    m_hTracker = hTracker;
    SetCapture(hTracker);
    return IsWindow(hWnd);
}

void ListControl::EndTracking()
{
    if (m_band) {
        const CRect band = BandRect();
        m_band.reset();
        InvalidateRect(m_hWnd, &band);
    }
    m_press.reset();
    m_bAutoScrolls = false;
    if (const HWND hTracker = std::exchange(m_hTracker, nullptr))
        DestroyWindow(hTracker); // and with it the capture and the timer
}

void ListControl::TrackingLost(HWND hTracker)
{
    if (hTracker == m_hTracker)
        EndTracking();
}

// A message box on the way, from whoever hears of the focus, may have had the release.
void ListControl::TrackMove(WPARAM keys, CPoint at)
{
    if (!m_press)
        return;
    if (!(keys & (m_press->right ? MK_RBUTTON : MK_LBUTTON)))
        return EndTracking();
    m_trackedAt = at;
    if (!m_band && IsDrag(m_press->at, at)) {
        if (m_press->row >= 0)
            return BeginDrag();
        if (!m_press->right)
            BeginBand();
    }
    if (m_band)
        static_cast<void>(MoveBand());
}

// The owner runs the drag before it answers, so that nothing of the press may be left by then.
void ListControl::BeginDrag()
{
    const Press press = *m_press;
    EndTracking();
    const bool adds = press.onRelease == Press::OnRelease::Toggle && !(m_rows.State(press.row) & LVIS_SELECTED);
    if (adds && !ChangeState(press.row, kSelectedAndFocused, kSelectedAndFocused))
        return;
    if (!(m_rows.State(press.row) & LVIS_SELECTED))
        return; // its selection was refused: there is nothing to carry

    NMLISTVIEW drag{};
    drag.iItem = press.row;
    drag.ptAction = press.at;
    static_cast<void>(Tell(press.right ? LVN_BEGINRDRAG : LVN_BEGINDRAG, drag.hdr));
}

void ListControl::BeginBand()
{
    m_band.emplace(m_press->content, m_rows.Selected(), m_press->keys.control);
}

bool ListControl::MoveBand()
{
    const CRect former = BandRect();
    m_band->MoveTo(ToContent(m_trackedAt));
    RedrawBand(former, BandRect());

    const bool outside = m_trackedAt.y < 0 || m_trackedAt.y >= m_layout.Client().cy;
    if (outside != m_bAutoScrolls)
        SetAutoScroll(m_hTracker, outside);
    m_bAutoScrolls = outside;

    for (const CellBlock& block : m_band->Touch(m_layout.BodiesTouching(m_band->Rect()))) {
        const RowSet rows = RowsOf(block);
        for (int row = rows.Next(-1); row >= 0; row = rows.Next(row)) {
            const bool touched = m_band->Touched().Contains(m_layout.LineOf(row), m_layout.ColumnOf(row));
            if (!ChangeState(row, m_band->Wants(row, touched) ? LVIS_SELECTED : 0, LVIS_SELECTED))
                return false;
            if (!m_band)
                return true; // a handler ended it
        }
    }
    return true;
}

void ListControl::RedrawBand(const CRect& former, const CRect& present)
{
    for (const auto& [one, other] : {std::pair(former, present), std::pair(present, former)})
        for (CRect piece : Difference(one, other)) {
            piece.InflateRect(1, 1); // the edge is drawn otherwise than the inside
            InvalidateRect(m_hWnd, &piece);
        }
}

CRect ListControl::BandRect() const
{
    const ContentRect rect = m_band->Rect();
    const auto toClient = [this](std::int64_t y) {
        return static_cast<int>(std::clamp<std::int64_t>(y - m_layout.ScrollPosition(), -8, m_layout.Client().cy + 8));
    };
    return {rect.left, toClient(rect.top), rect.right, toClient(rect.bottom)};
}

void ListControl::AutoScroll()
{
    if (!m_band)
        return;
    const int below = m_trackedAt.y - (m_layout.Client().cy - 1);
    const int beyond = m_trackedAt.y < 0 ? m_trackedAt.y : std::max(below, 0);
    const int pace = std::clamp<int>(std::abs(beyond), 4, m_layout.Cell().cy); // farther away, faster
    static_cast<void>(ScrollTo(m_layout.ScrollPosition() + (beyond < 0 ? -pace : pace)));
}

} // namespace toolkit
