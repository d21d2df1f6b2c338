#include "Toolkit/window/NativeWindow.h"

#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/message/Dispatch.h"

#include <map>
#include <string>

namespace
{
class PlainWindow final : public toolkit::NativeWindow
{
public:
    using NativeWindow::NativeWindow;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return DefWindowProc(m_hWnd, message, wParam, lParam);
    }
};

// Controls register while the library is being loaded, so the table is made by the first of them.
std::map<std::string, toolkit::NativeWindowFactory, std::less<>>& Classes()
{
    static std::map<std::string, toolkit::NativeWindowFactory, std::less<>> classes{
        {"", [](HWND hWnd) { return std::make_unique<PlainWindow>(hWnd); }}};
    return classes;
}
} // namespace

void toolkit::RegisterWindowClass(LPCSTR pszClass, NativeWindowFactory factory)
{
    Classes()[pszClass] = std::move(factory);
}

const toolkit::NativeWindowFactory* toolkit::FindWindowClass(LPCSTR pszClass)
{
    const auto it = Classes().find(std::string_view(pszClass ? pszClass : ""));
    return it == Classes().end() ? nullptr : &it->second;
}

toolkit::NativeWindow* toolkit::FindNativeWindow(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? static_cast<NativeWindow*>(pWindow->pNative.get()) : nullptr;
}

LRESULT toolkit::NativeWindow::Notify(UINT code, NMHDR& header) const
{
    const WindowRecord* pWindow = FindRecord(m_hWnd);
    if (!pWindow || !pWindow->pParent)
        return 0;
    header = {m_hWnd, pWindow->nID, code};
    return CallWindow(*pWindow->pParent, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

LRESULT toolkit::NativeWindow::Notify(UINT code) const
{
    NMHDR header{};
    return Notify(code, header);
}

void toolkit::NativeWindow::TakeFocus()
{
    if (!IsFocused())
        SetFocus(m_hWnd);
}
