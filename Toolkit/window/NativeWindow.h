// The behaviour behind a window class: what a control does before any class of the library has its say.
#pragma once

#include "Toolkit/window/WindowApi.h"

#include <functional>
#include <memory>

namespace toolkit
{

// One object for each window of the class. It is made before WM_NCCREATE and deleted after WM_NCDESTROY, once none
// of its window's messages is being handled any more: a handler may go on after its window has been destroyed. A
// window's CWnd sees every message first; what it leaves, or hands on with Default(), comes here.
class TOOLKIT_API NativeWindow
{
public:
    explicit NativeWindow(HWND hWnd) : m_hWnd(hWnd) {}
    virtual ~NativeWindow() = default;
    NativeWindow(const NativeWindow&) = delete;
    NativeWindow& operator=(const NativeWindow&) = delete;

    virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0; // ends in ::DefWindowProc
    virtual HBRUSH ClassBackground() const { return nullptr; } // what GetClassLong tells; nobody's to delete

protected:
    // Sends WM_NOTIFY to the parent, which reflects it; fills in the header's window and identifier. The
    // answer. The window may be gone afterwards: ask IsWindow.
    LRESULT Notify(UINT code, NMHDR& header) const;

    bool Is(DWORD style) const { return (GetWindowStyle(m_hWnd) & style) != 0; } // any of these
    bool IsFocused() const { return GetFocus() == m_hWnd; }
    [[nodiscard]] bool TakeFocus(); // false when the window is gone; the focus may be refused all the same
    void RedrawAll() { InvalidateRect(m_hWnd, nullptr); }

    const HWND m_hWnd;
};

using NativeWindowFactory = std::function<std::unique_ptr<NativeWindow>(HWND)>;
TOOLKIT_API void RegisterWindowClass(LPCSTR pszClass, NativeWindowFactory factory);

// NULL when the handle is stale or its class is plain.
TOOLKIT_API NativeWindow* FindNativeWindow(HWND hWnd);

} // namespace toolkit
