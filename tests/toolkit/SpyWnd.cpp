#include "tests/toolkit/SpyWnd.h"

namespace
{
std::string Name(HWND hWnd)
{
    return std::string(::GetWindowText(hWnd));
}

// What follows a message's name.
using Says = std::string(WPARAM wParam, LPARAM lParam);

std::string Number(WPARAM wParam, LPARAM)
{
    return " " + std::to_string(wParam);
}

std::string Code(WPARAM wParam, LPARAM)
{
    return " " + std::to_string(LOWORD(wParam));
}

std::string Place(WPARAM, LPARAM lParam)
{
    return " " + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
}

std::string Focus(WPARAM wParam, LPARAM)
{
    const HWND hOther = reinterpret_cast<HWND>(wParam);
    return " " + (hOther ? Name(hOther) : "-") + " (" + Name(::GetFocus()) + ")";
}

std::string Wheel(WPARAM wParam, LPARAM lParam)
{
    return " " + std::to_string(static_cast<std::int16_t>(HIWORD(wParam))) + " at" + Place(wParam, lParam);
}

const std::map<UINT, std::pair<std::string, Says*>> kMessages = {
    {WM_NCCREATE, {"NCCREATE", nullptr}},
    {WM_CREATE, {"CREATE", nullptr}},
    {WM_SIZE, {"SIZE", &Place}},
    {WM_MOVE, {"MOVE", &Place}},
    {WM_SHOWWINDOW, {"SHOWWINDOW", &Number}},
    {WM_DESTROY, {"DESTROY", nullptr}},
    {WM_NCDESTROY, {"NCDESTROY", nullptr}},
    {WM_SETFOCUS, {"SETFOCUS", &Focus}},
    {WM_KILLFOCUS, {"KILLFOCUS", &Focus}},
    {WM_PAINT, {"PAINT", nullptr}},
    {WM_TIMER, {"TIMER", &Number}},
    {WM_SYSCOLORCHANGE, {"SYSCOLORCHANGE", nullptr}},
    {WM_USER, {"USER", &Number}},
    {WM_APP, {"APP", &Number}},
    {WM_MOUSEMOVE, {"MOUSEMOVE", &Place}},
    {WM_MOUSELEAVE, {"MOUSELEAVE", nullptr}},
    {WM_LBUTTONDOWN, {"LBUTTONDOWN", &Place}},
    {WM_LBUTTONUP, {"LBUTTONUP", &Place}},
    {WM_LBUTTONDBLCLK, {"LBUTTONDBLCLK", &Place}},
    {WM_RBUTTONDOWN, {"RBUTTONDOWN", &Place}},
    {WM_CAPTURECHANGED, {"CAPTURECHANGED", nullptr}},
    {WM_KEYDOWN, {"KEYDOWN", &Number}},
    {WM_KEYUP, {"KEYUP", &Number}},
    {WM_CHAR, {"CHAR", &Number}},
    {WM_MOUSEWHEEL, {"MOUSEWHEEL", &Wheel}},
    {WM_VSCROLL, {"VSCROLL", &Code}},
};
} // namespace

SpyWnd::SpyWnd(std::string name, LedgerBook& book, std::set<UINT> messages)
    : m_name(std::move(name)), m_book(book), m_messages(std::move(messages))
{}

bool SpyWnd::Show(CWnd* pParent, const CRect& rect, DWORD style)
{
    return CreateEx(0, "", m_name.c_str(), WS_VISIBLE | style | (pParent ? WS_CHILD : 0), rect, pParent, 1);
}

LRESULT SpyWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_messages.count(message)) {
        const auto& [name, says] = kMessages.at(message);
        m_book.Write(m_name + " " + name + (says ? says(wParam, lParam) : ""));
    }
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
        m_book.Write(m_name + " is asked of " + kMessages.at(pMsg->message).first);
    return CWnd::PreTranslateMessage(pMsg);
}

void SpyWnd::PostNcDestroy()
{
    if (gone)
        gone();
}
