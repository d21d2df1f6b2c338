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
    explicit UpdateLock(const CWnd* pWnd) : m_bLocked(pWnd && ::LockWindowUpdate(pWnd->GetSafeHwnd())) {}
    ~UpdateLock()
    {
        if (m_bLocked)
            ::LockWindowUpdate(nullptr);
    }
    UpdateLock(const UpdateLock&) = delete;
    UpdateLock& operator=(const UpdateLock&) = delete;

private:
    const bool m_bLocked;
};

} // namespace views
