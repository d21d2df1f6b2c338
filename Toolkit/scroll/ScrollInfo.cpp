#include "Toolkit/scroll/ScrollInfo.h"

#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/scroll/ScrollTracker.h"

#include <utility>

using toolkit::ScrollBar;
using toolkit::WindowRecord;

int SetScrollInfo(HWND hWnd, int nBar, const SCROLLINFO& info)
{
    WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow || (nBar != SB_HORZ && nBar != SB_VERT))
        return 0;
    toolkit::ScrollBarState& state = pWindow->bars[static_cast<std::size_t>(nBar)];
    const SCROLLINFO taken = ScrollBar::Normalized(info);
    const bool bShow = ScrollBar::IsNeeded(taken);
    const bool bShown = state.bShown;
    const SCROLLINFO former = std::exchange(state.info, taken);
    if (bShow != bShown) {
        state.bShown = bShow;
        pWindow->style ^= nBar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
        toolkit::InvalidateWhole(*pWindow);
        toolkit::SendSize(hWnd);
    } else if (bShow && (former.nMin != taken.nMin || former.nMax != taken.nMax || former.nPage != taken.nPage ||
                         former.nPos != taken.nPos)) {
        toolkit::InvalidateFrame(*pWindow, toolkit::ScrollBarBox(*pWindow, nBar));
    }
    return taken.nPos;
}

BOOL GetScrollInfo(HWND hWnd, int nBar, SCROLLINFO* pInfo)
{
    const WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow || (nBar != SB_HORZ && nBar != SB_VERT))
        return FALSE;
    *pInfo = pWindow->bars[static_cast<std::size_t>(nBar)].info;
    pInfo->nTrackPos = toolkit::GetTrackPosition(hWnd, nBar, pInfo->nPos);
    return TRUE;
}
