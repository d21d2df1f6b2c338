#include "Toolkit/window/DefWindowProc.h"

#include "Toolkit/graphics/Gdi.h"
#include "Toolkit/graphics/SysColors.h"
#include "Toolkit/handle/WindowGeometry.h"
#include "Toolkit/paint/UpdateRegion.h"
#include "Toolkit/scroll/Frame.h"
#include "Toolkit/window/WindowApi.h"
#include "Toolkit/window/WindowSettings.h"
#include "Toolkit/window/WndAccess.h"

#include <algorithm>
#include <cstring>

namespace
{
using toolkit::WindowRecord;

LRESULT CopyText(const CString& text, WPARAM nSize, LPSTR pszBuffer)
{
    if (nSize == 0)
        return 0;
    const std::size_t nLength = std::min(static_cast<std::size_t>(nSize) - 1, text.View().size());
    std::memcpy(pszBuffer, text.GetString(), nLength);
    pszBuffer[nLength] = '\0';
    return static_cast<LRESULT>(nLength);
}

LRESULT SetText(WindowRecord& window, LPCSTR pszText)
{
    window.text = pszText;
    toolkit::TellDesktopOfChange(window.hWnd);
    return TRUE;
}

void Paint(HWND hWnd)
{
    const toolkit::PaintTarget target = toolkit::BeginPaint(hWnd);
    toolkit::EndPaint(hWnd, target.hdc);
}

LRESULT Erase(const WindowRecord& window, HDC hdc)
{
    return FillSolidRect(hdc, toolkit::ClientRect(window), GetSysColor(COLOR_BTNFACE));
}

LRESULT AskForContextMenu(HWND hWnd, CPoint screen)
{
    return SendMessage(hWnd, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(hWnd), MAKELPARAM(screen.x, screen.y));
}

LRESULT HandOnToParent(const WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.pParent ? SendMessage(window.pParent->hWnd, message, wParam, lParam) : 0;
}

void TellLookChanged(WindowRecord& window, UINT message)
{
    toolkit::InvalidateWhole(window);
    std::vector<HWND> inside;
    for (const WindowRecord* pChild : window.children)
        inside.push_back(pChild->hWnd);
    for (const HWND hChild : inside) // some of them may end meanwhile
        SendMessage(hChild, message, 0, 0);
}

// A parent without an object of its own has nobody else to reflect a child's news.
LRESULT ReflectForPlainParent(const WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (window.pWnd || lParam == 0)
        return 0;
    const bool bNotify = message == WM_NOTIFY;
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    toolkit::MessageCall call{message, wParam, lParam, 0};
    WndAccess::Reflect(bNotify ? header.hwndFrom : reinterpret_cast<HWND>(lParam), call,
                       bNotify ? header.code : HIWORD(wParam));
    return call.result;
}

LRESULT OnInput(const WindowRecord& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_RBUTTONUP:
        return AskForContextMenu(window.hWnd, CPoint(lParam) + toolkit::ClientToScreenOffset(window));
    case WM_KEYUP:
        return wParam == VK_APPS ? AskForContextMenu(window.hWnd, {-1, -1}) : 0;
    case WM_SYSKEYDOWN:
        return wParam == VK_F10 && GetKeyState(VK_SHIFT) < 0 ? AskForContextMenu(window.hWnd, {-1, -1}) : 0;
    default: // WM_CONTEXTMENU, WM_MOUSEWHEEL
        return HandOnToParent(window, message, wParam, lParam);
    }
}
} // namespace

LRESULT DefWindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return 0;
    switch (message) {
    case WM_NCCREATE:
        return TRUE;
    case WM_CLOSE:
        return DestroyWindow(hWnd), 0;
    case WM_PAINT:
        return Paint(hWnd), 0;
    case WM_ERASEBKGND:
        return Erase(*pWindow, reinterpret_cast<HDC>(wParam));
    case WM_NCPAINT:
        return toolkit::PaintFrame(*pWindow, reinterpret_cast<HDC>(wParam)), 0;
    case WM_SYSCOLORCHANGE:
    case WM_FONTCHANGE:
        return TellLookChanged(*pWindow, message), 0;
    case WM_SETTEXT:
        return SetText(*pWindow, reinterpret_cast<LPCSTR>(lParam));
    case WM_GETTEXT:
        return CopyText(pWindow->text, wParam, reinterpret_cast<LPSTR>(lParam));
    case WM_GETTEXTLENGTH:
        return pWindow->text.GetLength();
    case WM_NOTIFY:
    case WM_COMMAND:
        return ReflectForPlainParent(*pWindow, message, wParam, lParam);
    case WM_RBUTTONUP:
    case WM_KEYUP:
    case WM_SYSKEYDOWN:
    case WM_CONTEXTMENU:
    case WM_MOUSEWHEEL:
        return OnInput(*pWindow, message, wParam, lParam);
    default:
        return 0;
    }
}
