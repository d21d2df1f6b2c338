#include "Toolkit/handle/WindowObject.h"

#include "Toolkit/handle/WindowRecord.h"

toolkit::WindowHold::WindowHold(WindowRecord* pWindow) : m_pWindow(pWindow)
{
    if (m_pWindow)
        ++m_pWindow->nHolds;
}

toolkit::WindowHold::WindowHold(HWND hWnd) : WindowHold(FindRecord(hWnd)) {}

toolkit::WindowHold::~WindowHold()
{
    if (m_pWindow && --m_pWindow->nHolds == 0 && m_pWindow->pSelf)
        const auto last = std::move(m_pWindow->pSelf);
}

toolkit::MessageReceiver* toolkit::WindowHold::Native() const
{
    return m_pWindow ? m_pWindow->pNative.get() : nullptr;
}
