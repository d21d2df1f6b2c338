#include "Toolkit/scroll/ScrollTracker.h"

#include "Toolkit/focus/Capture.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Timers.h"
#include "Toolkit/paint/UpdateRegion.h"

#include <algorithm>
#include <utility>

namespace
{
using toolkit::ScrollBar;
using toolkit::ScrollPart;
using toolkit::WindowRecord;

constexpr DWORD kFirstRepeat = 400, kNextRepeats = 50; // milliseconds

// What the mouse is over, and what it holds.
struct
{
    HWND hWnd = nullptr;
    int nBar = SB_VERT;
    bool bOnThumb = false;
} s_hot;

struct
{
    HWND hWnd = nullptr; // NULL: no bar is held
    int nBar = SB_VERT;
    ScrollPart part = ScrollPart::None;
    CPoint mouse;         // screen
    int nGrabbed = 0;     // where the drag began, along the bar
    int nFirstOffset = 0; // of the thumb, when the drag began
    int nFirstPos = 0;
    int nOffset = 0;
    int nPos = 0;
} s_held;

ScrollBar BarOf(const WindowRecord& window, int nBar)
{
    return {toolkit::ScrollBarBox(window, nBar), nBar, window.bars[static_cast<std::size_t>(nBar)].info};
}

CPoint ToWindow(const WindowRecord& window, CPoint screen)
{
    return screen - toolkit::SurfaceToScreen(window) - toolkit::WindowArea(window).TopLeft();
}

void Redraw(HWND hWnd, int nBar)
{
    if (WindowRecord* pWindow = toolkit::FindRecord(hWnd))
        toolkit::InvalidateFrame(*pWindow, toolkit::ScrollBarBox(*pWindow, nBar));
}

void SendScroll(UINT code, int nPos = 0)
{
    const UINT message = s_held.nBar == SB_VERT ? WM_VSCROLL : WM_HSCROLL;
    const auto wParam = static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(static_cast<int>(code), nPos)));
    SendMessage(s_held.hWnd, message, wParam, 0);
}

void RepeatPage();

void EndTracking()
{
    const HWND hWnd = s_held.hWnd;
    toolkit::StopTimer(hWnd, &RepeatPage);
    s_held.part = ScrollPart::None;
    if (GetCapture() == hWnd)
        ReleaseCapture();
    SendScroll(SB_ENDSCROLL);
    s_held.hWnd = nullptr;
    Redraw(hWnd, s_held.nBar);
}

// Pages once towards the mouse; nothing when the thumb has arrived there or the mouse has left the track.
void PageTowardsMouse()
{
    const WindowRecord* pWindow = toolkit::FindRecord(s_held.hWnd);
    if (!pWindow)
        return;
    const ScrollPart part = BarOf(*pWindow, s_held.nBar).HitTest(ToWindow(*pWindow, s_held.mouse));
    if (part == s_held.part)
        SendScroll(part == ScrollPart::Before ? SB_PAGEUP : SB_PAGEDOWN);
}

void RepeatPage()
{
    if (GetCapture() != s_held.hWnd)
        return EndTracking();
    toolkit::StartTimer(s_held.hWnd, &RepeatPage, kNextRepeats);
    PageTowardsMouse();
}

void DragThumb(const WindowRecord& window)
{
    const ScrollBar bar = BarOf(window, s_held.nBar);
    const int nMoved = bar.Along(ToWindow(window, s_held.mouse)) - s_held.nGrabbed;
    s_held.nOffset = std::clamp(s_held.nFirstOffset + nMoved, 0, bar.GetFreeLength());
    // Where it was taken the thumb stands for the position it had, not for the nearest one of that pixel.
    const int nPos = s_held.nOffset == s_held.nFirstOffset ? s_held.nFirstPos : bar.PositionAt(s_held.nOffset);
    Redraw(s_held.hWnd, s_held.nBar);
    if (std::exchange(s_held.nPos, nPos) != nPos)
        SendScroll(SB_THUMBTRACK, nPos);
}

void BeginTracking(const WindowRecord& window, int nBar, CPoint screen)
{
    const ScrollBar bar = BarOf(window, nBar);
    const CPoint at = ToWindow(window, screen);
    const int nPos = window.bars[static_cast<std::size_t>(nBar)].info.nPos;
    const int nOffset = bar.GetThumbOffset();
    s_held = {window.hWnd, nBar, bar.HitTest(at), screen, bar.Along(at), nOffset, nPos, nOffset, nPos};
    Redraw(window.hWnd, nBar);
    SetCapture(s_held.hWnd);
    if (s_held.part == ScrollPart::Thumb)
        return;
    toolkit::StartTimer(s_held.hWnd, &RepeatPage, kFirstRepeat);
    PageTowardsMouse();
}

int FindBar(const WindowRecord& window, CPoint screen)
{
    const CPoint at = ToWindow(window, screen);
    for (const int nBar : {SB_HORZ, SB_VERT})
        if (toolkit::ScrollBarBox(window, nBar).PtInRect(at))
            return nBar;
    return -1;
}
} // namespace

void toolkit::PressScrollBar(HWND hWnd, CPoint screen)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    const int nBar = pWindow ? FindBar(*pWindow, screen) : -1;
    if (nBar >= 0)
        BeginTracking(*pWindow, nBar, screen);
}

bool toolkit::IsTrackingScrollBar()
{
    if (s_held.hWnd && GetCapture() != s_held.hWnd)
        EndTracking(); // somebody else took the mouse
    return s_held.hWnd != nullptr;
}

void toolkit::TrackScrollBar(const InputEvent& event, CPoint screen)
{
    s_held.mouse = screen;
    const WindowRecord* pWindow = FindRecord(s_held.hWnd);
    const bool bReleased = event.kind == InputKind::MouseButton && event.button == MouseButton::Left && !event.down;
    if (bReleased)
        EndTracking();
    else if (pWindow && s_held.part == ScrollPart::Thumb)
        DragThumb(*pWindow);
}

void toolkit::HoverScrollBars(HWND hWnd, CPoint screen)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    const int nBar = pWindow ? FindBar(*pWindow, screen) : -1;
    const bool bOnThumb = nBar >= 0 && BarOf(*pWindow, nBar).HitTest(ToWindow(*pWindow, screen)) == ScrollPart::Thumb;
    const HWND hHot = nBar >= 0 ? hWnd : nullptr;
    if (s_hot.hWnd == hHot && (!hHot || (s_hot.nBar == nBar && s_hot.bOnThumb == bOnThumb)))
        return;
    Redraw(s_hot.hWnd, s_hot.nBar);
    s_hot = {hHot, nBar == SB_HORZ ? SB_HORZ : SB_VERT, bOnThumb};
    Redraw(s_hot.hWnd, s_hot.nBar);
}

toolkit::ScrollBarLook toolkit::GetScrollBarLook(HWND hWnd, int nBar, const ScrollBar& bar)
{
    const bool bHeld = s_held.hWnd == hWnd && s_held.nBar == nBar && s_held.part == ScrollPart::Thumb;
    const bool bHot = s_hot.hWnd == hWnd && s_hot.nBar == nBar && s_hot.bOnThumb;
    return {bHot, bHeld, bHeld ? std::min(s_held.nOffset, bar.GetFreeLength()) : bar.GetThumbOffset()};
}

int toolkit::GetTrackPosition(HWND hWnd, int nBar, int nPos)
{
    const bool bHeld = s_held.hWnd == hWnd && s_held.nBar == nBar && s_held.part == ScrollPart::Thumb;
    return bHeld ? s_held.nPos : nPos;
}
