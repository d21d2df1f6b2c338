#include "tests/toolkit/SpyWnd.h"

namespace
{
const std::map<UINT, std::string> kNames = {
    {WM_NCCREATE, "NCCREATE"},
    {WM_CREATE, "CREATE"},
    {WM_SIZE, "SIZE"},
    {WM_MOVE, "MOVE"},
    {WM_SHOWWINDOW, "SHOWWINDOW"},
    {WM_DESTROY, "DESTROY"},
    {WM_NCDESTROY, "NCDESTROY"},
    {WM_SETFOCUS, "SETFOCUS"},
    {WM_KILLFOCUS, "KILLFOCUS"},
    {WM_PAINT, "PAINT"},
    {WM_TIMER, "TIMER"},
    {WM_USER, "USER"},
    {WM_APP, "APP"},
    {WM_MOUSEMOVE, "MOUSEMOVE"},
    {WM_MOUSELEAVE, "MOUSELEAVE"},
    {WM_LBUTTONDOWN, "LBUTTONDOWN"},
    {WM_LBUTTONUP, "LBUTTONUP"},
    {WM_LBUTTONDBLCLK, "LBUTTONDBLCLK"},
    {WM_RBUTTONDOWN, "RBUTTONDOWN"},
    {WM_RBUTTONUP, "RBUTTONUP"},
    {WM_CONTEXTMENU, "CONTEXTMENU"},
    {WM_CAPTURECHANGED, "CAPTURECHANGED"},
    {WM_KEYDOWN, "KEYDOWN"},
    {WM_KEYUP, "KEYUP"},
    {WM_SYSKEYDOWN, "SYSKEYDOWN"},
    {WM_CHAR, "CHAR"},
    {WM_MOUSEWHEEL, "MOUSEWHEEL"},
    {WM_VSCROLL, "VSCROLL"},
    {WM_ENABLE, "ENABLE"},
    {WM_CLOSE, "CLOSE"},
};

std::string Point(LPARAM lParam)
{
    return std::string(" ") + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
}
} // namespace

SpyWnd::SpyWnd(std::string name, LedgerBook& book, std::set<UINT> messages)
    : m_name(std::move(name)), m_book(book), m_messages(std::move(messages))
{}

bool SpyWnd::Show(CWnd* pParent, const CRect& rect, DWORD style, DWORD exStyle)
{
    return CreateEx(exStyle, "", m_name.c_str(), WS_VISIBLE | style | (pParent ? WS_CHILD : 0), rect, pParent, 1);
}

std::string SpyWnd::Describe(UINT message, WPARAM wParam, LPARAM lParam) const
{
    const std::string line = m_name + " " + kNames.at(message);
    const auto other = [&] { return std::string(" ") + std::string(::GetWindowText(reinterpret_cast<HWND>(wParam))); };
    switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return line + (wParam ? other() : std::string(" -")) + " (" + std::string(::GetWindowText(::GetFocus())) + ")";
    case WM_SHOWWINDOW:
    case WM_TIMER:
    case WM_USER:
    case WM_APP:
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
        return line + " " + std::to_string(wParam);
    case WM_VSCROLL:
        return line + " " + std::to_string(LOWORD(wParam));
    case WM_SIZE:
    case WM_MOVE:
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        return line + Point(lParam);
    case WM_CONTEXTMENU:
        return line + other() + Point(lParam);
    case WM_MOUSEWHEEL:
        return line + " " + std::to_string(static_cast<std::int16_t>(HIWORD(wParam))) + " at" + Point(lParam);
    default:
        return line;
    }
}

LRESULT SpyWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_messages.count(message))
        m_book.Write(Describe(message, wParam, lParam));
    const HWND hWnd = m_hWnd;
    if (const auto it = m_actions.find(message); it != m_actions.end()) {
        const std::function<void()> action = it->second; // may replace itself, or end this object
        action();
    }
    if (!::IsWindow(hWnd))
        return 0;
    const auto it = m_answers.find(message);
    return it != m_answers.end() ? it->second : CWnd::WindowProc(message, wParam, lParam);
}

BOOL SpyWnd::PreTranslateMessage(MSG* pMsg)
{
    if (m_messages.count(pMsg->message))
        m_book.Write(m_name + " is asked of " + kNames.at(pMsg->message));
    return CWnd::PreTranslateMessage(pMsg);
}

void SpyWnd::PostNcDestroy()
{
    if (gone)
        gone();
}
