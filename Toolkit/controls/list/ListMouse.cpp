#include "Toolkit/controls/list/ListControl.h"

#include <cstdlib>
#include <utility>

namespace toolkit
{

namespace
{

constexpr LPCSTR kTrackerClass = "ListTracker";
constexpr UINT_PTR kAutoScrollTimer = 1;
constexpr UINT kAutoScrollPeriod = 30; // milliseconds

class ListTracker : public NativeWindow
{
public:
    using NativeWindow::NativeWindow;

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const HWND hList = GetParent(m_hWnd);
        const WindowHold hold(hList);
        auto* const pList = dynamic_cast<ListControl*>(hold.Native());
        if (!pList)
            return ::DefWindowProc(m_hWnd, message, wParam, lParam);

        switch (message) {
        case WM_MOUSEMOVE:
            pList->Mouse().TrackMove(wParam, CPoint(lParam));
            return 0;
        case WM_TIMER:
            pList->Mouse().AutoScroll();
            return 0;
        case WM_CAPTURECHANGED:
            pList->Mouse().TrackingLost(m_hWnd);
            return 0;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
            return SendMessage(hList, message, wParam, lParam);
        default:
            return ::DefWindowProc(m_hWnd, message, wParam, lParam);
        }
    }
};

const bool s_registered = [] {
    RegisterWindowClass(kTrackerClass, [](HWND hWnd) { return std::make_unique<ListTracker>(hWnd); });
    return true;
}();

} // namespace

LRESULT ListMouse::OnRButtonUp(WPARAM wParam, LPARAM lParam)
{
    EndPress(true);
    return ::DefWindowProc(m_control.m_hWnd, WM_RBUTTONUP, wParam, lParam); // makes it a WM_CONTEXTMENU
}

// The second press of a double click selects like the first; nothing follows its release. On empty space it may
// begin a rubber band.
void ListMouse::OnLButtonDblClk(WPARAM keys, CPoint at)
{
    BeginPress(keys, at, false);
    const std::optional<Press> press = m_press;
    if (!press)
        return;
    if (press->row >= 0) {
        Cancel();
        if (press->onRelease == Press::OnRelease::Toggle)
            m_selection.Toggle(press->row);
    }
    m_owner.TellClick(NM_DBLCLK, press->row, press->at);
}

void ListMouse::BeginPress(WPARAM keys, CPoint at, bool right)
{
    Cancel();
    m_control.Labels().StopWaiting();
    m_control.TakeFocus();

    const ListViewport::Hit hit = m_viewport.HitTest(at);
    Press press{hit.row, at, ToContent(at), right, (keys & MK_SHIFT) != 0, (keys & MK_CONTROL) != 0};
    press.meansLabel = !right && !press.shift && !press.control && (hit.flags & LVHT_ONITEMLABEL) &&
                       m_control.Labels().IsMeant(press.row);
    if (press.row >= 0)
        PressRow(press);
    else if (!press.shift && !press.control)
        m_selection.DeselectBut({});
    if (press.row >= m_layout.Count())
        return; // a handler took the row away

    const HWND hTracker = CreateWindowEx(0, kTrackerClass, "", WS_CHILD, 0, 0, 0, 0, m_control.m_hWnd, 0, nullptr);
    m_hTracker = hTracker;
    SetCapture(hTracker);
    m_press = press;
    m_trackedAt = at;
}

// What is not done at once waits for the release: until then it may become a drag of all selected rows.
void ListMouse::PressRow(Press& press)
{
    const bool selected = m_selection.IsSelected(press.row);
    if (press.right) {
        if (selected)
            m_selection.Focus(press.row);
        else if (press.control)
            m_selection.ChooseFocused(press.row);
        else
            m_selection.SelectOnly(press.row);
    } else if (press.shift) {
        if (selected)
            press.onRelease = Press::OnRelease::Extend;
        else
            m_selection.ExtendTo(press.row, press.control);
    } else if (press.control) {
        press.onRelease = Press::OnRelease::Toggle;
    } else if (selected) {
        press.onRelease = Press::OnRelease::SelectOnly;
        m_selection.Focus(press.row);
    } else {
        m_selection.SelectOnly(press.row);
    }
}

void ListMouse::EndPress(bool right)
{
    if (!m_press || m_press->right != right)
        return;
    const Press press = *m_press;
    const bool drawn = m_band.has_value();
    Cancel();
    if (drawn)
        return;

    if (press.onRelease == Press::OnRelease::SelectOnly)
        m_selection.SelectOnly(press.row);
    else if (press.onRelease == Press::OnRelease::Toggle)
        m_selection.Toggle(press.row);
    else if (press.onRelease == Press::OnRelease::Extend)
        m_selection.ExtendTo(press.row, press.control);
    m_owner.TellClick(right ? NM_RCLICK : NM_CLICK, press.row, press.at);
    if (press.meansLabel)
        m_control.Labels().BeginLater(press.row);
}

void ListMouse::Cancel()
{
    if (const std::optional<CRect> band = BandRect()) {
        m_band.reset();
        InvalidateRect(m_control.m_hWnd, &*band);
    }
    m_press.reset();
    m_bAutoScrolls = false;
    if (const HWND hTracker = std::exchange(m_hTracker, nullptr))
        DestroyWindow(hTracker); // and with it the capture and the timer
}

void ListMouse::CancelBand()
{
    if (m_band)
        Cancel();
}

void ListMouse::RowsAreNew(int count)
{
    if (m_band)
        m_band->Truncate(count);
    if (m_press && m_press->row >= count)
        Cancel();
}

void ListMouse::TrackingLost(HWND hTracker)
{
    if (hTracker == m_hTracker)
        Cancel();
}

// A message box on the way, from whoever hears of the focus, may have had the release.
void ListMouse::TrackMove(WPARAM keys, CPoint at)
{
    if (!m_press)
        return;
    if (!(keys & (m_press->right ? MK_RBUTTON : MK_LBUTTON)))
        return Cancel();
    m_trackedAt = at;
    if (!m_band && ItemControl::IsDrag(m_press->at, at)) {
        if (m_press->row >= 0)
            return BeginDrag();
        if (!m_press->right)
            m_band.emplace(m_press->content, m_selection.Rows().Selected(), m_press->control);
    }
    MoveBand();
}

// The owner runs the drag before it answers, so that nothing of the press may be left by then.
void ListMouse::BeginDrag()
{
    const Press press = *m_press;
    Cancel();
    if (press.onRelease == Press::OnRelease::Toggle && !m_selection.IsSelected(press.row))
        m_selection.ChooseFocused(press.row);
    if (m_selection.IsSelected(press.row)) // else it was refused: there is nothing to carry
        m_owner.TellDrag(press.right ? LVN_BEGINRDRAG : LVN_BEGINDRAG, press.row, press.at);
}

void ListMouse::MoveBand()
{
    if (!m_band)
        return;
    const CRect former = *BandRect();
    m_band->MoveTo(ToContent(m_trackedAt));
    RedrawBand(former, *BandRect());

    const bool outside = m_trackedAt.y < 0 || m_trackedAt.y >= m_layout.Client().cy;
    if (outside && !m_bAutoScrolls)
        SetTimer(m_hTracker, kAutoScrollTimer, kAutoScrollPeriod);
    else if (!outside && m_bAutoScrolls)
        KillTimer(m_hTracker, kAutoScrollTimer);
    m_bAutoScrolls = outside;

    for (const CellBlock& block : m_band->Touch(m_layout.BodiesTouching(m_band->Rect()))) {
        const RowSet rows = m_layout.RowsOf(block);
        for (int row = rows.Next(-1); row >= 0; row = rows.Next(row)) {
            const bool touched = m_band->Touched().Contains(m_layout.LineOf(row), m_layout.ColumnOf(row));
            m_selection.Change(row, m_band->Wants(row, touched) ? LVIS_SELECTED : 0, LVIS_SELECTED);
            if (!m_band)
                return; // a handler ended it
        }
    }
}

void ListMouse::RedrawBand(const CRect& former, const CRect& present)
{
    for (const auto& [one, other] : {std::pair(former, present), std::pair(present, former)})
        for (CRect piece : Difference(one, other)) {
            piece.InflateRect(1, 1); // the edge is drawn otherwise than the inside
            InvalidateRect(m_control.m_hWnd, &piece);
        }
}

std::optional<CRect> ListMouse::BandRect() const
{
    if (!m_band)
        return std::nullopt;
    const ContentRect rect = m_band->Rect();
    const auto toClient = [this](std::int64_t y) {
        return static_cast<int>(std::clamp<std::int64_t>(y - m_layout.ScrollPosition(), -8, m_layout.Client().cy + 8));
    };
    return CRect(rect.left, toClient(rect.top), rect.right, toClient(rect.bottom));
}

void ListMouse::AutoScroll()
{
    if (!m_band)
        return;
    const int below = m_trackedAt.y - (m_layout.Client().cy - 1);
    const int beyond = m_trackedAt.y < 0 ? m_trackedAt.y : std::max(below, 0);
    const int pace = std::clamp<int>(std::abs(beyond), 4, m_layout.Cell().cy); // farther away, faster
    m_viewport.ScrollTo(m_layout.ScrollPosition() + (beyond < 0 ? -pace : pace));
}

} // namespace toolkit
