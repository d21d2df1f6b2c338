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
    Ask<LRESULT>(EM_GETSEL, &start, &end);
    nStart = static_cast<int>(start);
    nEnd = static_cast<int>(end);
}

void CEdit::SetSel(int nStart, int nEnd, BOOL bNoScroll)
{
    Ask<BOOL>(EM_SETSEL, nStart, nEnd);
    if (!bNoScroll)
        ScrollCaret();
}
