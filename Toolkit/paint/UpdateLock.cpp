#include "Toolkit/paint/UpdateLock.h"

#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/message/Queue.h"
#include "Toolkit/paint/UpdateRegion.h"

#include <utility>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

HWND s_hLocked = nullptr;
bool s_bDrawn = false;
} // namespace

bool toolkit::IsUpdateLocked(const WindowRecord& window)
{
    const WindowRecord* pLocked = s_hLocked ? FindRecord(s_hLocked) : nullptr;
    return pLocked && IsSelfOrChild(*pLocked, &window);
}

void toolkit::NoteDrawnWhileLocked()
{
    s_bDrawn = true;
}

void toolkit::ForgetUpdateLock(HWND hWnd)
{
    if (s_hLocked == hWnd)
        s_hLocked = nullptr;
}

BOOL LockWindowUpdate(HWND hWnd)
{
    if (hWnd) {
        if (s_hLocked || !FindRecord(hWnd))
            return FALSE;
        s_hLocked = hWnd;
        s_bDrawn = false;
        return TRUE;
    }
    WindowRecord* pFormer = FindRecord(std::exchange(s_hLocked, nullptr));
    if (pFormer && s_bDrawn)
        toolkit::InvalidateWhole(*pFormer); // where it was drawn is not known, so all of it
    toolkit::RequestPaint();                // what was held back is due now
    return TRUE;
}
