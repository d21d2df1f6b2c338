#include "Toolkit/controls/list/ListTracker.h"

#include "Toolkit/controls/list/ListControl.h"

namespace toolkit
{

namespace
{

constexpr LPCSTR kTrackerClass = "ListTracker";
constexpr UINT_PTR kAutoScrollTimer = 1;

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

HWND CreateListTracker(HWND hList)
{
    return CreateWindowEx(0, kTrackerClass, "", WS_CHILD, 0, 0, 0, 0, hList, 0, nullptr);
}

void SetAutoScroll(HWND hTracker, bool on)
{
    if (on)
        SetTimer(hTracker, kAutoScrollTimer, kAutoScrollPeriod);
    else
        KillTimer(hTracker, kAutoScrollTimer);
}

} // namespace toolkit
