#include "Toolkit/handle/WindowObject.h"

#include "Toolkit/handle/WindowRecord.h"

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

toolkit::MessageReceiver* toolkit::WindowHold::Native() const
{
    return m_pWindow ? m_pWindow->pNative.get() : nullptr;
}
