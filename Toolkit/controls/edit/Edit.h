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
    void ReplaceSel(LPCSTR pszNew, BOOL bCanUndo = FALSE);
    CPoint PosFromChar(UINT nChar) const; // client; (-1, -1) without a window

    void LimitText(int nBytes = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nBytes)); }
    BOOL Undo() { return SendMessage(EM_UNDO) != 0; }
    void Cut() { SendMessage(WM_CUT); }
    void Copy() { SendMessage(WM_COPY); }
    void Paste() { SendMessage(WM_PASTE); }
    void Clear() { SendMessage(WM_CLEAR); } // the selection
};
