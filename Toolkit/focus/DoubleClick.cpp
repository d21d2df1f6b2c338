#include "Toolkit/focus/DoubleClick.h"

#include "Toolkit/desktop/Desktop.h"

#include <cstdlib>

bool toolkit::DoubleClick::IsSecond(HWND hWnd, MouseButton button, CPoint screen, DWORD time)
{
    const CPoint moved = screen - m_at;
    const bool bSecond = hWnd == m_hWnd && button == m_button && time - m_time < GetDoubleClickTime() &&
                         std::abs(moved.x) <= kDoubleClickDistance && std::abs(moved.y) <= kDoubleClickDistance;
    m_hWnd = bSecond ? nullptr : hWnd;
    m_button = button;
    m_at = screen;
    m_time = time;
    return bSecond;
}

UINT GetDoubleClickTime()
{
    return toolkit::CurrentDesktop().GetDoubleClickTime();
}
