#include "Toolkit/controls/edit/EditControl.h"

#include "Toolkit/desktop/Desktop.h"
#include "Toolkit/window/HandlerTable.h"

namespace toolkit
{

namespace
{

const bool s_registered = [] {
    for (const LPCSTR pszClass : {WC_EDIT, "EDIT"})
        RegisterWindowClass(pszClass, [](HWND hWnd) { return std::make_unique<EditControl>(hWnd); });
    return true;
}();

EditLayout::Align AlignOf(DWORD style)
{
    if (style & ES_CENTER)
        return EditLayout::Align::Center;
    return style & ES_RIGHT ? EditLayout::Align::Right : EditLayout::Align::Left;
}

} // namespace

LRESULT EditControl::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    using Table = HandlerTable<EditControl>;
    static const Table handlers{
        {WM_CREATE, Table::To<&EditControl::OnCreate>},
        {WM_SIZE, Table::To<&EditControl::m_view, &EditView::OnSize>},
        {WM_STYLECHANGED, Table::To<&EditControl::OnLooksChanged>},
        {WM_FONTCHANGE, Table::To<&EditControl::OnLooksChanged>},
        {WM_PAINT, Table::To<&EditControl::m_view, &EditView::OnPaint>},
        {WM_ERASEBKGND, Table::To<&EditControl::m_view, &EditView::OnEraseBackground>},
        {WM_TIMER, Table::To<&EditControl::OnTimer>},
        {WM_SETFOCUS, Table::To<&EditControl::OnSetFocus>},
        {WM_KILLFOCUS, Table::To<&EditControl::OnKillFocus>},
        {WM_GETDLGCODE, Table::To<&EditControl::OnGetDlgCode>},
        {WM_CONTEXTMENU, Table::To<&EditControl::OnContextMenu>},
        {WM_KEYDOWN, Table::To<&EditControl::OnKeyDown>},
        {WM_SYSKEYDOWN, Table::To<&EditControl::OnSysKeyDown>},
        {WM_CHAR, Table::To<&EditControl::OnChar>},
        {WM_LBUTTONDOWN, Table::To<&EditControl::m_mouse, &EditMouse::OnLButtonDown>},
        {WM_LBUTTONDBLCLK, Table::To<&EditControl::m_mouse, &EditMouse::OnLButtonDblClk>},
        {WM_LBUTTONUP, Table::To<&EditControl::m_mouse, &EditMouse::OnLButtonUp>},
        {WM_RBUTTONDOWN, Table::To<&EditControl::TakeFocus>},
        {WM_MOUSEMOVE, Table::To<&EditControl::m_mouse, &EditMouse::OnMouseMove>},
        {WM_CAPTURECHANGED, Table::To<&EditControl::m_mouse, &EditMouse::OnCaptureChanged>},
        {WM_SETCURSOR, Table::To<&EditControl::m_mouse, &EditMouse::OnSetCursor>},
        {WM_SETTEXT, Table::To<&EditControl::OnSetText>},
        {WM_GETTEXT, Table::To<&EditControl::OnGetText>},
        {WM_GETTEXTLENGTH, Table::To<&EditControl::OnGetTextLength>},
        {WM_CUT, Table::To<&EditControl::OnCut>},
        {WM_COPY, Table::To<&EditControl::OnCopy>},
        {WM_PASTE, Table::To<&EditControl::OnPaste>},
        {WM_CLEAR, Table::To<&EditControl::OnClear>},
        {WM_UNDO, Table::To<&EditControl::OnUndo>},
        {EM_GETSEL, Table::To<&EditControl::OnGetSel>},
        {EM_SETSEL, Table::To<&EditControl::OnSetSel>},
        {EM_SCROLLCARET, Table::To<&EditControl::OnScrollCaret>},
        {EM_REPLACESEL, Table::To<&EditControl::OnReplaceSel>},
        {EM_LIMITTEXT, Table::To<&EditControl::OnLimitText>},
        {EM_UNDO, Table::To<&EditControl::OnUndo>},
        {EM_POSFROMCHAR, Table::To<&EditControl::OnPosFromChar>},
    };
    return handlers.Call(*this, message, wParam, lParam);
}

void EditControl::OnCreate(WPARAM, const CREATESTRUCT* pCreate)
{
    m_text.Set(pCreate->lpszName ? pCreate->lpszName : "");
    m_view.Layout().SetAlign(AlignOf(pCreate->style));
}

void EditControl::OnLooksChanged()
{
    m_view.Layout().SetAlign(AlignOf(GetWindowStyle(m_hWnd)));
    m_view.Show();
}

void EditControl::OnSetFocus()
{
    m_view.Show();
    Tell(EN_SETFOCUS);
}

void EditControl::OnKillFocus()
{
    m_view.Compose("", 0);
    m_mouse.OnLButtonUp();
    m_view.RestartBlinking();
    RedrawAll();
    CurrentDesktop().TextInputChanged();
    Tell(EN_KILLFOCUS);
}

LRESULT EditControl::OnTimer(WPARAM wParam, LPARAM lParam)
{
    if (wParam == EditMouse::kScrollTimer)
        m_mouse.Scroll();
    else if (wParam == EditView::kBlinkTimer)
        m_view.Blink();
    else
        return ::DefWindowProc(m_hWnd, WM_TIMER, wParam, lParam);
    return 0;
}

TextInputState EditControl::GetTextInput() const
{
    return {m_hWnd, m_view.CaretRect(), m_text.Text(), m_text.Caret(), m_text.Anchor()};
}

void EditControl::Compose(std::string_view text, std::size_t caret)
{
    m_view.Compose(text, caret);
    m_view.Show();
}

void EditControl::Tell(UINT code) const
{
    const LONG what = MAKELONG(static_cast<int>(GetDlgCtrlID(m_hWnd)), static_cast<int>(code));
    SendMessage(GetParent(m_hWnd), WM_COMMAND, static_cast<WPARAM>(static_cast<DWORD>(what)),
                reinterpret_cast<LPARAM>(m_hWnd));
}

} // namespace toolkit
