#include "Toolkit/exchange/DragTracker.h"

#include "Toolkit/base/Exception.h"
#include "Toolkit/focus/InputState.h"
#include "Toolkit/focus/ModalInput.h"
#include "Toolkit/handle/HitTest.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/handle/WindowQueries.h"
#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/message/Timers.h"

#include <utility>

namespace
{
constexpr DWORD kScrollDelay = 250;   // milliseconds at the edge before it scrolls
constexpr DWORD kScrollInterval = 80; // and between one line and the next

toolkit::DragTracker* s_pTracker = nullptr; // whose scroll timer runs

DROPEFFECT Allowed(DROPEFFECT effect, DROPEFFECT allowed)
{
    const DROPEFFECT wanted = effect & ~DROPEFFECT_SCROLL;
    const bool bMoveAsCopy = wanted == DROPEFFECT_MOVE && !(allowed & DROPEFFECT_MOVE);
    return (bMoveAsCopy ? DROPEFFECT_COPY : wanted) & allowed;
}

bool IsAtEdge(HWND hWnd, CPoint at)
{
    RECT client{};
    if (!GetClientRect(hWnd, &client))
        return false;
    CRect inside(client);
    inside.DeflateRect(toolkit::kDragScrollEdge, toolkit::kDragScrollEdge);
    return CRect(client).PtInRect(at) && !inside.PtInRect(at);
}

CPoint ToClient(HWND hWnd, CPoint screen)
{
    ScreenToClient(hWnd, &screen);
    return screen;
}
} // namespace

toolkit::DragTracker::DragTracker(std::shared_ptr<OfferedData> data, DROPEFFECT allowed)
    : m_data(std::move(data)), m_allowed(allowed)
{}

// Where the buttons are released that it has told of, it is not told: they are not held for what comes after it.
toolkit::DragTracker::~DragTracker()
{
    Leave();
    SetMouseKeyFlags(MouseKeyFlags() & ~kMouseButtons);
}

// A desktop has no use for the toolkit's exceptions: what raises one counts as refused.
template <class Call>
auto toolkit::DragTracker::Guard(Call call) const -> decltype(call())
{
    try {
        return call();
    } catch (CException& exception) {
        exception.ReportError();
        return decltype(call())();
    }
}

HWND toolkit::DragTracker::FindTarget(HWND hTop, CPoint screen) const
{
    HWND hWnd = ModalInput::IsOn() ? nullptr : FindMouseTarget(hTop, screen).hWnd;
    while (hWnd && !FindDropSite(hWnd))
        hWnd = GetParent(hWnd);
    return hWnd;
}

DROPEFFECT toolkit::DragTracker::MoveTo(HWND hTop, CPoint at, DWORD dwKeyState)
{
    const WindowRecord* pTop = FindRecord(hTop);
    if (!pTop)
        return m_effect;
    m_screen = at + SurfaceToScreen(*pTop);
    SetCursorPos(m_screen);
    SetMouseKeyFlags(dwKeyState);
    const HWND hTarget = FindTarget(hTop, m_screen);
    if (hTarget != m_place.hWnd || FindDropSite(hTarget) != m_pSite)
        EnterTarget(hTarget, dwKeyState);
    else if (const DragPlace place{hTarget, ToClient(hTarget, m_screen), dwKeyState}; hTarget && !(place == m_place)) {
        m_place = place;
        m_effect = AskOver();
    }
    UpdateScrolling();
    return m_effect;
}

void toolkit::DragTracker::EnterTarget(HWND hTarget, DWORD dwKeyState)
{
    Leave();
    m_pSite = FindDropSite(hTarget);
    m_place = {m_pSite ? hTarget : nullptr, ToClient(hTarget, m_screen), dwKeyState};
    if (m_pSite)
        m_effect = Allowed(Guard([&] { return m_pSite->Enter(m_data, DragPlace(m_place)); }), m_allowed);
}

DROPEFFECT toolkit::DragTracker::AskOver()
{
    if (!m_pSite || ModalInput::IsOn() || FindDropSite(m_place.hWnd) != m_pSite)
        return DROPEFFECT_NONE;
    return Allowed(Guard([&] { return m_pSite->Over(m_data, DragPlace(m_place)); }), m_allowed);
}

void toolkit::DragTracker::Leave()
{
    StopScrolling();
    m_effect = DROPEFFECT_NONE;
    const HWND hLeft = std::exchange(m_place, {}).hWnd;
    DropSite* const pLeft = std::exchange(m_pSite, nullptr);
    if (pLeft && FindDropSite(hLeft) == pLeft)
        Guard([&] { pLeft->Leave(hLeft); });
}

// The target may have changed its mind since it was last asked, or be gone.
DROPEFFECT toolkit::DragTracker::Drop()
{
    StopScrolling();
    m_effect = AskOver();
    const DROPEFFECT result = m_effect ? DropHere() : DROPEFFECT_NONE;
    Leave();
    return m_effect = result;
}

DROPEFFECT toolkit::DragTracker::DropHere()
{
    const DragPlace place = std::exchange(m_place, {}); // who has had the drop is not left any more
    DropSite* const pSite = std::exchange(m_pSite, nullptr);
    if (FindDropSite(place.hWnd) != pSite)
        return DROPEFFECT_NONE;
    return Allowed(Guard([&] { return pSite->Drop(m_data, place, m_effect, m_allowed); }), m_allowed);
}

void toolkit::DragTracker::UpdateScrolling()
{
    const bool bAtEdge = m_pSite && IsAtEdge(m_place.hWnd, m_place.at);
    if (!bAtEdge || m_hScrolling != m_place.hWnd)
        StopScrolling();
    if (!bAtEdge || m_hScrolling)
        return;
    s_pTracker = this;
    m_hScrolling = m_place.hWnd;
    StartTimer(m_hScrolling, &DragTracker::OnScrollTimer, kScrollDelay);
}

void toolkit::DragTracker::StopScrolling()
{
    if (const HWND hWnd = std::exchange(m_hScrolling, nullptr))
        StopTimer(hWnd, &DragTracker::OnScrollTimer);
    m_bScrolled = false;
    if (s_pTracker == this)
        s_pTracker = nullptr;
}

void toolkit::DragTracker::OnScrollTimer()
{
    if (s_pTracker)
        s_pTracker->Scroll();
}

void toolkit::DragTracker::Scroll()
{
    if (!std::exchange(m_bScrolled, true))
        StartTimer(m_hScrolling, &DragTracker::OnScrollTimer, kScrollInterval);
    const bool bScrolled =
        m_pSite && FindDropSite(m_place.hWnd) == m_pSite && Guard([&] { return m_pSite->Scroll(DragPlace(m_place)); });
    if (bScrolled)
        m_effect = AskOver(); // something else lies under the drag now
}
