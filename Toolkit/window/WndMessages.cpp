// CWnd's road from a message to its handler.
#include "Toolkit/window/NativeWindow.h"
#include "Toolkit/window/Wnd.h"
#include "Toolkit/window/WndAccess.h"

#include <utility>

namespace
{
// The message being handled, innermost first: what Default() hands on.
const toolkit::MessageCall* s_pCurrent = nullptr;

class CurrentMessage
{
public:
    explicit CurrentMessage(const toolkit::MessageCall& call) : m_pFormer(std::exchange(s_pCurrent, &call)) {}
    ~CurrentMessage() { s_pCurrent = m_pFormer; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    const toolkit::MessageCall* const m_pFormer;
};
} // namespace

const toolkit::MessageMap* CWnd::GetThisMessageMap()
{
    static constexpr toolkit::MessageEntry entries[] = {{0, 0, 0, 0, nullptr}};
    static constinit const toolkit::MessageMap map{nullptr, entries};
    return &map;
}

LRESULT CWnd::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    const toolkit::MessageCall call{message, wParam, lParam, 0};
    const CurrentMessage current(call);
    return WindowProc(message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    toolkit::MessageCall call{message, wParam, lParam, 0};
    if (message == WM_NOTIFY) {
        if (OnNotify(wParam, lParam, &call.result))
            return call.result;
    } else if (message == WM_COMMAND) {
        if (OnCommand(wParam, lParam))
            return TRUE;
    } else if (WndAccess::Dispatch(*this, message, 0, 0, call)) {
        return call.result;
    }
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const toolkit::WindowHold hold(m_hWnd); // the caller may handle no message
    toolkit::MessageReceiver* const pNative = hold.Native();
    return pNative ? pNative->HandleMessage(message, wParam, lParam) : 0;
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const HWND hWnd = m_hWnd;
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    const UINT code = header.code;
    const UINT id = ::GetDlgCtrlID(header.hwndFrom);
    toolkit::MessageCall call{WM_NOTIFY, wParam, lParam, 0};
    // The child's handler may have destroyed this window, and the object with it.
    const bool bTaken = WndAccess::Reflect(header.hwndFrom, call, code) || !::IsWindow(hWnd) ||
                        WndAccess::Dispatch(*this, WM_NOTIFY, code, id, call);
    if (bTaken)
        *pResult = call.result;
    return bTaken;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND hWnd = m_hWnd;
    const UINT code = HIWORD(wParam);
    toolkit::MessageCall call{WM_COMMAND, wParam, lParam, 0};
    return WndAccess::Reflect(reinterpret_cast<HWND>(lParam), call, code) || !::IsWindow(hWnd) ||
           WndAccess::Dispatch(*this, WM_COMMAND, code, LOWORD(wParam), call);
}

LRESULT CWnd::Default()
{
    return s_pCurrent ? DefWindowProc(s_pCurrent->message, s_pCurrent->wParam, s_pCurrent->lParam) : 0;
}
