#include "Toolkit/window/Wnd.h"

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()), m_target(toolkit::BeginPaint(m_hWnd)) {}

CPaintDC::~CPaintDC()
{
    toolkit::EndPaint(m_hWnd, m_target.hdc);
}
