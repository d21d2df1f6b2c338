#include "Toolkit/window/Wnd.h"

#include "Toolkit/handle/WindowRecord.h"
#include "Toolkit/window/NativeWindow.h"
#include "Toolkit/window/WindowCreation.h"
#include "Toolkit/window/WndAccess.h"

namespace
{
CWnd* s_pMainWnd = nullptr;
}

CWnd::~CWnd()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd);
    if (s_pMainWnd == this)
        s_pMainWnd = nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCSTR pszClass, LPCSTR pszName, DWORD dwStyle, const RECT& rect, CWnd* pParent,
                    UINT nID)
{
    if (m_hWnd || (pParent && !pParent->m_hWnd))
        return FALSE;
    const CRect place(rect);
    CREATESTRUCT cs{nullptr,
                    pParent ? pParent->m_hWnd : nullptr,
                    place.Height(),
                    place.Width(),
                    place.top,
                    place.left,
                    dwStyle,
                    pszName,
                    pszClass,
                    dwExStyle,
                    nID};
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    return toolkit::MakeWindow(cs, this) != nullptr;
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    if (!pWindow)
        return nullptr;
    if (pWindow->pWnd)
        return static_cast<CWnd*>(pWindow->pWnd);
    if (!pWindow->pTemporaryWnd) {
        pWindow->pTemporaryWnd = std::make_unique<CWnd>();
        pWindow->pTemporaryWnd->m_hWnd = hWnd;
    }
    return static_cast<CWnd*>(pWindow->pTemporaryWnd.get());
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    const toolkit::WindowRecord* pWindow = toolkit::FindRecord(hWnd);
    return pWindow ? static_cast<CWnd*>(pWindow->pWnd) : nullptr;
}

CWnd* toolkit::WndFromHandle(HWND hWnd)
{
    return CWnd::FromHandle(hWnd);
}

void CWnd::MoveWindow(const RECT& rect)
{
    const CRect place(rect);
    ::MoveWindow(m_hWnd, place.left, place.top, place.Width(), place.Height());
}

void CWnd::GetClientRect(RECT* pRect) const
{
    *pRect = {};
    ::GetClientRect(m_hWnd, pRect);
}

void CWnd::GetWindowRect(RECT* pRect) const
{
    *pRect = {};
    ::GetWindowRect(m_hWnd, pRect);
}

CWnd* AfxGetMainWnd()
{
    return s_pMainWnd;
}

void AfxSetMainWnd(CWnd* pWnd)
{
    s_pMainWnd = pWnd;
}

CPaintDC::CPaintDC(HWND hWnd) : m_hWnd(hWnd), m_target(toolkit::BeginPaint(hWnd)) {}

CPaintDC::~CPaintDC()
{
    toolkit::EndPaint(m_hWnd, m_target.hdc);
}
