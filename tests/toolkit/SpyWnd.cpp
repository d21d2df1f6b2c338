#include "tests/toolkit/SpyWnd.h"

namespace
{
// What follows the message's name.
enum class Says
{
    Nothing,
    Number,
    Code,
    Place,
    Focus,
    Wheel
};

const std::map<UINT, std::pair<std::string, Says>> kMessages = {
    {WM_NCCREATE, {"NCCREATE", Says::Nothing}},
    {WM_CREATE, {"CREATE", Says::Nothing}},
    {WM_SIZE, {"SIZE", Says::Place}},
    {WM_MOVE, {"MOVE", Says::Place}},
    {WM_SHOWWINDOW, {"SHOWWINDOW", Says::Number}},
    {WM_DESTROY, {"DESTROY", Says::Nothing}},
    {WM_NCDESTROY, {"NCDESTROY", Says::Nothing}},
    {WM_SETFOCUS, {"SETFOCUS", Says::Focus}},
    {WM_KILLFOCUS, {"KILLFOCUS", Says::Focus}},
    {WM_PAINT, {"PAINT", Says::Nothing}},
    {WM_TIMER, {"TIMER", Says::Number}},
    {WM_SYSCOLORCHANGE, {"SYSCOLORCHANGE", Says::Nothing}},
    {WM_USER, {"USER", Says::Number}},
    {WM_APP, {"APP", Says::Number}},
    {WM_MOUSEMOVE, {"MOUSEMOVE", Says::Place}},
    {WM_MOUSELEAVE, {"MOUSELEAVE", Says::Nothing}},
    {WM_LBUTTONDOWN, {"LBUTTONDOWN", Says::Place}},
    {WM_LBUTTONUP, {"LBUTTONUP", Says::Place}},
    {WM_LBUTTONDBLCLK, {"LBUTTONDBLCLK", Says::Place}},
    {WM_RBUTTONDOWN, {"RBUTTONDOWN", Says::Place}},
    {WM_CAPTURECHANGED, {"CAPTURECHANGED", Says::Nothing}},
    {WM_KEYDOWN, {"KEYDOWN", Says::Number}},
    {WM_KEYUP, {"KEYUP", Says::Number}},
    {WM_CHAR, {"CHAR", Says::Number}},
    {WM_MOUSEWHEEL, {"MOUSEWHEEL", Says::Wheel}},
    {WM_VSCROLL, {"VSCROLL", Says::Code}},
};

std::string Name(HWND hWnd)
{
    return std::string(::GetWindowText(hWnd));
}

std::string Place(LPARAM lParam)
{
    return std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
}

std::string Parameters(Says says, WPARAM wParam, LPARAM lParam)
{
    const HWND hOther = reinterpret_cast<HWND>(wParam);
    switch (says) {
    case Says::Number:
        return " " + std::to_string(wParam);
    case Says::Code:
        return " " + std::to_string(LOWORD(wParam));
    case Says::Place:
        return " " + Place(lParam);
    case Says::Focus:
        return " " + (hOther ? Name(hOther) : "-") + " (" + Name(::GetFocus()) + ")";
    case Says::Wheel:
        return " " + std::to_string(static_cast<std::int16_t>(HIWORD(wParam))) + " at " + Place(lParam);
    default:
        return "";
    }
}
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
        m_book.Write(m_name + " " + name + Parameters(says, wParam, lParam));
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
