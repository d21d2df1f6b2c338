// Any handler called on the way may destroy windows, so every step looks its window up again.
#include "Toolkit/window/WindowDestruction.h"

#include "Toolkit/access/WinEvents.h"
#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/focus/Capture.h"
#include "Toolkit/focus/Focus.h"
#include "Toolkit/handle/DropSite.h"
#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/message/Dispatch.h"
#include "Toolkit/message/Timers.h"
#include "Toolkit/paint/Painting.h"
#include "Toolkit/window/WindowSettings.h"
#include "Toolkit/window/WndAccess.h"

#include <algorithm>

namespace
{
using toolkit::FindRecord;
using toolkit::WindowRecord;

void Hide(HWND hWnd)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (pWindow->IsTop())
        toolkit::SetVisible(hWnd, false); // natively, only a child is told
    else
        ShowWindow(hWnd, SW_HIDE);
}

HWND NextChildToTell(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return nullptr;
    const auto it = std::find_if(pWindow->children.begin(), pWindow->children.end(),
                                 [](const WindowRecord* p) { return !p->bDestroying; });
    return it == pWindow->children.end() ? nullptr : (*it)->hWnd;
}

void SendDestroy(HWND hWnd)
{
    FindRecord(hWnd)->bDestroying = true;
    SendMessage(hWnd, WM_DESTROY, 0, 0);
    while (const HWND hChild = NextChildToTell(hWnd))
        SendDestroy(hChild);
}

void FinishChildren(HWND hWnd)
{
    for (;;) {
        WindowRecord* pWindow = FindRecord(hWnd);
        if (!pWindow || pWindow->children.empty())
            return;
        pWindow->bDestroying = true;
        toolkit::FinishDestruction(pWindow->children.front()->hWnd);
    }
}

// Nothing of the toolkit knows the window afterwards. Answers the object it had.
CWnd* Forget(WindowRecord& window)
{
    const HWND hWnd = window.hWnd;
    toolkit::ForgetFocus(hWnd);
    toolkit::ForgetCapture(hWnd);
    toolkit::DropTimers(hWnd);
    NotifyWinEvent(EVENT_OBJECT_DESTROY, hWnd, OBJID_CLIENT, CHILDID_SELF);
    if (window.pDropSite)
        window.pDropSite->WindowGone();
    toolkit::ForgetPainting(window);
    if (std::exchange(window.bKnownToDesktop, false))
        toolkit::CurrentDesktop().WindowDestroyed(hWnd);
    CWnd* const pWnd = static_cast<CWnd*>(std::exchange(window.pWnd, nullptr));
    toolkit::RemoveRecord(hWnd);
    return pWnd;
}
} // namespace

void toolkit::FinishDestruction(HWND hWnd)
{
    FinishChildren(hWnd);
    SendMessage(hWnd, WM_NCDESTROY, 0, 0);
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow)
        return;
    if (CWnd* pWnd = Forget(*pWindow)) {
        pWnd->m_hWnd = nullptr;
        WndAccess::PostNcDestroy(*pWnd);
    }
}

BOOL DestroyWindow(HWND hWnd)
{
    WindowRecord* pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->bDestroying)
        return FALSE;
    Hide(hWnd);
    if (IsWindow(hWnd))
        toolkit::PassFocusOn(hWnd);
    if (IsWindow(hWnd))
        toolkit::ReleaseCaptureWithin(hWnd);
    pWindow = FindRecord(hWnd);
    if (!pWindow || pWindow->bDestroying)
        return TRUE;
    SendDestroy(hWnd);
    toolkit::FinishDestruction(hWnd);
    return TRUE;
}
