#include "Toolkit/controls/edit/Edit.h"

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID)
{
    return CreateEx(0, WC_EDIT, nullptr, dwStyle, rect, pParent, nID);
}

BOOL CEdit::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.lpszClass = WC_EDIT;
    return CWnd::PreCreateWindow(cs);
}

void CEdit::GetSel(int& nStart, int& nEnd) const
{
    DWORD start = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStart = static_cast<int>(start);
    nEnd = static_cast<int>(end);
}

void CEdit::SetSel(int nStart, int nEnd, BOOL bNoScroll)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStart), nEnd);
    if (!bNoScroll)
        ScrollCaret();
}

void CEdit::ReplaceSel(LPCSTR pszNew, BOOL bCanUndo)
{
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(pszNew));
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    return m_hWnd ? CPoint(SendMessage(EM_POSFROMCHAR, nChar)) : CPoint(-1, -1);
}
