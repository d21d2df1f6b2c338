// CWnd: a window as an object, with its message map.
//
// The object and the window have lives of their own: the window is made by Create and may be destroyed while
// the object lives on; the object, when it goes first, destroys its window.
#pragma once

#include "Toolkit/handle/WindowObject.h"
#include "Toolkit/paint/Painting.h"
#include "Toolkit/window/MessageMap.h"
#include "Toolkit/window/MessageParam.h"
#include "Toolkit/window/WindowApi.h"

class TOOLKIT_API CWnd : public toolkit::WindowObject
{
public:
    CWnd() = default;
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    // Makes the window and attaches it. FALSE when PreCreateWindow, WM_NCCREATE or WM_CREATE refused or memory ran out;
    // there is no window then.
    BOOL CreateEx(DWORD dwExStyle, LPCSTR pszClass, LPCSTR pszName, DWORD dwStyle, const RECT& rect, CWnd* pParent,
                  UINT nID);
    virtual BOOL DestroyWindow() { return ::DestroyWindow(m_hWnd); }

    HWND GetSafeHwnd() const { return m_hWnd; }
    // The object of a window; for a window without one, an object that lives as long as the window. NULL for NULL
    // and for a stale handle.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd); // NULL for a window without an object of its own
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }

    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    UINT GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    DWORD GetStyle() const { return ::GetWindowStyle(m_hWnd); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    CString GetWindowText() const { return ::GetWindowText(m_hWnd); }
    void GetClientRect(RECT* pRect) const; // empty without a window, and so is the next
    void GetWindowRect(RECT* pRect) const;
    void ClientToScreen(POINT* pPoint) const { ::ClientToScreen(m_hWnd, pPoint); }
    void ScreenToClient(POINT* pPoint) const { ::ScreenToClient(m_hWnd, pPoint); }

    BOOL ShowWindow(int nShow) { return ::ShowWindow(m_hWnd, nShow); }
    void MoveWindow(const RECT& rect);
    void SetWindowText(LPCSTR pszText) { ::SetWindowText(m_hWnd, pszText); }
    // Without a window the focus stays where it is.
    CWnd* SetFocus() { return m_hWnd ? FromHandle(::SetFocus(m_hWnd)) : nullptr; }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(const RECT* pRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, pRect, bErase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    UINT_PTR SetTimer(UINT_PTR nID, UINT nElapse) { return ::SetTimer(m_hWnd, nID, nElapse); }
    BOOL KillTimer(UINT_PTR nID) { return ::KillTimer(m_hWnd, nID); }
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    template <class Answer, class First = WPARAM, class Second = LPARAM>
    Answer Ask(UINT message, First first = {}, Second second = {}) const
    {
        return toolkit::FromMessage<Answer>(
            SendMessage(message, toolkit::FromMessage<WPARAM>(first), toolkit::FromMessage<LPARAM>(second)));
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }

    // May change what CreateEx was called with; FALSE refuses.
    virtual BOOL PreCreateWindow(CREATESTRUCT& /*cs*/) { return TRUE; }
    // A key message on its way to the window that has the focus: asked of it first and then of its ancestors,
    // before any of them handles it. TRUE swallows the message.
    virtual BOOL PreTranslateMessage(MSG* /*pMsg*/) { return FALSE; }

protected:
    // Every message of the window comes here first; looks it up in the message maps and else calls DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // What happens without a handler: the window class's own behaviour.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // A menu's or a control's command; a control's is reflected to it first. TRUE when someone took it.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // A child's notification: reflected to the child first, then looked up here. TRUE when someone took it.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void PostNcDestroy() {} // the window is gone, m_hWnd is NULL

    // Hands the message being handled to DefWindowProc, with the parameters it came with.
    LRESULT Default();

    // Handlers to override through the message map; each does just Default().
    afx_msg int OnCreate(LPCREATESTRUCT /*lpCreateStruct*/) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnSysColorChange() { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(HDC /*hdc*/) { return static_cast<BOOL>(Default()); }
    afx_msg void OnSize(UINT /*nType*/, int /*cx*/, int /*cy*/) { Default(); }
    afx_msg void OnShowWindow(BOOL /*bShow*/, UINT /*nStatus*/) { Default(); }
    afx_msg void OnSetFocus(CWnd* /*pOldWnd*/) { Default(); }
    afx_msg void OnKillFocus(CWnd* /*pNewWnd*/) { Default(); }
    afx_msg void OnLButtonDown(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnLButtonUp(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnLButtonDblClk(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnRButtonDown(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnRButtonDblClk(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnRButtonUp(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnMouseMove(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT /*nFlags*/, short /*zDelta*/, CPoint /*point*/)
    {
        return static_cast<BOOL>(Default());
    }
    afx_msg void OnKeyDown(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnKeyUp(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnChar(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnTimer(UINT_PTR /*nIDEvent*/) { Default(); }
    afx_msg void OnContextMenu(CWnd* /*pWnd*/, CPoint /*point*/) { Default(); }

    static const toolkit::MessageMap* GetThisMessageMap();
    virtual const toolkit::MessageMap* GetMessageMap() const { return GetThisMessageMap(); }

private:
    friend struct WndAccess; // the window manager's way to PostNcDestroy and the message map

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) final;
};

// The window that AfxGetMainWnd's caller's thread shows its application in; NULL before there is one.
TOOLKIT_API CWnd* AfxGetMainWnd();
TOOLKIT_API void AfxSetMainWnd(CWnd* pWnd);

// A device context for WM_PAINT, for as long as the object lives; given back also when the window is gone meanwhile.
class TOOLKIT_API CPaintDC
{
public:
    explicit CPaintDC(HWND hWnd);
    explicit CPaintDC(const CWnd* pWnd) : CPaintDC(pWnd->m_hWnd) {}
    ~CPaintDC();
    CPaintDC(const CPaintDC&) = delete;
    CPaintDC& operator=(const CPaintDC&) = delete;

    operator HDC() const { return m_target.hdc; }
    const CRect& GetPaintRect() const { return m_target.rcPaint; }

private:
    const HWND m_hWnd;
    const toolkit::PaintTarget m_target;
};
