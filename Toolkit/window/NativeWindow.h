// The behaviour behind a window class: what a control does before any class of the library has its say.
#pragma once

#include "Toolkit/handle/WindowObject.h"
#include "Toolkit/window/WindowApi.h"

#include <functional>
#include <memory>

namespace toolkit
{

// One object for each window of the class. It is made before WM_NCCREATE. A window's CWnd sees every message first;
// what it leaves, or hands on with Default(), comes here.
//
// It lives until the last message of its window has returned, WM_NCDESTROY included, and as long as somebody holds it
// (WindowHold). So its handlers go on as they are after whatever they have called, the parent they notify first of
// all, may have destroyed the window. All that is done with the handle has no effect then: nobody is told, no answer
// refuses. IsAlive is asked only where the answer changes what is done. All else may have changed under way as well:
// what was known before a call out is looked up again.
class TOOLKIT_API NativeWindow : public MessageReceiver
{
public:
    explicit NativeWindow(HWND hWnd) : m_hWnd(hWnd) {}
    NativeWindow(const NativeWindow&) = delete;
    NativeWindow& operator=(const NativeWindow&) = delete;

    // HandleMessage ends in ::DefWindowProc.
    virtual HBRUSH ClassBackground() const { return nullptr; } // what GetClassLong tells; nobody's to delete

    // For itself and what it consists of.
    //
    // Sends WM_NOTIFY to the parent, which reflects it; fills in the header's window and identifier. The answer, 0 when
    // the window is gone.
    LRESULT Notify(UINT code, NMHDR& header) const;
    LRESULT Notify(UINT code) const;

    bool IsAlive() const { return IsWindow(m_hWnd); }
    bool Is(DWORD style) const { return (GetWindowStyle(m_hWnd) & style) != 0; } // any of these
    bool IsFocused() const { return GetFocus() == m_hWnd; }
    void TakeFocus(); // it may be refused
    void RedrawAll() { InvalidateRect(m_hWnd, nullptr); }

    const HWND m_hWnd;
};

// How windows of a class are made (CREATESTRUCT's lpszClass); once for each class, before its first window.
using NativeWindowFactory = std::function<std::unique_ptr<NativeWindow>(HWND)>;
TOOLKIT_API void RegisterWindowClass(LPCSTR pszClass, NativeWindowFactory factory);
const NativeWindowFactory* FindWindowClass(LPCSTR pszClass); // NULL for an unknown one; NULL or "" is the plain class

// NULL when the handle is stale. Not to be called without a hold.
TOOLKIT_API NativeWindow* FindNativeWindow(HWND hWnd);

} // namespace toolkit
