#include "Toolkit/window/NativeWindow.h"

#include "Toolkit/message/Dispatch.h"
#include "Toolkit/window/NativeClasses.h"

#include <map>
#include <string>

namespace
{
// Controls register while the library is being loaded, so the table is made by the first of them.
std::map<std::string, toolkit::NativeWindowFactory, std::less<>>& Classes()
{
    static std::map<std::string, toolkit::NativeWindowFactory, std::less<>> classes;
    return classes;
}
} // namespace

void toolkit::RegisterWindowClass(LPCSTR pszClass, NativeWindowFactory factory)
{
    Classes()[pszClass] = std::move(factory);
}

bool toolkit::FindWindowClass(LPCSTR pszClass, const NativeWindowFactory** ppFactory)
{
    *ppFactory = nullptr;
    if (!pszClass || !*pszClass)
        return true;
    const auto it = Classes().find(std::string_view(pszClass));
    if (it == Classes().end())
        return false;
    *ppFactory = &it->second;
    return true;
}

toolkit::NativeWindow* toolkit::FindNativeWindow(HWND hWnd)
{
    const WindowRecord* pWindow = FindRecord(hWnd);
    return pWindow ? pWindow->pNative.get() : nullptr;
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

toolkit::WindowHold::WindowHold(WindowRecord& window) : m_pWindow(&window)
{
    ++window.nHolds;
}

toolkit::WindowHold::WindowHold(HWND hWnd) : m_pWindow(FindRecord(hWnd))
{
    if (m_pWindow)
        ++m_pWindow->nHolds;
}

toolkit::WindowHold::~WindowHold()
{
    if (m_pWindow && --m_pWindow->nHolds == 0 && m_pWindow->pSelf)
        const auto last = std::move(m_pWindow->pSelf);
}

toolkit::NativeWindow* toolkit::WindowHold::Native() const
{
    return m_pWindow ? m_pWindow->pNative.get() : nullptr;
}

// A handle has 32 bits, whatever the width of a pointer.
DWORD GetClassLong(HWND hWnd, int nIndex)
{
    const toolkit::NativeWindow* pNative = toolkit::FindNativeWindow(hWnd);
    if (!pNative || nIndex != GCL_HBRBACKGROUND)
        return 0;
    return static_cast<DWORD>(reinterpret_cast<UINT_PTR>(pNative->ClassBackground()));
}
