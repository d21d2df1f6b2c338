#include "tests/desktop/ProbeWnd.h"

#include "Toolkit/graphics/Gdi.h"

#include <utility>

namespace
{

std::string At(LPARAM lParam)
{
    return " " + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
}

const std::map<UINT, const char*> kWithPlaces = {
    {WM_MOUSEMOVE, "move"},    {WM_LBUTTONDOWN, "ldown"}, {WM_LBUTTONUP, "lup"}, {WM_LBUTTONDBLCLK, "ldouble"},
    {WM_RBUTTONDOWN, "rdown"}, {WM_RBUTTONUP, "rup"},     {WM_SIZE, "size"},
};

const std::map<UINT, const char*> kKeys = {
    {VK_F2, "F2"},       {VK_TAB, "Tab"},        {VK_RETURN, "Return"},   {VK_ADD, "Keypad+"},
    {VK_APPS, "Menu"},   {VK_BACK, "Backspace"}, {VK_DELETE, "Delete"},   {VK_OEM_PLUS, "+"},
    {VK_OEM_MINUS, "-"}, {VK_UNKNOWN, "other"},  {VK_CONTROL, "Control"}, {VK_SHIFT, "Shift"},
};

std::string KeyName(WPARAM vkey)
{
    const auto it = kKeys.find(static_cast<UINT>(vkey));
    return it != kKeys.end() ? it->second : std::string(1, static_cast<char>(vkey));
}

// Empty when the message is none to note.
std::string Describe(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const auto it = kWithPlaces.find(message); it != kWithPlaces.end())
        return it->second + At(lParam) + (wParam & MK_CONTROL ? " control" : "");
    if (message == WM_MOUSEWHEEL)
        return "wheel " + std::to_string(static_cast<std::int16_t>(HIWORD(wParam)));
    if (message == WM_KEYDOWN)
        return "key " + KeyName(wParam);
    if (message == WM_CHAR)
        return "char " + std::to_string(wParam);
    return message == WM_MOUSELEAVE ? "leave" : message == WM_CLOSE ? "close" : "";
}

} // namespace

CProbeWnd::CProbeWnd(const char* pszTitle, const CRect& place)
{
    CreateEx(0, "", pszTitle, WS_OVERLAPPED | WS_VISIBLE, place, nullptr, 0);
}

std::string CProbeWnd::TakeLog()
{
    return std::exchange(m_log, {});
}

LRESULT CProbeWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (message == WM_PAINT)
        Paint();
    else if (const std::string entry = Describe(message, wParam, lParam); !entry.empty())
        Note(entry);
    else
        result = CWnd::WindowProc(message, wParam, lParam);
    if (const auto it = m_after.find(message); it != m_after.end())
        it->second();
    return result;
}

void CProbeWnd::Note(const std::string& entry)
{
    m_log += (m_log.empty() ? "" : "; ") + entry;
}

void CProbeWnd::Paint()
{
    const CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    ::FillSolidRect(dc, client, m_color);
}

void FillMenu(CMenu& menu)
{
    CMenu below;
    below.CreatePopupMenu();
    below.AppendMenu(MF_STRING, 3, "&Folder");
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, "&Open\tEnter");
    menu.AppendMenu(MF_STRING | MF_CHECKED, 2, "&Grid");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING | MF_GRAYED, 4, "&Paste");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(below.Detach()), "&New");
}
