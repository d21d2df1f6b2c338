// CEdit: the edit control as an object. Each operation is one message to the control.
#pragma once

#include "Toolkit/controls/edit/EditMessages.h"
#include "Toolkit/window/Wnd.h"

class TOOLKIT_API CEdit : public CWnd
{
public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override; // names the control's class

    // Positions count bytes of UTF-8.
    void GetSel(int& nStart, int& nEnd) const;
    void SetSel(int nStart, int nEnd, BOOL bNoScroll = FALSE); // 0, -1: all of it; unless told not to, shows the caret
    void ScrollCaret() { SendMessage(EM_SCROLLCARET); }
    void ReplaceSel(LPCSTR pszNew, BOOL bCanUndo = FALSE) { Ask<LRESULT>(EM_REPLACESEL, bCanUndo, pszNew); }
    // Client; (-1, -1) without a window.
    CPoint PosFromChar(UINT nChar) const { return m_hWnd ? Ask<CPoint>(EM_POSFROMCHAR, nChar) : CPoint(-1, -1); }

    void LimitText(int nBytes = 0) { Ask<LRESULT>(EM_LIMITTEXT, nBytes); }
    BOOL Undo() { return Ask<BOOL>(EM_UNDO); }
    void Cut() { SendMessage(WM_CUT); }
    void Copy() { SendMessage(WM_COPY); }
    void Paste() { SendMessage(WM_PASTE); }
    void Clear() { SendMessage(WM_CLEAR); } // the selection
};
