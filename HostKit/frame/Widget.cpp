#include "HostKit/frame/Widget.h"

namespace hostkit
{

BEGIN_MESSAGE_MAP(CWidget, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL CWidget::Create(CWnd* pParent)
{
    return CreateEx(0, "", "", WS_CHILD | WS_CLIPSIBLINGS | m_dwStyle, CRect(), pParent, 0);
}

CRect CWidget::Client() const
{
    CRect client;
    GetClientRect(&client);
    return client;
}

BOOL CWidget::OnEraseBkgnd(HDC hdc)
{
    Erase(hdc);
    return TRUE;
}

void CWidget::OnPaint()
{
    const CPaintDC dc(this);
    Draw(dc);
}

} // namespace hostkit
