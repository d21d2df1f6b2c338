#include "Toolkit/window/Wnd.h"

CPaintDC::CPaintDC(HWND hWnd) : m_hWnd(hWnd), m_target(toolkit::BeginPaint(hWnd)) {}

CPaintDC::~CPaintDC()
{
    toolkit::EndPaint(m_hWnd, m_target.hdc);
}
