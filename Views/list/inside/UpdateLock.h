// Inside the library.
#pragma once

#include "Toolkit/window/Wnd.h"

namespace views
{

// Holds back a window's redrawing for as long as it lives. Does nothing for no window, and while another window is
// held back: only one can be, and its lock is not ours to give back.
class UpdateLock
{
public:
    explicit UpdateLock(const CWnd* pWnd) : m_hWnd(pWnd ? pWnd->GetSafeHwnd() : nullptr)
    {
        if (m_hWnd && !::LockWindowUpdate(m_hWnd))
            m_hWnd = nullptr;
    }
    ~UpdateLock()
    {
        if (::IsWindow(m_hWnd)) // one that is gone has taken the lock along
            ::LockWindowUpdate(nullptr);
    }
    UpdateLock(const UpdateLock&) = delete;
    UpdateLock& operator=(const UpdateLock&) = delete;

private:
    HWND m_hWnd; // NULL: nothing is held back
};

} // namespace views
